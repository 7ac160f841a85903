#include "reference/browser_layout.h"

#include <gtest/gtest.h>

#include <array>

namespace tessaly::test {
namespace {

struct Size {
  int width;
  int height;
};

constexpr std::array kSizes{Size{14400, 11400}, Size{7200, 4800}, Size{28800, 15000}};

TEST(BrowserLayoutTest, TheButtonsStandBelowThePageAndLeftOfItsRightEdge) {
  for (const Size& size : kSizes) {
    const BrowserLayout layout = ArrangeBrowser(size.width, size.height, 0);
    const int right = layout.page.left + layout.page.width;
    const int bottom = layout.page.top + layout.page.height;
    EXPECT_EQ(layout.close.top, bottom + 100);
    EXPECT_EQ(layout.pubList.top, bottom + 100);
    EXPECT_EQ(layout.close.left, right - 1300);
    EXPECT_EQ(layout.pubList.left, right - 2600);
  }
}

TEST(BrowserLayoutTest, EverythingFitsIntoTheWindowWithoutOverlapping) {
  for (const Size& size : kSizes) {
    const BrowserLayout layout = ArrangeBrowser(size.width, size.height, 500);
    EXPECT_EQ(layout.find.height, 500);
    EXPECT_EQ(layout.page.top, 500);
    EXPECT_LE(layout.page.top + layout.page.height, layout.progress.top);
    EXPECT_LE(layout.findButton.left + layout.findButton.width, layout.print.left);
    EXPECT_LE(layout.print.left + layout.print.width, layout.location.left);
    EXPECT_EQ(layout.page.width, size.width);
    EXPECT_LE(layout.close.left + layout.close.width, size.width);
    EXPECT_LT(layout.close.top + layout.close.height, size.height);
    EXPECT_LE(layout.pubList.left + layout.pubList.width, layout.close.left);
    EXPECT_LE(layout.location.left + layout.location.width, layout.pubList.left);
    EXPECT_LE(layout.forward.left + layout.forward.width, layout.findButton.left);
    EXPECT_LE(layout.back.left + layout.back.width, layout.forward.left);
    EXPECT_LE(layout.progress.top + layout.progress.height, layout.close.top);
  }
}

TEST(BrowserLayoutTest, ATinyWindowHasNoNegativeSizes) {
  const BrowserLayout layout = ArrangeBrowser(0, 0, 500);
  EXPECT_EQ(layout.page.height, 0);
  EXPECT_EQ(layout.location.width, 0);
}

}  // namespace
}  // namespace tessaly::test
