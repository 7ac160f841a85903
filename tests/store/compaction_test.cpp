#include "store/compaction.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "platform/file_operations.h"
#include "store/connection.h"
#include "store/runtime_error.h"
#include "tests/support/file_contents.h"
#include "tests/support/printers.h"
#include "tests/support/small_disk.h"
#include "tests/support/test_bank.h"
#include "tests/support/watched_files.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

const QString kQuestionsCopy = u"tempdb.mdb"_s;
const QString kAnswersCopy = u"tempdba.mdb"_s;
const QString kNote = u"tessaly02.compacting"_s;
const QStringList kBothFiles{kAnswersFileName, kQuestionsFileName};
const QStringList kBothCopies{kQuestionsCopy, kAnswersCopy};

class CompactionTest : public ::testing::Test {
protected:
  CompactionTest() {
    bank.AddQuestions(u"01Part1"_s, 1, 3, u"Gifts"_s, {.tutorialMode = u"C"_s, .timesAsked = 1});
    bank.AddQuestions(u"96Part4"_s, 80, 80, u"Taxpayer's rights"_s);
    bank.RunOnAnswers(u"UPDATE SubjectStats SET TMAsked = 3 WHERE Subject = 'Subject 86'"_s);
    questions = DumpOf(Questions());
    answers = DumpOf(Answers());
    QDir::setCurrent(bank.WorkingFolder());
  }
  ~CompactionTest() override { QDir::setCurrent(QDir::rootPath()); }

  [[nodiscard]] QString Questions() const { return bank.Paths().QuestionsDbPath; }
  [[nodiscard]] QString Answers() const { return bank.Paths().AnswersDbPath; }
  [[nodiscard]] QString Working(const QString& name) const {
    return QDir(bank.WorkingFolder()).filePath(name);
  }

  // Each as a program of its own.
  void Compact() { Compact(disk); }
  void Compact(FileOperations& files) {
    Workspace workspace;
    Compaction(workspace, files, bank.Paths()).CompactDatabases();
  }
  void FinishInterrupted() {
    Workspace workspace;
    Compaction(workspace, disk, bank.Paths()).FinishInterrupted();
  }

  void ExpectBothFilesWhole() {
    EXPECT_TRUE(bank.IsIntact());
    EXPECT_EQ(DumpOf(Questions()), questions);
    EXPECT_EQ(DumpOf(Answers()), answers);
  }
  void ExpectNothingLeftOver(const QStringList& programFolder = kBothFiles) {
    EXPECT_EQ(NamesIn(bank.Folder()), programFolder);
    EXPECT_EQ(NamesIn(bank.WorkingFolder()), QStringList());
  }

  TestBank bank;
  DiskFileOperations disk;
  QStringList questions;
  QStringList answers;
};

TEST_F(CompactionTest, BothFilesHoldTheSameRowsInTheSameOrder) {
  Compact();
  ExpectBothFilesWhole();
  ExpectNothingLeftOver();
  Compact();
  ExpectBothFilesWhole();
}

TEST_F(CompactionTest, RoomThatIsNoLongerUsedIsGivenBack) {
  bank.RunOnQuestions(u"CREATE TABLE Ballast AS SELECT hex(zeroblob(100000)) AS Filler"_s);
  bank.RunOnQuestions(u"DROP TABLE Ballast"_s);
  const auto before = ReadBytes(Questions()).size();
  Compact();
  EXPECT_LT(ReadBytes(Questions()).size(), before - 100000);
  ExpectBothFilesWhole();
}

TEST_F(CompactionTest, LeftoverCopiesAreDeletedAndDoNotStopIt) {
  WriteBytes(Working(kQuestionsCopy), "left over");
  WriteBytes(Working(kAnswersCopy), ReadBytes(Questions()));
  Compact();
  ExpectBothFilesWhole();
  ExpectNothingLeftOver();
}

TEST_F(CompactionTest, TheOrderIsFixed) {
  WatchedFiles files;
  Compact(files);
  EXPECT_EQ(
      files.steps,
      (QStringList{u"remove tempdb.mdb"_s, u"remove tempdba.mdb"_s, u"write tessaly02.compacting"_s,
                   u"remove tessaly02q.mdb"_s, u"remove tessaly02a.mdb"_s,
                   u"move tempdb.mdb to tessaly02q.mdb"_s, u"move tempdba.mdb to tessaly02a.mdb"_s,
                   u"remove tessaly02.compacting"_s}));
}

TEST_F(CompactionTest, BothCopiesAreFinishedBeforeAFileIsDeleted) {
  WatchedFiles files;
  int timesChecked = 0;
  files.beforeStep = [&](const QString& step) {
    if (step == u"remove tessaly02q.mdb"_s) {
      EXPECT_EQ(DumpOf(Working(kQuestionsCopy)), questions);
      EXPECT_EQ(DumpOf(Working(kAnswersCopy)), answers);
      ++timesChecked;
    }
  };
  Compact(files);
  EXPECT_EQ(timesChecked, 1);
}

