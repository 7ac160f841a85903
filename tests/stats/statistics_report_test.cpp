#include "stats/statistics_report.h"

#include <gtest/gtest.h>

#include "tests/support/program_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

QString Blanks(int count) {
  return QString(count, u' ');
}

class StatisticsReportTest : public ProgramTest {
protected:
  StatisticsReport Build() {
    program.Prepare();
    return BuildStatisticsReport(State(), program.Bank());
  }
};

TEST_F(StatisticsReportTest, ASectionRowStandsRightAligned) {
  EXPECT_EQ(SectionRow(u"2001"_s, u"Part I  "_s, {12, 9, 20, 15}),
            u"2001"_s + Blanks(4) + u"Part I  "_s + Blanks(5) + u"12"_s + Blanks(9) + u"9"_s +
                Blanks(9) + u"20"_s + Blanks(9) + u"15"_s + Blanks(9) + u"75%"_s);
}

TEST_F(StatisticsReportTest, ASubjectRowStandsLeftAligned) {
  EXPECT_EQ(SubjectRow(u"Alimony"_s, 5, 4),
            u"Alimony"_s + Blanks(60) + u"5"_s + Blanks(8) + u"4"_s + Blanks(11) + u"80%"_s);
  EXPECT_EQ(SubjectRow(u"Alimony"_s, 0, 4), std::nullopt);
}

TEST_F(StatisticsReportTest, ANameOfSixtySevenCharactersFitsAndALongerOneIsAnError) {
  EXPECT_EQ(SubjectRow(QString(67, u'x'), 1, 1)->indexOf(u'1'), 67);
  EXPECT_RUNTIME_ERROR(static_cast<void>(SubjectRow(QString(68, u'x'), 1, 1)),
                       ErrorNumber::InvalidProcedureCall);
}

TEST_F(StatisticsReportTest, WithoutAnswersItHoldsHeadingsZerosAndBlanks) {
  const QStringList lines = Build().Lines;
  QStringList expected{u""_s,
                       Blanks(12) + u"Statistics by Exam Section"_s,
                       u""_s,
                       u"Exam               Number   Number      Possible    Actual     Score"_s,
                       u"Year   Section     Asked    Correct      Score      Score    Percentage"_s,
                       u""_s};
  for (const QString& year : {u"2001"_s, u"2000"_s, u"1999"_s, u"1998"_s, u"1997"_s, u"1996"_s}) {
    for (const QString& part : {u"Part I  "_s, u"Part II "_s, u"Part III"_s, u"Part IV "_s}) {
      expected.append(year + Blanks(4) + part + Blanks(6) + u"0"_s + Blanks(9) + u"0"_s +
                      Blanks(10) + u"0"_s + Blanks(10) + u"0"_s + Blanks(10) + u"0%"_s);
    }
    expected.append(u""_s);
  }
  expected << u""_s << Blanks(12) + u"Statistics by Subject"_s << u""_s
           << Blanks(64) + u"Number    Number     Question"_s
           << u"Subject"_s + Blanks(57) + u"Asked     Correct   Percentage"_s << u""_s << u""_s;
  EXPECT_EQ(lines, expected);
}

TEST_F(StatisticsReportTest, EachModeReportsItsOwnFields) {
  bank.AddQuestions(u"00Part2"_s, 46, 46, TestBank::SubjectName(3), {u"C"_s, u"I"_s, u"P"_s, 1, 1});
  bank.RunOnAnswers(
      u"UPDATE SubjectStats SET TMAsked = 2, TMCorrect = 1, EMAsked = 3 WHERE "
      u"Subject = 'Subject 03'"_s);
  StatisticsReport report = Build();
  EXPECT_EQ(report.Caption, u"Tutorial Mode Statistics"_s);
  EXPECT_TRUE(report.Lines.contains(SectionRow(u"2000"_s, u"Part II "_s, {1, 1, 3, 3})));
  EXPECT_TRUE(report.Lines.contains(*SubjectRow(u"Subject 03"_s, 2, 1)));
  Choose(u"Mode"_s, u"1"_s);
  report = Build();
  EXPECT_EQ(report.Caption, u"Evaluation Mode Statistics"_s);
  EXPECT_TRUE(report.Lines.contains(SectionRow(u"2000"_s, u"Part II "_s, {1, 0, 3, 0})));
  EXPECT_TRUE(report.Lines.contains(*SubjectRow(u"Subject 03"_s, 3, 0)));
}

TEST_F(StatisticsReportTest, ThePrintBlocksIndentTheRowsAndEndThemWithLineBreaks) {
  const PrintBlocks blocks = Build().Blocks;
  EXPECT_EQ(blocks.PrintTitle, Blanks(5) + u"Tessaly - 2002 Edition"_s + Blanks(45) +
                                   u"Study Software for the Special Enrollment Exam"_s);
  EXPECT_EQ(blocks.PrintModeHeading,
            u"\r\n\r\n"_s + Blanks(10) + u"Tutorial Mode Statistics\r\n"_s);
  EXPECT_TRUE(blocks.PrintSectionHeader.startsWith(Blanks(8) + u"Exam"_s));
  EXPECT_EQ(blocks.PrintSectionHeader.count(u"\r\n"_s), 2);
  EXPECT_EQ(blocks.PrintSectionRows.count(u"\r\n"_s), 24);
  EXPECT_EQ(blocks.PrintSubjectHeader.count(u"\r\n"_s), 2);
  EXPECT_EQ(blocks.PrintSubjectRows, u""_s);
}

TEST_F(StatisticsReportTest, TheStudySelectionStaysAsItWas) {
  Choose(u"Exam"_s, u"2"_s);
  Choose(u"Section"_s, u"1"_s);
  static_cast<void>(Build());
  EXPECT_EQ(State().Selection.Exam, 2);
  EXPECT_EQ(State().Selection.Section, 1);
}

TEST_F(StatisticsReportTest, AMissingTableEndsTheReport) {
  bank.RunOnAnswers(u"DROP TABLE \"97Part3\""_s);
  EXPECT_RUNTIME_ERROR(static_cast<void>(Build()), ErrorNumber::TableNotFound);
}

TEST_F(StatisticsReportTest, TheChartsFiguresAreThoseOfTheRows) {
  bank.AddQuestions(u"01Part1"_s, 1, 4, TestBank::SubjectName(3), {u"C"_s, u"U"_s, u"P"_s, 1, 1});
  bank.AddQuestions(u"01Part1"_s, 5, 8, TestBank::SubjectName(3), {u"I"_s, u"U"_s, u"F"_s, 1, 0});
  const StatisticsReport report = Build();
  ASSERT_EQ(report.Sections.size(), 24U);
  EXPECT_EQ(report.Sections[0].Name, u"2001 Part I"_s);
  EXPECT_EQ(report.Sections[0].Asked, 8);
  EXPECT_EQ(report.Sections[0].Score, 50);
  EXPECT_TRUE(report.Subjects.empty());
}

}  // namespace
}  // namespace tessaly::test
