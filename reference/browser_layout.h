#ifndef TESSALY_REFERENCE_BROWSER_LAYOUT_H_
#define TESSALY_REFERENCE_BROWSER_LAYOUT_H_

#include "app/pane_layout.h"

namespace tessaly {

// Where the reference browser's controls stand, in twips from the upper left corner of its window:
// the page, above it the bar to find a text where that is shown, and below it a bar that begins
// with the way back and ends with the two buttons.
struct BrowserLayout {
  TwipsRect find;
  TwipsRect page;
  TwipsRect progress;  // along the page's lower edge
  TwipsRect back;
  TwipsRect forward;
  TwipsRect findButton;
  TwipsRect print;
  TwipsRect location;
  TwipsRect pubList;
  TwipsRect close;
};

// `findHeight` is what the bar to find a text takes, 0 where it is hidden.
[[nodiscard]] BrowserLayout ArrangeBrowser(std::int32_t width, std::int32_t height,
                                           std::int32_t findHeight);

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_BROWSER_LAYOUT_H_
