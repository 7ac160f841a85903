#include "app/pane_layout.h"

#include <cmath>

#include "store/conversions.h"

namespace tessaly {

namespace {

constexpr std::int32_t kPaneLeft = kNavigationBarWidth;
constexpr std::int32_t kFeedbackTop = 120;
constexpr std::int32_t kFeedbackHeight = 435;
constexpr std::int32_t kPaneTop = 540;
constexpr std::int32_t kHeightOfTheRest = 1540;
constexpr std::int32_t kWidthOfTheRest = 1600;
constexpr std::int32_t kButtonsAboveBottom = 860;
constexpr std::int32_t kButtonWidth = 1200;
constexpr std::int32_t kButtonHeight = 375;
constexpr std::int32_t kFirstButtonLeft = 1560;
constexpr std::int32_t kButtonStep = 1440;
constexpr std::int32_t kHintLeft = 8760;
constexpr std::int32_t kHintWidth = 2500;
constexpr std::int32_t kBelowCoolBar = 600;
constexpr std::int32_t kCoolBarBorder = 60;

// A window smaller than what surrounds the panes still gets panes with a size; they overlap the
// buttons then.
std::int32_t RoundedAmount(double value) {
  return RoundToLong(std::abs(value));
}

std::int32_t CoolBarHeight(std::int32_t scaleHeight, std::int32_t toolbarHeight) {
  return scaleHeight - kBelowCoolBar <= toolbarHeight ? scaleHeight - kBelowCoolBar
                                                      : toolbarHeight + kCoolBarBorder;
}

}  // namespace

PaneLayout ArrangePanes(std::int32_t scaleWidth, std::int32_t scaleHeight,
                        std::int32_t toolbarHeight, bool answered, bool trueFalse) {
  PaneLayout layout{};
  layout.paneHeight = RoundedAmount((scaleHeight - kHeightOfTheRest) / 2.0);
  layout.paneWidth = RoundedAmount(scaleWidth - kWidthOfTheRest);
  layout.coolBarHeight = CoolBarHeight(scaleHeight, toolbarHeight);
  layout.rightWrong = {kPaneLeft, kFeedbackTop, layout.paneWidth, kFeedbackHeight};
  layout.question = {kPaneLeft, kPaneTop, layout.paneWidth,
                     answered ? layout.paneHeight : 2 * layout.paneHeight};
  layout.welcome = {kPaneLeft, kPaneTop, layout.paneWidth, 2 * layout.paneHeight};
  layout.answer = {kPaneLeft, layout.paneHeight + kPaneTop, scaleWidth - kWidthOfTheRest,
                   layout.paneHeight};
  const std::int32_t buttonsTop = scaleHeight - kButtonsAboveBottom;
  for (std::int32_t i = 0; i < 4; ++i) {
    layout.answerButtons[i] = {kFirstButtonLeft + i * kButtonStep, buttonsTop, kButtonWidth,
                               kButtonHeight};
  }
  // A True/False question leaves the places of C and D free.
  const std::int32_t skipPlace = trueFalse ? 2 : 4;
  layout.skip = {kFirstButtonLeft + skipPlace * kButtonStep, buttonsTop, kButtonWidth,
                 kButtonHeight};
  layout.hintLink = {kHintLeft, buttonsTop, kHintWidth, kButtonHeight};
  return layout;
}

}  // namespace tessaly
