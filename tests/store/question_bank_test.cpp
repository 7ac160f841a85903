#include "store/question_bank.h"

#include <gtest/gtest.h>

#include "catalogue/exam_catalogue.h"
#include "store/runtime_error.h"
#include "tests/support/printers.h"
#include "tests/support/test_bank.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class QuestionBankTest : public ::testing::Test {
protected:
  [[nodiscard]] Recordset Questions(const QString& table) {
    return workspace.OpenDatabase(bank.Paths().QuestionsDbPath, bank.Paths().DbConnect)
        .OpenRecordset(SelectAllFrom(table));
  }
  [[nodiscard]] Recordset Answers(const QString& table) {
    return workspace.OpenDatabase(bank.Paths().AnswersDbPath, bank.Paths().DbConnect)
        .OpenTable(table);
  }

  TestBank bank;
  Workspace workspace;
};

TEST_F(QuestionBankTest, BothFilesLieInTheProgramFolder) {
  BankPaths paths;
  paths.ProgramFolder = u"/opt/tessaly"_s;
  BuildDatabasePaths(paths);
  EXPECT_EQ(paths.QuestionsDbPath, u"/opt/tessaly/tessaly02q.mdb"_s);
  EXPECT_EQ(paths.AnswersDbPath, u"/opt/tessaly/tessaly02a.mdb"_s);
  EXPECT_EQ(paths.DbConnect, u";pwd=tessera-2002"_s);
}

TEST_F(QuestionBankTest, EveryTableOfTheCatalogueIsInBothFiles) {
  for (const QLatin1StringView table : kTables) {
    EXPECT_EQ(Questions(table).RecordCount(), 0);
    EXPECT_EQ(Answers(table).RecordCount(), 0);
  }
}

TEST_F(QuestionBankTest, AQuestionsNumberFindsItsTextAndItsStatus) {
  bank.AddQuestions(u"98Part2"_s, 1, 12, u"Gifts"_s);
  Recordset texts = Questions(u"98Part2"_s);
  Recordset states = Answers(u"98Part2"_s);
  for (const int no : {1, 2, 12}) {
    SCOPED_TRACE(no);
    texts.FindFirst(QuestionTextCriterion(no));
    states.FindFirst(QuestionStatusCriterion(no));
    ASSERT_FALSE(texts.NoMatch());
    ASSERT_FALSE(states.NoMatch());
    EXPECT_EQ(texts.Text(question_field::kQuestion), u"Question %1"_s.arg(no));
    EXPECT_EQ(states.Integer(status_field::kQuestionNo), no);
    EXPECT_EQ(states.Text(status_field::kTutorialMode), kUnanswered);
  }
  texts.FindFirst(QuestionTextCriterion(13));
  EXPECT_TRUE(texts.NoMatch());
}

TEST_F(QuestionBankTest, MissingTextsAreNull) {
  bank.AddQuestion(u"01Part1"_s, {.no = 1,
                                  .subject = {},
                                  .answerNumber = 0,
                                  .question = {},
                                  .explanation = {},
                                  .hint = {},
                                  .link = {}});
  Recordset texts = Questions(u"01Part1"_s);
  for (const QLatin1StringView field :
       {question_field::kQuestion, question_field::kAnswerText, question_field::kSubject,
        question_field::kHint, question_field::kLink}) {
    SCOPED_TRACE(field.data());
    EXPECT_FALSE(texts.Value(field).isValid());
  }
}

TEST_F(QuestionBankTest, ASubjectIsFilteredExactlyWhateverItHolds) {
  const QString subjects[] = {u"Gifts"_s,
                              u"gifts"_s,
                              u"Taxpayer's rights"_s,
                              u"''"_s,
                              u"\"Basis\" of 50% & more; -- part"_s,
                              u"' OR '1' = '1"_s};
  int added = 0;
  for (const QString& subject : subjects) {
    ++added;
    bank.AddQuestions(u"01Part1"_s, added, added, subject);
  }
  int expected = 0;
  for (const QString& subject : subjects) {
    SCOPED_TRACE(subject.toStdString());
    ++expected;
    Recordset all = Questions(u"01Part1"_s);
    all.SetFilter(SubjectFilter(subject));
    Recordset found = all.OpenRecordset();
    ASSERT_EQ(found.RecordCount(), 1);
    EXPECT_EQ(found.Integer(question_field::kQuestionNo), expected);
    EXPECT_EQ(found.Text(question_field::kSubject), subject);
  }
}

TEST_F(QuestionBankTest, TheReleaseIsReadFromTheFirstRowOfVersion) {
  bank.RunOnQuestions(u"INSERT INTO Version VALUES ('Later release')"_s);
  EXPECT_EQ(ReadTableVersion(workspace, bank.Paths()), u"Test release"_s);
}

TEST_F(QuestionBankTest, AReleaseThatIsNotThereIsAnError) {
  bank.RunOnQuestions(u"DELETE FROM Version"_s);
  EXPECT_RUNTIME_ERROR(static_cast<void>(ReadTableVersion(workspace, bank.Paths())),
                       ErrorNumber::NoCurrentRecord);
  bank.RunOnQuestions(u"DROP TABLE Version"_s);
  EXPECT_RUNTIME_ERROR(static_cast<void>(ReadTableVersion(workspace, bank.Paths())),
                       ErrorNumber::TableNotFound);
}

}  // namespace
}  // namespace tessaly::test
