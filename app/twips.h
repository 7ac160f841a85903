#ifndef TESSALY_APP_TWIPS_H_
#define TESSALY_APP_TWIPS_H_

#include <QRect>

#include "app/pane_layout.h"

namespace tessaly {

// Twips to a device-independent pixel.
inline constexpr int kTwipsPerPixel = 15;

[[nodiscard]] inline int ToPixels(double twips) {
  return qRound(twips / kTwipsPerPixel);
}
[[nodiscard]] inline int ToTwips(int pixels) {
  return pixels * kTwipsPerPixel;
}
[[nodiscard]] inline QRect ToPixels(const TwipsRect& rect) {
  return {ToPixels(rect.left), ToPixels(rect.top), ToPixels(rect.width), ToPixels(rect.height)};
}

}  // namespace tessaly

#endif  // TESSALY_APP_TWIPS_H_
