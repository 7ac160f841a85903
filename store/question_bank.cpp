#include "store/question_bank.h"

#include <QDir>

#include "store/sql_text.h"

using namespace Qt::StringLiterals;

namespace tessaly {

void BuildDatabasePaths(BankPaths& paths) {
  const QDir folder(paths.ProgramFolder);
  paths.QuestionsDbPath = folder.filePath(kQuestionsFileName);
  paths.AnswersDbPath = folder.filePath(kAnswersFileName);
  paths.DbConnect = u";pwd="_s + kPassword;
}

QString QuestionTextCriterion(int questionNo) {
  return u"QuestionNo = '%1'"_s.arg(questionNo);
}

QString QuestionStatusCriterion(int questionNo) {
  return u"QuestionNo = %1"_s.arg(questionNo);
}

QString SubjectFilter(const QString& subject) {
  return u"Subject = "_s + sql::QuotedText(subject);
}

QString SelectAllFrom(const QString& table) {
  return u"SELECT * FROM "_s + table;
}

QString ReadTableVersion(Workspace& workspace, const BankPaths& paths) {
  const Database questions = workspace.OpenDatabase(paths.QuestionsDbPath, paths.DbConnect);
  return questions.OpenTable(kVersionTable).Text(kTableVersionField);
}

}  // namespace tessaly
