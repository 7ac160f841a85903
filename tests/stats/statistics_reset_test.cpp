#include "stats/statistics_reset.h"

#include <gtest/gtest.h>

#include "stats/reset_texts.h"
#include "tests/support/program_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class RecordingView : public ResetView {
public:
  void SetBusyPointer(bool busy) override { busyPointer = busy; }
  void ShowProgress() override { progressShown = true; }
  void ShowStatistics() override { statisticsShown = true; }
  void UnloadForms() override { unloaded = true; }

  bool busyPointer = false;
  bool progressShown = false;
  bool statisticsShown = false;
  bool unloaded = false;
};

class StatisticsResetTest : public ProgramTest {
protected:
  StatisticsResetTest() {
    for (const QString& table : {u"01Part1"_s, u"01Part2"_s, u"00Part1"_s, u"96Part4"_s}) {
      bank.AddQuestions(table, 1, 2, TestBank::SubjectName(1), answered);
      bank.AddQuestions(table, 3, 3, TestBank::SubjectName(2), answered);
    }
    bank.RunOnAnswers(
        u"UPDATE SubjectStats SET TMAsked = 4, TMCorrect = 3, EMAsked = 2, "
        u"EMCorrect = 1"_s);
    for (const QString& section : {u"TTimer/"_s, u"ETimer/"_s}) {
      for (int year = 1996; year <= 2001; ++year) {
        for (int part = 0; part < 4; ++part) {
          settings.values[section + NamedTimerKey(year, part)] = u"60"_s;
        }
      }
    }
  }

  void Run(const ResetChoices& choices) {
    program.Prepare();
    StatisticsReset reset(State(), settings, program.Bank(), boxes, resetView);
    reset.Run(choices);
  }
  [[nodiscard]] QString Row(const QString& table, int no = 1) { return bank.StatusRow(table, no); }
  [[nodiscard]] int TimersLeft(const QString& section) const {
    int left = 0;
    for (auto it = settings.values.begin(); it != settings.values.end(); ++it) {
      left += it.key().startsWith(section) ? 1 : 0;
    }
    return left;
  }
  [[nodiscard]] static QString Titled(const QString& text) {
    return u"Tessaly Statistics|"_s + text;
  }

  const TestStatus answered{u"C"_s, u"I"_s, u"F"_s, 2, 1};
  RecordingView resetView;
};

TEST_F(StatisticsResetTest, ChoosingNothingSaysSoAndUnloads) {
  Run({});
  EXPECT_EQ(boxes.shown, QStringList{Titled(u"No statistics were selected to be deleted."_s)});
  EXPECT_TRUE(resetView.unloaded);
  EXPECT_FALSE(resetView.busyPointer);
}

TEST_F(StatisticsResetTest, ResettingAllClearsEverythingButOneTimer) {
  Run({.ResetAll = true});
  EXPECT_EQ(boxes.shown,
            (QStringList{Titled(u"Are you sure you wish to reset all statistics?\rThis will reset "
                                u"all statistics and timer settings."_s),
                         Titled(u"All study statistics have been deleted."_s)}));
  for (const QString& table : {u"01Part1"_s, u"01Part2"_s, u"00Part1"_s, u"96Part4"_s}) {
    EXPECT_EQ(Row(table), u"U U U 2 1"_s);
  }
  EXPECT_EQ(bank.SubjectRow(TestBank::SubjectName(86)), u"0 0 0 0"_s);
  EXPECT_EQ(State().Subjects.SubjectAsked[1], 0);
  EXPECT_EQ(TimersLeft(u"TTimer"_s), 0);
  EXPECT_EQ(TimersLeft(u"ETimer"_s), 1);
  EXPECT_TRUE(settings.values.contains(u"ETimer/2001 Examination - Part IV"_s));
  EXPECT_TRUE(resetView.progressShown);
}

TEST_F(StatisticsResetTest, ANoEndsTheClickAndBringsTheStatisticsBack) {
  boxes.answers = {BoxAnswer::No};
  Run({.ResetAll = true});
  EXPECT_EQ(boxes.shown.size(), 1);
  EXPECT_TRUE(resetView.statisticsShown);
  EXPECT_FALSE(resetView.unloaded);
  EXPECT_FALSE(resetView.busyPointer);
  EXPECT_EQ(Row(u"01Part1"_s), u"C I F 2 1"_s);
}

