#ifndef TESSALY_APP_WINDOW_REACH_H_
#define TESSALY_APP_WINDOW_REACH_H_

#include <QList>
#include <QRect>

namespace tessaly {

// Where a window has to stand so that its title can be grabbed; everything in pixels. `screens` are
// the areas that windows may use. A window whose title is on one of them stays as it is; any other
// is moved into the nearest, and made smaller only where it would not fit there. Without a screen
// it stays.
[[nodiscard]] QRect WithinReach(const QRect& window, const QList<QRect>& screens);

}  // namespace tessaly

#endif  // TESSALY_APP_WINDOW_REACH_H_
