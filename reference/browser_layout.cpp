#include "reference/browser_layout.h"

#include <algorithm>

namespace tessaly {

namespace {

constexpr std::int32_t kGap = 100;
// With the gaps a whole number of pixels, so that the page's height is one as well.
constexpr std::int32_t kButtonHeight = 385;
constexpr std::int32_t kButtonWidth = 1200;
constexpr std::int32_t kArrowWidth = 450;
constexpr std::int32_t kProgressHeight = 45;
// From the page's right edge to the left edges of the two buttons.
constexpr std::int32_t kCloseFromRight = 1300;
constexpr std::int32_t kPubListFromRight = 2600;

}  // namespace

BrowserLayout ArrangeBrowser(std::int32_t width, std::int32_t height) {
  const std::int32_t pageHeight = std::max(height - kButtonHeight - 2 * kGap, 0);
  const std::int32_t top = pageHeight + kGap;
  BrowserLayout layout{};
  layout.page = {0, 0, width, pageHeight};
  layout.progress = {0, pageHeight, width, kProgressHeight};
  layout.back = {kGap, top, kArrowWidth, kButtonHeight};
  layout.forward = {kGap + kArrowWidth, top, kArrowWidth, kButtonHeight};
  layout.pubList = {width - kPubListFromRight, top, kButtonWidth, kButtonHeight};
  layout.close = {width - kCloseFromRight, top, kButtonWidth, kButtonHeight};
  const std::int32_t locationLeft = layout.forward.left + kArrowWidth + kGap;
  layout.location = {locationLeft, top, std::max(layout.pubList.left - kGap - locationLeft, 0),
                     kButtonHeight};
  return layout;
}

}  // namespace tessaly