TEST_F(StatisticsResetTest, ANoHalfWayKeepsWhatWasDoneAndShowsNoReport) {
  boxes.answers = {BoxAnswer::Yes, BoxAnswer::No};
  Run({.Tutorial = ResetScope::CurrentSection, .Evaluation = ResetScope::AllExams});
  EXPECT_EQ(boxes.shown.size(), 2);
  EXPECT_EQ(Row(u"01Part1"_s), u"U I F 2 1"_s);
  EXPECT_EQ(TimersLeft(u"ETimer"_s), 24);
}

TEST_F(StatisticsResetTest, ASectionResetNamesTheYearBeforeAndDeletesItsTimer) {
  Choose(u"Section"_s, u"1"_s);
  Run({.Tutorial = ResetScope::CurrentSection});
  EXPECT_EQ(
      boxes.shown,
      (QStringList{
          Titled(u"Reset 2000 Tutorial Mode timer and statistics for the current section?"_s),
          Titled(
              u"All Tutorial Mode statistics for Part 2 of the 2000 exam have been deleted"_s)}));
  EXPECT_EQ(Row(u"01Part2"_s), u"U I F 2 1"_s);
  EXPECT_EQ(Row(u"01Part1"_s), u"C I F 2 1"_s);
  EXPECT_FALSE(settings.values.contains(u"TTimer/2000 Examination - Part II"_s));
  EXPECT_TRUE(settings.values.contains(u"TTimer/2001 Examination - Part II"_s));
}

TEST_F(StatisticsResetTest, TheStudyModesCodesAreClearedWhicheverGroupWasChosen) {
  Choose(u"Mode"_s, u"1"_s);
  Run({.Tutorial = ResetScope::CurrentSection});
  EXPECT_EQ(Row(u"01Part1"_s), u"C U F 2 1"_s);
  EXPECT_FALSE(settings.values.contains(u"TTimer/2000 Examination - Part I"_s));
  EXPECT_EQ(TimersLeft(u"ETimer"_s), 24);
}

TEST_F(StatisticsResetTest, TwoResetsShowTheReportOfTheLast) {
  Choose(u"Year"_s, u"01"_s);
  Run({.Tutorial = ResetScope::CurrentSection, .Evaluation = ResetScope::CurrentExam});
  EXPECT_EQ(boxes.shown.last(),
            Titled(u"All Evaluation Mode statistics for the 2000 exam have been deleted"_s));
  EXPECT_EQ(boxes.shown.size(), 3);
  EXPECT_EQ(TimersLeft(u"ETimer"_s), 20);
}

TEST_F(StatisticsResetTest, AnExamResetOnAFirstStartEndsInTheDatabasesError) {
  EXPECT_RUNTIME_ERROR(Run({.Tutorial = ResetScope::CurrentExam}), ErrorNumber::TableNotFound);
  EXPECT_FALSE(resetView.busyPointer);
}

TEST_F(StatisticsResetTest, TheOldestExamIsResetWithoutAWord) {
  Choose(u"Exam"_s, u"5"_s);
  Choose(u"Section"_s, u"3"_s);
  Choose(u"Year"_s, u"96"_s);
  Run({.Tutorial = ResetScope::CurrentExam});
  EXPECT_EQ(boxes.shown, QStringList{Titled(u"No statistics were selected to be deleted."_s)});
  EXPECT_EQ(Row(u"96Part4"_s), u"U I F 2 1"_s);
  EXPECT_EQ(TimersLeft(u"TTimer"_s), 24);
}

TEST_F(StatisticsResetTest, AllExamsClearTheModesTimersAndSubjects) {
  Run({.Evaluation = ResetScope::AllExams});
  EXPECT_EQ(
      boxes.shown,
      (QStringList{Titled(u"Reset ALL EVALUATION MODE timers and statistics?"_s),
                   Titled(u"All Evaluation Mode statistics for all exams have been deleted"_s)}));
  EXPECT_EQ(bank.SubjectRow(TestBank::SubjectName(0)), u"4 3 0 0"_s);
  EXPECT_EQ(TimersLeft(u"TTimer"_s), 24);
  EXPECT_EQ(Row(u"96Part4"_s), u"U I F 2 1"_s);
}

