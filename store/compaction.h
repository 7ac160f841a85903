#ifndef TESSALY_STORE_COMPACTION_H_
#define TESSALY_STORE_COMPACTION_H_

#include "store/question_bank.h"

namespace tessaly {

// Compacts both database files in the fixed order: leftover copies are deleted, both compacted
// copies are written ("tempdb.mdb" and "tempdba.mdb" in the working directory), then both files are
// deleted, then both copies are renamed into their places.
//
// Invariant: at every moment each file exists whole, either in its place or as a finished copy.
// Between the first deletion and the last renaming a note in the program folder says where the
// copies lie, because the next start may have another working directory.
class Compaction {
public:
  Compaction(Workspace& workspace, FileOperations& files, const BankPaths& paths);

  // No database object may be open on either file. An interrupted compaction is finished first.
  // Raises the failures of Workspace and FileOperations.
  void CompactDatabases();

  // Puts the finished copies of a compaction that was cut off into the places of the files that
  // are missing. A copy is used only if it opens with the password and is intact. Does nothing
  // where nothing was cut off.
  void FinishInterrupted();

private:
  struct Copies {
    QString questions;
    QString answers;
  };

  // While a file is missing, what lies in a copy's place may be all that is left of it.
  void RequireBothFiles() const;
  [[nodiscard]] QString NotePath() const;
  [[nodiscard]] Copies InterruptedCopies() const;
  // Both or none.
  void WriteCopies(const Copies& copies);
  void WriteNote(const Copies& copies);
  void RestoreFile(const QString& copy, const QString& place);
  [[nodiscard]] bool IsFinishedCopy(const QString& copy) const;

  Workspace& workspace_;
  FileOperations& files_;
  const BankPaths& paths_;
};

}  // namespace tessaly

#endif  // TESSALY_STORE_COMPACTION_H_
