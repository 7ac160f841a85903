#ifndef TESSALY_APP_PANE_LAYOUT_H_
#define TESSALY_APP_PANE_LAYOUT_H_

#include <cstdint>

namespace tessaly {

// Where the main window's controls stand, in twips from the upper left corner of the client area
// (below the menu bar, the status bar within it). A function of the window's size alone.

struct TwipsRect {
  std::int32_t left;
  std::int32_t top;
  std::int32_t width;
  std::int32_t height;
};

struct PaneLayout {
  std::int32_t paneHeight;  // of one of the two panes
  std::int32_t paneWidth;
  std::int32_t coolBarHeight;
  TwipsRect rightWrong;
  TwipsRect question;
  TwipsRect welcome;  // in place of both panes while no session runs
  TwipsRect answer;   // used once the question has been answered
  TwipsRect answerButtons[4];
  TwipsRect skip;
  TwipsRect hintLink;
};

inline constexpr std::int32_t kNavigationBarWidth = 1200;

// `toolbarHeight` is the height that the toolbar's buttons need.
[[nodiscard]] PaneLayout ArrangePanes(std::int32_t scaleWidth, std::int32_t scaleHeight,
                                      std::int32_t toolbarHeight, bool answered, bool trueFalse);

}  // namespace tessaly

#endif  // TESSALY_APP_PANE_LAYOUT_H_