TEST_F(CompactionTest, AnOpenFileOfAnotherNameIsNoneOfItsBusiness) {
  WriteBytes(Working(u"tempdb2.mdb"_s), "mine");
  Compact();
  EXPECT_EQ(NamesIn(bank.WorkingFolder()), QStringList{u"tempdb2.mdb"_s});
}

TEST_F(CompactionTest, CutOffAnywhereItIsFinishedAtTheNextStart) {
  WatchedFiles whole;
  Compact(whole);
  for (qsizetype step = 1; step <= whole.steps.size(); ++step) {
    for (const bool before : {true, false}) {
      SCOPED_TRACE((whole.steps[step - 1] + (before ? u", before"_s : u", after"_s)).toStdString());
      QDir::setCurrent(bank.WorkingFolder());
      WatchedFiles files;
      (before ? files.cutBefore : files.cutAfter) = step;
      EXPECT_THROW(Compact(files), PowerCut);
      QDir::setCurrent(QDir::tempPath());
      FinishInterrupted();
      ExpectBothFilesWhole();
      EXPECT_EQ(NamesIn(bank.Folder()), kBothFiles);
      QDir::setCurrent(bank.WorkingFolder());
      Compact();
      ExpectBothFilesWhole();
      ExpectNothingLeftOver();
    }
  }
}

TEST_F(CompactionTest, CutOffAnywhereTheNextSessionCompactsAsIfNothingHadHappened) {
  constexpr qsizetype kSteps = 8;
  for (qsizetype step = 1; step <= kSteps; ++step) {
    SCOPED_TRACE(step);
    WatchedFiles files;
    files.cutAfter = step;
    EXPECT_THROW(Compact(files), PowerCut);
    Compact();
    ExpectBothFilesWhole();
    ExpectNothingLeftOver();
  }
}

TEST_F(CompactionTest, FinishingMayItselfBeCutOff) {
  for (const qsizetype step : {1, 2, 3}) {
    SCOPED_TRACE(step);
    WatchedFiles files;
    files.cutBefore = 6;
    EXPECT_THROW(Compact(files), PowerCut);
    WatchedFiles again;
    again.cutBefore = step;
    EXPECT_THROW(Compact(again), PowerCut);
    FinishInterrupted();
    ExpectBothFilesWhole();
    EXPECT_EQ(NamesIn(bank.Folder()), kBothFiles);
  }
}

TEST_F(CompactionTest, WithNothingCutOffFinishingChangesNothing) {
  WriteBytes(Working(kQuestionsCopy), "left over");
  const QByteArray before = ReadBytes(Questions());
  FinishInterrupted();
  EXPECT_EQ(ReadBytes(Questions()), before);
  EXPECT_EQ(NamesIn(bank.WorkingFolder()), QStringList{kQuestionsCopy});
}

TEST_F(CompactionTest, AMissingFileWithAnIntactCopyIsPutBackWithoutANote) {
  ASSERT_TRUE(QFile::rename(Questions(), Working(kQuestionsCopy)));
  FinishInterrupted();
  ExpectBothFilesWhole();
  ASSERT_TRUE(QFile::rename(Answers(), Working(kAnswersCopy)));
  Compact();
  ExpectBothFilesWhole();
  ExpectNothingLeftOver();
}

TEST_F(CompactionTest, UnfinishedAndForeignCopiesAreNeverUsedNorDeleted) {
  const QByteArray whole = ReadBytes(Answers());
  QByteArray damaged = whole;
  damaged[5000] = static_cast<char>(~damaged[5000]);
  {
    Connection foreign(Working(u"foreign"_s), u"another password"_s, Connection::Access::CreateNew);
    foreign.Execute(u"CREATE TABLE Other (No INTEGER)"_s);
  }
  ASSERT_TRUE(QFile::remove(Answers()));
  for (const QByteArray& copy :
       {QByteArray(), whole.first(1024), whole.first(whole.size() - 1024), whole.first(3000),
        damaged, QByteArray("a text"), ReadBytes(Working(u"foreign"_s))}) {
    SCOPED_TRACE(copy.size());
    WriteBytes(Working(kAnswersCopy), copy);
    FinishInterrupted();
    EXPECT_FALSE(QFile::exists(Answers()));
    EXPECT_RUNTIME_ERROR(Compact(), ErrorNumber::FileNotFound);
    EXPECT_EQ(ReadBytes(Working(kAnswersCopy)), copy);
  }
  WriteBytes(Working(kAnswersCopy), whole);
  FinishInterrupted();
  ExpectBothFilesWhole();
}

