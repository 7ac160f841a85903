#include "app/window_reach.h"

#include <gtest/gtest.h>

namespace tessaly::test {
namespace {

const QRect kScreen(0, 20, 800, 580);
const QRect kRightScreen(800, 0, 1600, 1200);

TEST(WindowReachTest, AWindowWhoseTitleIsOnAScreenStaysAsItIs) {
  for (const QRect& window :
       {QRect(66, 66, 766, 466), QRect(0, 20, 3000, 2000), QRect(-600, 300, 700, 400),
        QRect(700, 300, 700, 400), QRect(-8, 12, 700, 400), QRect(300, 590, 700, 400)}) {
    EXPECT_EQ(WithinReach(window, {kScreen}), window) << window.left() << ' ' << window.top();
  }
}

TEST(WindowReachTest, AWindowOutOfReachIsMovedIntoTheScreenAndKeepsItsSize) {
  const QSize size(700, 400);
  EXPECT_EQ(WithinReach({{1500, 300}, size}, {kScreen}), QRect(QPoint(100, 170), size));
  EXPECT_EQ(WithinReach({{-601, 60}, size}, {kScreen}), QRect(QPoint(0, 60), size));
  EXPECT_EQ(WithinReach({{701, 60}, size}, {kScreen}), QRect(QPoint(100, 60), size));
  EXPECT_EQ(WithinReach({{50, -200}, size}, {kScreen}), QRect(QPoint(50, 20), size));
  EXPECT_EQ(WithinReach({{50, 591}, size}, {kScreen}), QRect(QPoint(50, 170), size));
}

TEST(WindowReachTest, AWindowThatWouldNotFitIsMadeSmallerWithRoomForItsTitle) {
  EXPECT_EQ(WithinReach({2000, 1500, 1200, 900}, {kScreen}), QRect(0, 20, 800, 550));
}

TEST(WindowReachTest, TheNearestScreenTakesIt) {
  const QList<QRect> screens{kScreen, kRightScreen};
  EXPECT_EQ(WithinReach({2600, 100, 700, 400}, screens), QRect(1700, 100, 700, 400));
  EXPECT_EQ(WithinReach({-900, 100, 700, 400}, screens), QRect(0, 100, 700, 400));
}

TEST(WindowReachTest, APlaceBeyondAllScreensIsNoHindrance) {
  EXPECT_EQ(WithinReach({16777215, -16777215, 700, 400}, {kScreen}), QRect(100, 20, 700, 400));
}

TEST(WindowReachTest, AWindowNarrowerThanAGripIsReachedByAllOfIt) {
  const QRect window(740, 60, 60, 400);
  EXPECT_EQ(WithinReach(window, {kScreen}), window);
}

TEST(WindowReachTest, WithoutAScreenItStays) {
  const QRect window(5000, 5000, 700, 400);
  EXPECT_EQ(WithinReach(window, {}), window);
}

}  // namespace
}  // namespace tessaly::test
