#include "tools/bank/answers_file.h"

#include <QFileInfo>

#include "catalogue/exam_catalogue.h"
#include "store/database.h"
#include "tests/tools/bank_files.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class AnswersFileTest : public BankFilesTest {
protected:
  // What a user leaves behind after one answer: question 21 of 01Part1, and subject 02.
  void Answer() {
    Workspace workspace;
    const Database answers = workspace.OpenDatabase(paths.answers, u";pwd="_s + kPassword);
    Recordset status = answers.OpenTable(u"01Part1"_s);
    status.FindFirst(u"QuestionNo = 21"_s);
    status.Edit();
    status.SetValue(status_field::kTutorialMode, QString(kAnsweredCorrectly));
    status.SetValue(status_field::kEvalMode, QString(kAnsweredIncorrectly));
    status.SetValue(status_field::kPassFail, QString(kPassed));
    status.SetValue(status_field::kTimesAsked, 7);
    status.SetValue(status_field::kTimesCorrect, 4);
    status.Update();
    Recordset subjects = answers.OpenTable(kSubjectStatsTable);
    subjects.FindFirst(u"Subject = 'Subject 02'"_s);
    subjects.Edit();
    subjects.SetValue(subject_field::kTMAsked, 5);
    subjects.SetValue(subject_field::kTMCorrect, 3);
    subjects.SetValue(subject_field::kEMAsked, 2);
    subjects.SetValue(subject_field::kEMCorrect, 1);
    subjects.Update();
  }
  [[nodiscard]] QStringList StatusRows(const QString& table) const {
    return Rows(paths.answers, u"SELECT * FROM \"%1\" ORDER BY rowid"_s.arg(table));
  }
  [[nodiscard]] QStringList SubjectRows() const {
    return Rows(paths.answers, u"SELECT * FROM SubjectStats ORDER BY rowid"_s);
  }
  [[nodiscard]] static QStringList UntriedRows(const QStringList& subjects) {
    QStringList rows;
    for (const QString& subject : subjects) {
      rows.append(subject + u"|0|0|0|0"_s);
    }
    return rows;
  }
};

const QString kAnsweredRow = u"21|C|I|P|7|4"_s;
const QString kTriedRow = u"Subject 02|5|3|2|1"_s;

TEST_F(AnswersFileTest, ANewFileHasAnUnansweredRowForEachQuestionAndSubject) {
  sources.WritePart(u"01Part1"_s, 1, 3);
  CompileWell();
  EXPECT_EQ(StatusRows(u"01Part1"_s),
            QStringList({u"1|U|U|U|0|0"_s, u"2|U|U|U|0|0"_s, u"3|U|U|U|0|0"_s}));
  EXPECT_EQ(StatusRows(u"96Part4"_s), QStringList());
  EXPECT_EQ(SubjectRows(), UntriedRows(BankFolder::Subjects()));
}

TEST_F(AnswersFileTest, EveryExamPartHasATableOfTheSameFields) {
  CompileWell();
  const QStringList fields{
      u"0|QuestionNo|INTEGER|0|(Null)|0"_s, u"1|TutorialMode|TEXT|0|(Null)|0"_s,
      u"2|EvalMode|TEXT|0|(Null)|0"_s,      u"3|PassFail|TEXT|0|(Null)|0"_s,
      u"4|TimesAsked|INTEGER|0|(Null)|0"_s, u"5|TimesCorrect|INTEGER|0|(Null)|0"_s,
  };
  for (const QLatin1StringView table : kTables) {
    EXPECT_EQ(Rows(paths.answers, u"PRAGMA table_info(\"%1\")"_s.arg(table)), fields);
    EXPECT_EQ(Rows(paths.answers, u"PRAGMA index_info(\"%1QuestionNo\")"_s.arg(table)),
              QStringList(u"0|0|QuestionNo"_s));
  }
  EXPECT_EQ(Rows(paths.answers, u"PRAGMA table_info(SubjectStats)"_s),
            QStringList({u"0|Subject|TEXT|0|(Null)|0"_s, u"1|TMAsked|INTEGER|0|(Null)|0"_s,
                         u"2|TMCorrect|INTEGER|0|(Null)|0"_s, u"3|EMAsked|INTEGER|0|(Null)|0"_s,
                         u"4|EMCorrect|INTEGER|0|(Null)|0"_s}));
  EXPECT_EQ(Rows(paths.answers, u"SELECT count(*) FROM sqlite_master WHERE type = 'table'"_s),
            QStringList(u"25"_s));
}

