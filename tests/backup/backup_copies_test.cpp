// What a copy in either direction leaves behind when it fails or is cut off: the file before it,
// whole, or its own, whole.

#include "tests/backup/backup_copies_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

TEST_F(BackupCopiesTest, TheCopyIsMadeReadyBesideItsTarget) {
  EXPECT_EQ(StepsOf(kBackUp),
            (QStringList{u"write tessaly02s.ini"_s, u"copy tessaly02a.mdb to tessaly02a.mdb.new"_s,
                         u"move tessaly02a.mdb.new to tessaly02a.mdb"_s}));
  EXPECT_EQ(StepsOf(kRestore), (QStringList{u"copy tessaly02a.mdb to tessaly02a.mdb.new"_s,
                                            u"move tessaly02a.mdb.new to tessaly02a.mdb"_s,
                                            u"remove tessaly02s.ini"_s}));
}

TEST_F(BackupCopiesTest, CutOffAnywhereBothFilesAreWholeAndTheNextCopySucceeds) {
  for (const std::uint8_t direction : {kBackUp, kRestore}) {
    const qsizetype steps = StepsOf(direction).size();
    for (qsizetype step = 1; step <= 2 * steps; ++step) {
      SCOPED_TRACE(u"direction %1, step %2"_s.arg(direction).arg(step).toStdString());
      Reset();
      WatchedFiles watched;
      (step <= steps ? watched.cutBefore : watched.cutAfter) = step <= steps ? step : step - steps;
      EXPECT_THROW(RunOn(watched, direction), PowerCut);
      ExpectOldOrNew(direction);
      WriteBytes(Export(), exported);
      RunOn(files, direction);
      ExpectDone(direction);
    }
  }
}

TEST_F(BackupCopiesTest, CutOffBetweenBlocksItLeavesAtMostAStrayFileThatTheNextCopyReplaces) {
  for (const std::uint8_t direction : {kBackUp, kRestore}) {
    for (int block = 1; block <= 3; ++block) {
      SCOPED_TRACE(u"direction %1, block %2"_s.arg(direction).arg(block).toStdString());
      Reset();
      dialog.whenRefreshed = [this, block] {
        if (dialog.timesRefreshed == block) {
          throw PowerCut();
        }
      };
      EXPECT_THROW(RunOn(files, direction), PowerCut);
      EXPECT_EQ(ReadBytes(TargetOf(direction)), direction == kRestore ? newer : older);
      EXPECT_TRUE(QFile::exists(BesideName(TargetOf(direction))));
      dialog.Clear();
      RunOn(files, direction);
      ExpectDone(direction);
    }
  }
}

TEST_F(BackupCopiesTest, FailingAnywhereItCanBeCancelledOrTriedAgain) {
  for (const std::uint8_t direction : {kBackUp, kRestore}) {
    const qsizetype steps = StepsOf(direction).size();
    for (qsizetype step = 1; step <= steps; ++step) {
      for (const BoxAnswer answer : {BoxAnswer::Cancel, BoxAnswer::Ok}) {
        SCOPED_TRACE(u"direction %1, step %2"_s.arg(direction).arg(step).toStdString());
        Reset();
        WatchedFiles watched;
        watched.failAt = step;
        boxes.answers = {answer};
        RunOn(watched, direction);
        EXPECT_EQ(boxes.shown,
                  QStringList{direction == kRestore ? kRestoreRequest : kBackupRequest});
        EXPECT_EQ(dialog.timesUnloaded, 1);
        ExpectOldOrNew(direction);
        EXPECT_FALSE(QFile::exists(BesideName(TargetOf(direction))));
        if (answer == BoxAnswer::Ok) {
          ExpectDone(direction);
        } else if (direction == kBackUp) {
          EXPECT_FALSE(QFile::exists(Export()));
        }
      }
    }
  }
}

}  // namespace
}  // namespace tessaly::test
