#include "stats/section_statistics.h"

#include <gtest/gtest.h>

#include "catalogue/study_selection.h"
#include "store/runtime_error.h"
#include "tests/support/printers.h"
#include "tests/support/test_bank.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

const QString kTable = u"01Part1"_s;

// A tally as "asked correct possible actual score".
QString TextOf(const SectionTally& tally) {
  return u"%1 %2 %3 %4 %5"_s.arg(tally.Asked)
      .arg(tally.Correct)
      .arg(tally.Possible)
      .arg(tally.Actual)
      .arg(SectionScore(tally));
}

class SectionStatisticsTest : public ::testing::Test {
protected:
  void Put(int no, const QString& tutorialMode, const QString& evalMode = u"U"_s) {
    bank.RunOnAnswers(u"INSERT INTO \"01Part1\" VALUES (?, ?, ?, 'F', 9, 9)"_s,
                      {no, tutorialMode, evalMode});
  }
  // `rows` questions with the number 46, three points each, answered correctly.
  void PutMany(int rows) {
    bank.RunOnAnswers(
        u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?) "
        u"INSERT INTO \"01Part1\" SELECT 46, 'C', 'U', 'P', 1, 1 FROM n"_s,
        {rows});
  }
  [[nodiscard]] SectionTally Count(int section = 0, std::uint8_t mode = kTutorialMode,
                                   const QString& table = kTable) {
    return CountSectionStats(
        workspace.OpenDatabase(bank.Paths().AnswersDbPath, bank.Paths().DbConnect), table, section,
        mode);
  }

  TestBank bank;
  Workspace workspace;
};

TEST_F(SectionStatisticsTest, AQuestionWeighsByItsNumberAndItsPart) {
  struct Case {
    int no;
    int parts1To3;
    int part4;
  };
  const Case cases[] = {{1, 1, 1},     {20, 1, 1}, {21, 2, 1}, {40, 2, 1}, {41, 2, 2},
                        {45, 2, 2},    {46, 3, 2}, {80, 3, 2}, {81, 0, 0}, {82, 0, 0},
                        {32767, 0, 0}, {0, 1, 1},  {-5, 1, 1}};
  for (const auto& [no, parts1To3, part4] : cases) {
    SCOPED_TRACE(no);
    for (const int section : {0, 1, 2}) {
      EXPECT_EQ(QuestionWeight(section, no), parts1To3);
    }
    EXPECT_EQ(QuestionWeight(3, no), part4);
    EXPECT_EQ(QuestionWeight(-1, no), 0);
    EXPECT_EQ(QuestionWeight(4, no), 0);
  }
}

TEST_F(SectionStatisticsTest, AnEmptyTableAndOneWithoutAnswersCountNothing) {
  EXPECT_EQ(TextOf(Count()), u"0 0 0 0 0"_s);
  Put(1, u"U"_s);
  Put(46, u"U"_s);
  EXPECT_EQ(TextOf(Count()), u"0 0 0 0 0"_s);
}

TEST_F(SectionStatisticsTest, ACorrectAnswerCountsItsPointsTwice) {
  Put(46, u"C"_s);
  EXPECT_EQ(TextOf(Count()), u"1 1 3 3 100"_s);
  EXPECT_EQ(TextOf(Count(3)), u"1 1 2 2 100"_s);
}

TEST_F(SectionStatisticsTest, AnyOtherStatusCountsAsAskedOnly) {
  for (const QString& status : {u"I"_s, u"c"_s, u"u"_s, u"F"_s, u"CC"_s, u""_s}) {
    Put(21, status);
  }
  EXPECT_EQ(TextOf(Count()), u"6 0 12 0 0"_s);
}

TEST_F(SectionStatisticsTest, ANumberAboveEightyCountsWithoutPoints) {
  Put(81, u"C"_s);
  Put(500, u"I"_s);
  EXPECT_EQ(TextOf(Count()), u"2 1 0 0 0"_s);
}

TEST_F(SectionStatisticsTest, OnlyTheModesOwnStatusCounts) {
  Put(1, u"C"_s, u"U"_s);
  Put(46, u"U"_s, u"I"_s);
  Put(47, u"I"_s, u"C"_s);
  EXPECT_EQ(TextOf(Count(0, kTutorialMode)), u"2 1 4 1 25"_s);
  EXPECT_EQ(TextOf(Count(0, kEvaluationMode)), u"2 1 6 3 50"_s);
  EXPECT_EQ(TextOf(Count(0, 2)), u"0 0 0 0 0"_s);
}

TEST_F(SectionStatisticsTest, TheScoreIsRoundedHalfToEven) {
  struct Case {
    std::int16_t actual;
    std::int16_t possible;
    int score;
  };
  const Case cases[] = {{5, 8, 62},  {7, 8, 88},  {1, 3, 33}, {2, 3, 67}, {1, 200, 0},
                        {3, 200, 2}, {8, 8, 100}, {0, 8, 0},  {1, 0, 0},  {1, -1, 0}};
  for (const auto& [actual, possible, score] : cases) {
    EXPECT_EQ(Percentage(actual, possible), score) << actual << " of " << possible;
    EXPECT_EQ(SectionScore({9, 9, possible, actual}), score);
  }
  EXPECT_RUNTIME_ERROR(static_cast<void>(Percentage(32767, 1)), ErrorNumber::Overflow);
}

TEST_F(SectionStatisticsTest, ASumBeyondSixteenBitsStopsTheCountAndKeepsIt) {
  PutMany(10922);
  EXPECT_EQ(TextOf(Count()), u"10922 10922 32766 32766 100"_s);
  PutMany(5);
  const SectionTally tally = Count();
  EXPECT_EQ(tally.Asked, 10923);
  EXPECT_EQ(tally.Correct, 10922);
  EXPECT_EQ(tally.Possible, 32766);
  EXPECT_EQ(tally.Actual, 32766);
}

TEST_F(SectionStatisticsTest, MoreRowsThanASixteenBitCounterHoldsOverflow) {
  PutMany(32768);
  EXPECT_RUNTIME_ERROR(static_cast<void>(Count()), ErrorNumber::Overflow);
}

TEST_F(SectionStatisticsTest, AMissingTableOrANumberThatIsNoneIsAnError) {
  EXPECT_RUNTIME_ERROR(static_cast<void>(Count(0, kTutorialMode, u"95Part1"_s)),
                       ErrorNumber::TableNotFound);
  bank.RunOnAnswers(u"INSERT INTO \"01Part1\" VALUES ('one', 'C', 'U', 'P', 1, 1)"_s);
  EXPECT_RUNTIME_ERROR(static_cast<void>(Count()), ErrorNumber::TypeMismatch);
}

TEST_F(SectionStatisticsTest, CountingLeavesTheFileAsItWas) {
  Put(1, u"C"_s);
  static_cast<void>(Count());
  EXPECT_EQ(bank.StatusRow(kTable, 1), u"C U F 9 9"_s);
}

}  // namespace
}  // namespace tessaly::test
