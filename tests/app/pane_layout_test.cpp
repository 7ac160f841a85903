#include "app/pane_layout.h"

#include <gtest/gtest.h>

namespace tessaly {

static bool operator==(const TwipsRect& a, const TwipsRect& b) {
  return a.left == b.left && a.top == b.top && a.width == b.width && a.height == b.height;
}

namespace test {
namespace {

constexpr std::int32_t kToolbar = 5000;

TEST(PaneLayoutTest, AnUnansweredQuestionHasBothPanes) {
  const PaneLayout layout = ArrangePanes(11500, 6540, kToolbar, false, false);
  EXPECT_EQ(layout.paneHeight, 2500);
  EXPECT_EQ(layout.paneWidth, 9900);
  EXPECT_EQ(layout.rightWrong, (TwipsRect{1200, 120, 9900, 435}));
  EXPECT_EQ(layout.question, (TwipsRect{1200, 540, 9900, 5000}));
}

TEST(PaneLayoutTest, AnAnsweredQuestionSharesTheHeightWithItsExplanation) {
  const PaneLayout layout = ArrangePanes(11500, 6540, kToolbar, true, false);
  EXPECT_EQ(layout.question, (TwipsRect{1200, 540, 9900, 2500}));
  EXPECT_EQ(layout.answer, (TwipsRect{1200, 3040, 9900, 2500}));
}

TEST(PaneLayoutTest, WhatStandsThereWithoutAQuestionIsWholeWhateverWasAnswered) {
  for (const bool answered : {false, true}) {
    EXPECT_EQ(ArrangePanes(11500, 6540, kToolbar, answered, false).welcome,
              (TwipsRect{1200, 540, 9900, 5000}));
  }
}

TEST(PaneLayoutTest, ButtonsStandAboveTheLowerEdge) {
  const PaneLayout layout = ArrangePanes(11500, 6540, kToolbar, false, false);
  EXPECT_EQ(layout.answerButtons[0], (TwipsRect{1560, 5680, 1200, 375}));
  EXPECT_EQ(layout.answerButtons[1], (TwipsRect{3000, 5680, 1200, 375}));
  EXPECT_EQ(layout.answerButtons[2], (TwipsRect{4440, 5680, 1200, 375}));
  EXPECT_EQ(layout.answerButtons[3], (TwipsRect{5880, 5680, 1200, 375}));
  EXPECT_EQ(layout.skip, (TwipsRect{7320, 5680, 1200, 375}));
  EXPECT_EQ(layout.hintLink, (TwipsRect{8760, 5680, 2500, 375}));
}

TEST(PaneLayoutTest, SkipTakesThePlaceOfCForATrueFalseQuestion) {
  EXPECT_EQ(ArrangePanes(11500, 6540, kToolbar, false, true).skip,
            (TwipsRect{4440, 5680, 1200, 375}));
}

TEST(PaneLayoutTest, AHalfTwipIsRoundedToEven) {
  EXPECT_EQ(ArrangePanes(11500, 1540 + 5, kToolbar, false, false).paneHeight, 2);
  EXPECT_EQ(ArrangePanes(11500, 1540 + 7, kToolbar, false, false).paneHeight, 4);
}

TEST(PaneLayoutTest, AWindowTooSmallForThePanesStillGivesThemASize) {
  const PaneLayout layout = ArrangePanes(1000, 940, kToolbar, false, false);
  EXPECT_EQ(layout.paneHeight, 300);
  EXPECT_EQ(layout.paneWidth, 600);
}

TEST(PaneLayoutTest, TheCoolBarFollowsTheToolbarAsLongAsThereIsRoom) {
  EXPECT_EQ(ArrangePanes(11500, 6540, 5000, false, false).coolBarHeight, 5060);
  EXPECT_EQ(ArrangePanes(11500, 6540, 5939, false, false).coolBarHeight, 5999);
  EXPECT_EQ(ArrangePanes(11500, 6540, 5940, false, false).coolBarHeight, 5940);
  EXPECT_EQ(ArrangePanes(11500, 6540, 9000, false, false).coolBarHeight, 5940);
}

}  // namespace
}  // namespace test
}  // namespace tessaly
