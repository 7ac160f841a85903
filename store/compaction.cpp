#include "store/compaction.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "platform/file_operations.h"
#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr auto kQuestionsCopyName = "tempdb.mdb"_L1;
constexpr auto kAnswersCopyName = "tempdba.mdb"_L1;
constexpr auto kNoteName = "tessaly02.compacting"_L1;

}  // namespace

Compaction::Compaction(Workspace& workspace, FileOperations& files, const BankPaths& paths)
    : workspace_(workspace), files_(files), paths_(paths) {}

void Compaction::CompactDatabases() {
  FinishInterrupted();
  RequireBothFiles();
  const QDir workingFolder = QDir::current();
  const Copies copies{workingFolder.filePath(kQuestionsCopyName),
                      workingFolder.filePath(kAnswersCopyName)};
  files_.Remove(copies.questions);
  files_.Remove(copies.answers);
  WriteCopies(copies);
  WriteNote(copies);
  files_.Remove(paths_.QuestionsDbPath);
  files_.Remove(paths_.AnswersDbPath);
  files_.Move(copies.questions, paths_.QuestionsDbPath);
  files_.Move(copies.answers, paths_.AnswersDbPath);
  files_.Remove(NotePath());
}

void Compaction::FinishInterrupted() {
  const bool cutOff = QFileInfo::exists(NotePath());
  if (!cutOff && QFileInfo::exists(paths_.QuestionsDbPath) &&
      QFileInfo::exists(paths_.AnswersDbPath)) {
    return;
  }
  const Copies copies = InterruptedCopies();
  RestoreFile(copies.questions, paths_.QuestionsDbPath);
  RestoreFile(copies.answers, paths_.AnswersDbPath);
  if (cutOff && QFileInfo::exists(paths_.QuestionsDbPath) &&
      QFileInfo::exists(paths_.AnswersDbPath)) {
    files_.Remove(NotePath());
  }
}

void Compaction::RequireBothFiles() const {
  for (const QString& path : {paths_.QuestionsDbPath, paths_.AnswersDbPath}) {
    if (!QFileInfo::exists(path)) {
      throw RuntimeError(ErrorNumber::FileNotFound, path);
    }
  }
}

QString Compaction::NotePath() const {
  return QDir(paths_.ProgramFolder).filePath(kNoteName);
}

Compaction::Copies Compaction::InterruptedCopies() const {
  QFile note(NotePath());
  if (note.open(QIODevice::ReadOnly)) {
    const QStringList lines = QString::fromUtf8(note.readAll()).split(u'\n');
    if (lines.size() >= 2) {
      return {lines[0], lines[1]};
    }
  }
  const QDir workingFolder = QDir::current();
  return {workingFolder.filePath(kQuestionsCopyName), workingFolder.filePath(kAnswersCopyName)};
}

void Compaction::WriteCopies(const Copies& copies) {
  workspace_.CompactDatabase(paths_.QuestionsDbPath, copies.questions, paths_.DbConnect);
  try {
    workspace_.CompactDatabase(paths_.AnswersDbPath, copies.answers, paths_.DbConnect);
  } catch (const RuntimeError&) {
    files_.Remove(copies.questions);
    throw;
  }
}

void Compaction::WriteNote(const Copies& copies) {
  files_.Write(NotePath(), u"%1\n%2\n"_s.arg(copies.questions, copies.answers).toUtf8());
}

void Compaction::RestoreFile(const QString& copy, const QString& place) {
  if (!QFileInfo::exists(place) && IsFinishedCopy(copy)) {
    files_.Move(copy, place);
  }
}

bool Compaction::IsFinishedCopy(const QString& copy) const {
  try {
    return workspace_.OpenDatabase(copy, paths_.DbConnect).IsIntact();
  } catch (const RuntimeError&) {
    // Missing, foreign or cut off while it was written: the file it was made from is still there.
    return false;
  }
}

}  // namespace tessaly
