#ifndef TESSALY_APP_FIRST_SIZE_H_
#define TESSALY_APP_FIRST_SIZE_H_

#include <QSize>

class QScreen;

namespace tessaly {

// The size that a window opens with: the one it would like, but never so large that its frame, or
// what a desktop shows beside it, has no room left on the screen. In device-independent pixels.
[[nodiscard]] QSize FirstSizeOn(const QScreen& screen, const QSize& wish);

}  // namespace tessaly

#endif  // TESSALY_APP_FIRST_SIZE_H_