TEST_F(AnswersFileTest, ANewQuestionAndSubjectFindTheirPlacesAndCountsAreKept) {
  sources.Write(u"01Part1.yaml"_s, QuestionYaml(u"01Part1"_s, 1) + QuestionYaml(u"01Part1"_s, 21));
  CompileWell();
  Answer();
  sources.WritePart(u"01Part2"_s, 9, 9);
  sources.Write(u"01Part1.yaml"_s, QuestionYaml(u"01Part1"_s, 1) + QuestionYaml(u"01Part1"_s, 2) +
                                       QuestionYaml(u"01Part1"_s, 21) +
                                       QuestionYaml(u"01Part1"_s, 22));
  QStringList subjects = BankFolder::Subjects();
  subjects.insert(2, u"Subject 01 and a half"_s);
  sources.WriteSubjects(subjects);
  CompileWell();
  EXPECT_EQ(StatusRows(u"01Part1"_s),
            QStringList({u"1|U|U|U|0|0"_s, u"2|U|U|U|0|0"_s, kAnsweredRow, u"22|U|U|U|0|0"_s}));
  EXPECT_EQ(StatusRows(u"01Part2"_s), QStringList(u"9|U|U|U|0|0"_s));
  QStringList expected = UntriedRows(subjects);
  expected[3] = kTriedRow;
  EXPECT_EQ(SubjectRows(), expected);
}

TEST_F(AnswersFileTest, RowsThatTheBankNoLongerHasStandBehindTheOthers) {
  sources.WritePart(u"01Part1"_s, 20, 23);
  CompileWell();
  Answer();
  sources.Write(u"01Part1.yaml"_s, QuestionYaml(u"01Part1"_s, 19) + QuestionYaml(u"01Part1"_s, 22) +
                                       QuestionYaml(u"01Part1"_s, 23));
  QStringList subjects = BankFolder::Subjects();
  subjects[1] = u"Accounts"_s;
  subjects[2] = u"Alimony"_s;
  subjects.sort();
  sources.WriteSubjects(subjects);
  CompileWell();
  EXPECT_EQ(StatusRows(u"01Part1"_s),
            QStringList({u"19|U|U|U|0|0"_s, u"22|U|U|U|0|0"_s, u"23|U|U|U|0|0"_s, u"20|U|U|U|0|0"_s,
                         kAnsweredRow}));
  EXPECT_EQ(SubjectRows(),
            UntriedRows(subjects) + QStringList({u"Subject 01|0|0|0|0"_s, kTriedRow}));
}

TEST_F(AnswersFileTest, APartWithoutASourceKeepsItsRows) {
  sources.WritePart(u"01Part1"_s, 21, 22);
  CompileWell();
  Answer();
  ASSERT_TRUE(QFile::remove(sources.FilePath(u"01Part1.yaml"_s)));
  CompileWell();
  EXPECT_EQ(StatusRows(u"01Part1"_s), QStringList({kAnsweredRow, u"22|U|U|U|0|0"_s}));
}

TEST_F(AnswersFileTest, AMissingTableIsAdded) {
  sources.WritePart(u"01Part1"_s, 21, 22);
  sources.WritePart(u"00Part1"_s, 1, 1);
  CompileWell();
  Answer();
  const QStringList before = DumpOf(paths.answers);
  Run(paths.answers, u"DROP TABLE \"00Part1\""_s);
  Run(paths.answers, u"DROP TABLE \"96Part4\""_s);
  CompileWell();
  EXPECT_TRUE(DumpOf(paths.answers) == before);
}

TEST_F(AnswersFileTest, NothingIsWrittenWhereNothingIsMissing) {
  sources.WritePart(u"01Part1"_s, 21, 25);
  CompileWell();
  Answer();
  const QByteArray before = ReadBytes(paths.answers);
  const QDateTime changed = QFileInfo(paths.answers).lastModified();
  sources.Write(u"version.yaml"_s, u"version: Next release\n"_s);
  CompileWell();
  EXPECT_TRUE(ReadBytes(paths.answers) == before);
  EXPECT_EQ(QFileInfo(paths.answers).lastModified(), changed);
}

}  // namespace
}  // namespace tessaly::test
