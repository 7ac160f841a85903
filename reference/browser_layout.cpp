#include "reference/browser_layout.h"

#include <algorithm>

namespace tessaly {

namespace {

constexpr std::int32_t kGap = 100;
// With the gaps a whole number of pixels, so that the page's height is one as well.
constexpr std::int32_t kButtonHeight = 385;
constexpr std::int32_t kButtonWidth = 1200;
constexpr std::int32_t kToolWidth = 450;
constexpr std::int32_t kProgressHeight = 45;
// From the page's right edge to the left edges of the two buttons.
constexpr std::int32_t kCloseFromRight = 1300;
constexpr std::int32_t kPubListFromRight = 2600;

}  // namespace

BrowserLayout ArrangeBrowser(std::int32_t width, std::int32_t height, std::int32_t findHeight) {
  const std::int32_t pageBottom = std::max(height - kButtonHeight - 2 * kGap, findHeight);
  const std::int32_t top = pageBottom + kGap;
  BrowserLayout layout{};
  layout.find = {0, 0, width, findHeight};
  layout.page = {0, findHeight, width, pageBottom - findHeight};
  layout.progress = {0, pageBottom, width, kProgressHeight};
  std::int32_t left = kGap;
  for (TwipsRect* button : {&layout.back, &layout.forward, &layout.findButton, &layout.print}) {
    *button = {left, top, kToolWidth, kButtonHeight};
    left += kToolWidth;
  }
  layout.pubList = {width - kPubListFromRight, top, kButtonWidth, kButtonHeight};
  layout.close = {width - kCloseFromRight, top, kButtonWidth, kButtonHeight};
  const std::int32_t locationLeft = left + kGap;
  layout.location = {locationLeft, top, std::max(layout.pubList.left - kGap - locationLeft, 0),
                     kButtonHeight};
  return layout;
}

}  // namespace tessaly
