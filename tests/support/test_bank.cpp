#include "tests/support/test_bank.h"

#include "catalogue/exam_catalogue.h"
#include "stats/subject_statistics.h"
#include "store/connection.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {

namespace {

QVariant OrNull(const std::optional<QString>& text) {
  return text ? QVariant(*text) : QVariant();
}

void CreateTables(Connection& connection, const QString& fields) {
  for (const QLatin1StringView table : kTables) {
    connection.Execute(u"CREATE TABLE \"%1\" (%2)"_s.arg(table, fields));
    connection.Execute(u"CREATE INDEX \"%1No\" ON \"%1\" (QuestionNo)"_s.arg(table));
  }
}

QVariant FirstValue(Connection& connection, const QString& sql) {
  Statement statement = connection.Prepare(sql);
  return statement.Next() ? statement.Column(0) : QVariant();
}

}  // namespace

TestBank::TestBank(const QString& parentFolder)
    : folder_(QDir(parentFolder).filePath(u"bank-XXXXXX"_s)) {
  paths_.ProgramFolder = folder_.path();
  BuildDatabasePaths(paths_);
  Connection questions(paths_.QuestionsDbPath, kPassword, Connection::Access::CreateNew);
  questions.Execute(u"BEGIN"_s);
  CreateTables(questions,
               u"QuestionNo TEXT, Question TEXT, AnswerText TEXT, AnswerNumber INTEGER, "
               u"Subject TEXT, Hint TEXT, Link TEXT"_s);
  questions.Execute(u"CREATE TABLE Version (TableVersion TEXT)"_s);
  questions.Execute(u"INSERT INTO Version VALUES ('Test release')"_s);
  questions.Execute(u"COMMIT"_s);
  Connection answers(paths_.AnswersDbPath, kPassword, Connection::Access::CreateNew);
  answers.Execute(u"BEGIN"_s);
  CreateTables(answers,
               u"QuestionNo INTEGER, TutorialMode TEXT, EvalMode TEXT, PassFail TEXT, "
               u"TimesAsked INTEGER, TimesCorrect INTEGER"_s);
  answers.Execute(
      u"CREATE TABLE SubjectStats (Subject TEXT, TMAsked INTEGER, "
      u"TMCorrect INTEGER, EMAsked INTEGER, EMCorrect INTEGER)"_s);
  Statement insert = answers.Prepare(u"INSERT INTO SubjectStats VALUES (?, 0, 0, 0, 0)"_s);
  for (int i = 0; i < kSubjectCount; ++i) {
    insert.Bind({SubjectName(i)});
    insert.Run();
  }
  answers.Execute(u"COMMIT"_s);
}

void TestBank::AddQuestion(const QString& table, const TestQuestion& question,
                           const TestStatus& status) {
  RunOnQuestions(
      u"INSERT INTO \"%1\" VALUES (?, ?, ?, ?, ?, ?, ?)"_s.arg(table),
      {QString::number(question.no), OrNull(question.question), OrNull(question.explanation),
       question.answerNumber, question.subject.isNull() ? QVariant() : question.subject,
       question.hint.isNull() ? QVariant() : question.hint,
       question.link.isNull() ? QVariant() : question.link});
  RunOnAnswers(u"INSERT INTO \"%1\" VALUES (?, ?, ?, ?, ?, ?)"_s.arg(table),
               {question.no, status.tutorialMode, status.evalMode, status.passFail,
                status.timesAsked, status.timesCorrect});
}

void TestBank::AddQuestions(const QString& table, int first, int last, const QString& subject,
                            const TestStatus& status) {
  for (int no = first; no <= last; ++no) {
    AddQuestion(table,
                {no, subject, 0, u"Question %1"_s.arg(no), u"Explanation %1"_s.arg(no),
                 u"Publication %1"_s.arg(no), u"p%1.html"_s.arg(no)},
                status);
  }
}

void TestBank::RunOnAnswers(const QString& sql, const std::vector<QVariant>& values) {
  Connection connection(paths_.AnswersDbPath, kPassword, Connection::Access::OpenExisting);
  Statement statement = connection.Prepare(sql);
  statement.Bind(values);
  statement.Run();
}

void TestBank::RunOnQuestions(const QString& sql, const std::vector<QVariant>& values) {
  Connection connection(paths_.QuestionsDbPath, kPassword, Connection::Access::OpenExisting);
  Statement statement = connection.Prepare(sql);
  statement.Bind(values);
  statement.Run();
}

QVariant TestBank::ValueInAnswers(const QString& sql) {
  Connection connection(paths_.AnswersDbPath, kPassword, Connection::Access::OpenExisting);
  return FirstValue(connection, sql);
}

bool TestBank::IsIntact() {
  return Connection(paths_.QuestionsDbPath, kPassword, Connection::Access::OpenExisting)
             .IsIntact() &&
         Connection(paths_.AnswersDbPath, kPassword, Connection::Access::OpenExisting).IsIntact();
}

QString TestBank::StatusRow(const QString& table, int no) {
  return ValueInAnswers(
             u"SELECT TutorialMode || ' ' || EvalMode || ' ' || PassFail || ' ' || "
             u"TimesAsked || ' ' || TimesCorrect FROM \"%1\" WHERE QuestionNo = %2"_s.arg(table)
                 .arg(no))
      .toString();
}

QString TestBank::SubjectRow(const QString& subject) {
  return ValueInAnswers(
             u"SELECT TMAsked || ' ' || TMCorrect || ' ' || EMAsked || ' ' || "
             u"EMCorrect FROM SubjectStats WHERE Subject = '%1'"_s.arg(subject))
      .toString();
}

QString TestBank::SubjectName(int index) {
  return u"Subject %1"_s.arg(index, 2, 10, QLatin1Char('0'));
}

}  // namespace tessaly::test
