#include "stats/subject_statistics.h"

#include <gtest/gtest.h>

#include "store/runtime_error.h"
#include "tests/support/printers.h"
#include "tests/support/test_bank.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class SubjectStatisticsTest : public ::testing::Test {
protected:
  void Load(std::uint8_t mode = kTutorialMode) {
    LoadSubjectStats(workspace, bank.Paths(), mode, subjects);
  }

  TestBank bank;
  Workspace workspace;
  SubjectStatistics subjects;
};

TEST_F(SubjectStatisticsTest, TheSubjectsAreReadInStoredOrder) {
  bank.RunOnAnswers(u"UPDATE SubjectStats SET Subject = 'Aliens' WHERE Subject = 'Subject 85'"_s);
  Load();
  EXPECT_EQ(subjects.SubjectName.at(0), u"Subject 00"_s);
  EXPECT_EQ(subjects.SubjectName.at(85), u"Aliens"_s);
  EXPECT_EQ(subjects.SubjectName.at(86), u"Subject 86"_s);
  EXPECT_EQ(subjects.SubjectName.at(kUnknownSubject), QString());
}

TEST_F(SubjectStatisticsTest, EachModeHasColumnsOfItsOwn) {
  bank.RunOnAnswers(
      u"UPDATE SubjectStats SET TMAsked = 1, TMCorrect = 2, EMAsked = 3, "
      u"EMCorrect = 4 WHERE Subject = 'Subject 07'"_s);
  Load(kTutorialMode);
  EXPECT_EQ(subjects.SubjectAsked.at(7), 1);
  EXPECT_EQ(subjects.SubjectCorrect.at(7), 2);
  Load(kEvaluationMode);
  EXPECT_EQ(subjects.SubjectAsked.at(7), 3);
  EXPECT_EQ(subjects.SubjectCorrect.at(7), 4);
  EXPECT_EQ(subjects.SubjectAsked.at(6), 0);
  EXPECT_EQ(ColumnsOfMode(kTutorialMode).asked, u"TMAsked"_s);
  EXPECT_EQ(ColumnsOfMode(kEvaluationMode).correct, u"EMCorrect"_s);
}

TEST_F(SubjectStatisticsTest, RowsBeyondTheEightySeventhAreNotRead) {
  bank.RunOnAnswers(u"INSERT INTO SubjectStats VALUES ('Surplus', 1, 1, 1, 1)"_s);
  subjects.SubjectName.at(kUnknownSubject) = u"(before)"_s;
  Load();
  EXPECT_EQ(subjects.SubjectName.at(kUnknownSubject), u"(before)"_s);
  EXPECT_EQ(subjects.SubjectAsked.at(kUnknownSubject), 0);
}

TEST_F(SubjectStatisticsTest, AFailedLoadKeepsWhatWasLoaded) {
  Load();
  const auto expectFailure = [this](const QString& change, ErrorNumber number) {
    bank.RunOnAnswers(change);
    EXPECT_RUNTIME_ERROR(Load(), number);
    EXPECT_EQ(subjects.SubjectName.at(0), u"Subject 00"_s);
    EXPECT_EQ(subjects.SubjectName.at(86), u"Subject 86"_s);
  };
  expectFailure(u"UPDATE SubjectStats SET Subject = 'New', TMAsked = 40000 WHERE rowid = 1"_s,
                ErrorNumber::Overflow);
  expectFailure(u"UPDATE SubjectStats SET TMAsked = 'many' WHERE rowid = 1"_s,
                ErrorNumber::TypeMismatch);
  expectFailure(u"DELETE FROM SubjectStats WHERE rowid = 1"_s, ErrorNumber::NoCurrentRecord);
  expectFailure(u"DELETE FROM SubjectStats"_s, ErrorNumber::NoCurrentRecord);
  expectFailure(u"DROP TABLE SubjectStats"_s, ErrorNumber::TableNotFound);
}

TEST_F(SubjectStatisticsTest, ASubjectIsFoundByItsExactText) {
  Load();
  EXPECT_EQ(FindSubject(subjects, u"Subject 00"_s), 0);
  EXPECT_EQ(FindSubject(subjects, u"Subject 86"_s), 86);
  for (const QString& unknown : {u"subject 00"_s, u"Subject 87"_s, u"Subject 00 "_s, u""_s}) {
    EXPECT_EQ(FindSubject(subjects, unknown), kUnknownSubject) << unknown.toStdString();
  }
}

TEST_F(SubjectStatisticsTest, TotalsAreWrittenIntoTheirModesColumnsOnly) {
  {
    Recordset rows = workspace.OpenDatabase(bank.Paths().AnswersDbPath, bank.Paths().DbConnect)
                         .OpenTable(kSubjectStatsTable);
    rows.SetAbsolutePosition(3);
    WriteSubjectTotals(rows, ColumnsOfMode(kTutorialMode), 5, 4);
    WriteSubjectTotals(rows, ColumnsOfMode(kEvaluationMode), 3, 2);
    rows.MoveNext();
    WriteSubjectTotals(rows, ColumnsOfMode(kEvaluationMode), 1, 0);
  }
  EXPECT_EQ(bank.SubjectRow(u"Subject 03"_s), u"5 4 3 2"_s);
  EXPECT_EQ(bank.SubjectRow(u"Subject 04"_s), u"0 0 1 0"_s);
  EXPECT_EQ(bank.SubjectRow(u"Subject 02"_s), u"0 0 0 0"_s);
}

}  // namespace
}  // namespace tessaly::test