TEST_F(CompactionTest, ANoteWithoutCopiesDoesNotStopIt) {
  WriteBytes(QDir(bank.Folder()).filePath(kNote), "/none/tempdb.mdb\n/none/tempdba.mdb\n");
  Compact();
  ExpectBothFilesWhole();
  ExpectNothingLeftOver();
}

TEST_F(CompactionTest, AMissingFileFailsItBeforeTheOtherIsTouched) {
  const QByteArray before = ReadBytes(Questions());
  ASSERT_TRUE(QFile::remove(Answers()));
  EXPECT_RUNTIME_ERROR(Compact(), ErrorNumber::FileNotFound);
  EXPECT_EQ(ReadBytes(Questions()), before);
  ExpectNothingLeftOver({kQuestionsFileName});
}

// A page that holds only part of an index is not needed and is made anew.
TEST_F(CompactionTest, ADamagedPageFailsItOrCostsNoRow) {
  const QByteArray whole = ReadBytes(Answers());
  int timesFailed = 0;
  for (qint64 position = 500; position < whole.size(); position += 1024) {
    SCOPED_TRACE(position);
    WriteBytes(Answers(), whole);
    FlipByte(Answers(), position);
    const QByteArray damaged = ReadBytes(Answers());
    try {
      Compact();
    } catch (const RuntimeError& error) {
      ++timesFailed;
      EXPECT_TRUE(error.Number() == ErrorNumber::UnrecognizedDatabaseFormat ||
                  error.Number() == ErrorNumber::InvalidPassword)
          << error.what();
      EXPECT_EQ(ReadBytes(Answers()), damaged);
      WriteBytes(Answers(), whole);
    }
    ExpectBothFilesWhole();
    ExpectNothingLeftOver();
  }
  EXPECT_GT(timesFailed, 10);
}

// The working directory lies on another volume.
class CompactionAcrossVolumesTest : public CompactionTest {
protected:
  void SetUp() override {
    SKIP_UNLESS_MOUNTED(volume);
    QDir::setCurrent(volume.Folder());
  }

  SmallDisk volume{512};
};

TEST_F(CompactionAcrossVolumesTest, BothFilesHoldTheSameRows) {
  Compact();
  ExpectBothFilesWhole();
  EXPECT_EQ(NamesIn(bank.Folder()), kBothFiles);
  EXPECT_EQ(NamesIn(volume.Folder()), QStringList());
}

TEST_F(CompactionAcrossVolumesTest, CutOffAnywhereItIsFinishedAtTheNextStart) {
  constexpr qsizetype kSteps = 8;
  for (qsizetype step = 1; step <= kSteps; ++step) {
    SCOPED_TRACE(step);
    QDir::setCurrent(volume.Folder());
    WatchedFiles files;
    files.cutAfter = step;
    EXPECT_THROW(Compact(files), PowerCut);
    QDir::setCurrent(bank.WorkingFolder());
    FinishInterrupted();
    ExpectBothFilesWhole();
    EXPECT_EQ(NamesIn(bank.Folder()), kBothFiles);
  }
}

TEST_F(CompactionAcrossVolumesTest, AFullWorkingFolderFailsItAndChangesNothing) {
  volume.Fill();
  const QByteArray questionsBefore = ReadBytes(Questions());
  const QByteArray answersBefore = ReadBytes(Answers());
  EXPECT_RUNTIME_ERROR(Compact(), ErrorNumber::DiskFull);
  EXPECT_EQ(ReadBytes(Questions()), questionsBefore);
  EXPECT_EQ(ReadBytes(Answers()), answersBefore);
  EXPECT_EQ(NamesIn(bank.Folder()), kBothFiles);
  EXPECT_EQ(NamesIn(volume.Folder()), QStringList{u"ballast"_s});
}

TEST_F(CompactionAcrossVolumesTest, AProgramVolumeThatFillsUpMeanwhileLosesNothing) {
  const TestBank small(volume.Folder());
  const BankPaths& paths = small.Paths();
  const QStringList before = DumpOf(paths.QuestionsDbPath);
  QDir::setCurrent(bank.WorkingFolder());
  WatchedFiles files;
  files.beforeStep = [this](const QString& step) {
    if (step.startsWith(u"move tempdb.mdb"_s)) {
      volume.Fill();
    }
  };
  Workspace workspace;
  EXPECT_RUNTIME_ERROR(Compaction(workspace, files, paths).CompactDatabases(),
                       ErrorNumber::DiskFull);
  EXPECT_EQ(NamesIn(small.Folder()), QStringList{kNote});
  EXPECT_RUNTIME_ERROR(Compaction(workspace, files, paths).CompactDatabases(),
                       ErrorNumber::DiskFull);
  volume.Free();
  Compaction(workspace, disk, paths).FinishInterrupted();
  EXPECT_EQ(NamesIn(small.Folder()), kBothFiles);
  EXPECT_EQ(DumpOf(paths.QuestionsDbPath), before);
}

}  // namespace
}  // namespace tessaly::test
