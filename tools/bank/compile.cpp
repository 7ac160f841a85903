#include "tools/bank/compile.h"

#include <QFileInfo>
#include <memory>
#include <utility>

#include "platform/file_operations.h"
#include "store/compaction.h"
#include "store/connection.h"
#include "store/question_bank.h"
#include "store/runtime_error.h"
#include "tools/bank/answers_file.h"
#include "tools/bank/questions_file.h"

using namespace Qt::StringLiterals;

namespace tessaly::bank {

namespace {

QString JournalOf(const QString& path) {
  return path + u"-journal"_s;
}

// A database file in the making. What is left of it, when it was not published, is removed.
class NewFile {
public:
  NewFile(QString place, FileOperations& files)
      : place_(std::move(place)), path_(place_ + u".new"_s), files_(files) {
    Remove();
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile() {
    try {
      Remove();
    } catch (const RuntimeError&) {
      // The next compilation removes it; the failure that led here is the one to report.
    }
  }

  [[nodiscard]] const QString& Path() const { return path_; }

  void Publish() {
    FlushToDisk(path_);
    // The journal of a file that was removed by hand would be played back into this one.
    files_.Remove(JournalOf(place_));
    files_.Move(path_, place_);
  }

private:
  void Remove() {
    files_.Remove(path_);
    files_.Remove(JournalOf(path_));
  }

  QString place_;
  QString path_;
  FileOperations& files_;
};

// Opening proves that a file is the bank's and that nobody holds it, and finishes a transaction
// that was cut off.
std::unique_ptr<Connection> OpenIfThere(const QString& path) {
  if (!QFileInfo::exists(path)) {
    return nullptr;
  }
  return std::make_unique<Connection>(path, kPassword, Connection::Access::OpenExisting);
}

// The program may have been killed between removing an answers file and putting its compacted copy
// in place; a new file would then take the place of the copy with the user's counts.
void FinishCompaction(const BankFiles& paths, FileOperations& files) {
  Workspace workspace;
  BankPaths bankPaths;
  bankPaths.ProgramFolder = QFileInfo(paths.answers).absolutePath();
  BuildDatabasePaths(bankPaths);
  bankPaths.QuestionsDbPath = paths.questions;
  bankPaths.AnswersDbPath = paths.answers;
  Compaction(workspace, files, bankPaths).FinishInterrupted();
}

void CreateAnswersFile(const QString& path, const BankSource& bank) {
  Connection connection(path, kPassword, Connection::Access::CreateNew);
  CompleteAnswersFile(connection, bank);
}

}  // namespace

// The answers file comes first: a row for a question that the questions file has not yet is never
// shown, while a question without its row could not be answered.
void CompileBank(const BankSource& bank, const BankFiles& paths, FileOperations& files) {
  FinishCompaction(paths, files);
  const std::unique_ptr<Connection> answers = OpenIfThere(paths.answers);
  OpenIfThere(paths.questions).reset();
  NewFile questions(paths.questions, files);
  WriteQuestionsFile(questions.Path(), bank);
  if (answers) {
    CompleteAnswersFile(*answers, bank);
  } else {
    NewFile created(paths.answers, files);
    CreateAnswersFile(created.Path(), bank);
    created.Publish();
  }
  questions.Publish();
}

}  // namespace tessaly::bank