TEST_F(StatisticsResetTest, MissedQuestionsClearPassFailOnly) {
  Run({.AllDifficult = true});
  EXPECT_EQ(
      boxes.shown,
      (QStringList{Titled(u"Reset statistics for ALL QUESTIONS PREVIOUSLY MISSED?"_s),
                   Titled(u"Statistics for all questions previously missed have been deleted"_s)}));
  EXPECT_EQ(Row(u"00Part1"_s), u"C I U 2 1"_s);
}

TEST_F(StatisticsResetTest, ASubjectResetConcernsItsQuestionsInEveryTable) {
  Choose(u"Method"_s, u"1"_s);
  Choose(u"Subject"_s, TestBank::SubjectName(1));
  settings.values[u"SubjectStatsT/Subject 01Asked"_s] = u"4"_s;
  Run({.Tutorial = ResetScope::CurrentSubject});
  EXPECT_EQ(
      boxes.shown,
      (QStringList{
          Titled(u"Reset all Subject 01 questions?"_s),
          Titled(u"All Tutorial Mode statistics concerning Subject 01 have been deleted."_s)}));
  EXPECT_EQ(Row(u"96Part4"_s, 2), u"U I F 2 1"_s);
  EXPECT_EQ(Row(u"96Part4"_s, 3), u"C I F 2 1"_s);
  EXPECT_FALSE(settings.values.contains(u"SubjectStatsT/Subject 01Asked"_s));
}

TEST_F(StatisticsResetTest, AllSubjectsOfAModeHaveTheirOwnTexts) {
  Choose(u"Method"_s, u"1"_s);
  Run({.Tutorial = ResetScope::AllSubjects, .Evaluation = ResetScope::AllSubjects});
  EXPECT_EQ(boxes.shown,
            (QStringList{Titled(u"Reset ALL TUTORIAL MODE STUDY BY SUBJECT statistics?"_s),
                         Titled(u"Reset ALL EVALUATION MODE STUDY BY SUBJECT statistics?"_s),
                         Titled(u"All Evaluation Mode Study by Subject statistics have been "
                                u"deleted."_s)}));
}

TEST_F(StatisticsResetTest, TickingMissedQuestionsAsksAndKeepsGoing) {
  program.Prepare();
  StatisticsReset reset(State(), settings, program.Bank(), boxes, resetView);
  boxes.answers = {BoxAnswer::No};
  reset.ConfirmAllDifficult();
  EXPECT_EQ(boxes.shown,
            QStringList{Titled(u"Reset ALL statistics regarding missed questions?"_s)});
  EXPECT_TRUE(resetView.statisticsShown);
}

TEST(ResetTextsTest, TheExamQuestionNamesTheNewestYearForTheExamBefore) {
  EXPECT_EQ(ExamQuestion(kTutorialMode, 1999),
            u"Reset 2000 Tutorial Mode timers and statistics?"_s);
  EXPECT_EQ(ExamReport(kTutorialMode, 1999),
            u"All Tutorial Mode statistics for the 1999 exam have been deleted"_s);
  EXPECT_EQ(ExamQuestion(kEvaluationMode, 1999),
            u"Reset 1999 Evaluation Mode timers and statistics?"_s);
  for (const int year : {2000, 1998, 1997, 1996}) {
    EXPECT_EQ(ExamQuestion(kTutorialMode, year),
              u"Reset %1 Tutorial Mode timers and statistics?"_s.arg(year));
  }
}

TEST(ResetTextsTest, EveryExamButTheOldestNamesTheYearBeforeItsOwn) {
  EXPECT_EQ(NamedYear(0), 2000);
  EXPECT_EQ(NamedYear(4), 1996);
  EXPECT_EQ(NamedYear(5), std::nullopt);
}

}  // namespace
}  // namespace tessaly::test
