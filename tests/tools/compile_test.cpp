#include "tools/bank/compile.h"

#include <QFile>
#include <functional>

#include "platform/file_operations.h"
#include "store/database.h"
#include "store/runtime_error.h"
#include "tests/support/child_process.h"
#include "tests/support/small_disk.h"
#include "tests/tools/bank_files.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

// Does something of the test's before each change of a file.
class WatchedFiles : public DiskFileOperations {
public:
  explicit WatchedFiles(std::function<void()> beforeChange)
      : beforeChange_(std::move(beforeChange)) {}

  void Remove(const QString& path) override {
    beforeChange_();
    DiskFileOperations::Remove(path);
  }
  void Move(const QString& source, const QString& target) override {
    beforeChange_();
    DiskFileOperations::Move(source, target);
  }
  void Write(const QString& path, const QByteArray& content) override {
    beforeChange_();
    DiskFileOperations::Write(path, content);
  }

private:
  std::function<void()> beforeChange_;
};

class CompileTest : public BankFilesTest {
protected:
  CompileTest() { sources.WritePart(u"01Part1"_s, 1, 22); }

  // A compiled bank with an answer in it, and sources with more than that.
  void CompileAndExtend() {
    CompileWell();
    Run(paths.answers, u"UPDATE \"01Part1\" SET TimesAsked = 7 WHERE QuestionNo = 21"_s);
    sources.WritePart(u"01Part1"_s, 1, 25);
  }
  [[nodiscard]] QString TimesAsked() const {
    return Rows(paths.answers, u"SELECT TimesAsked FROM \"01Part1\" WHERE QuestionNo = 21"_s)
        .join(u' ');
  }
  [[nodiscard]] static int Count(const QString& path) {
    return Rows(path, u"SELECT count(*) FROM \"01Part1\""_s).value(0).toInt();
  }
  // Both files stay as they are when one of them makes the compilation fail.
  void ExpectRefusal(const QString& complaint) {
    const QByteArray questions = ReadBytes(paths.questions);
    const QByteArray answers = ReadBytes(paths.answers);
    const QStringList names = NamesIn(program.path());
    const ToolRun run = Compile();
    EXPECT_EQ(run.status, 1);
    ASSERT_EQ(run.err.size(), 1);
    EXPECT_TRUE(run.err[0].startsWith(complaint)) << run.err[0].toStdString();
    EXPECT_TRUE(ReadBytes(paths.questions) == questions);
    EXPECT_TRUE(ReadBytes(paths.answers) == answers);
    EXPECT_EQ(NamesIn(program.path()), names);
  }
};

TEST_F(CompileTest, BothFilesAreMadeAndNothingElseIsLeft) {
  CompileWell();
  EXPECT_EQ(NamesIn(program.path()), QStringList({u"tessaly02a.mdb"_s, u"tessaly02q.mdb"_s}));
  EXPECT_TRUE(Connection(paths.questions, kPassword, Connection::Access::OpenExisting).IsIntact());
  EXPECT_TRUE(Connection(paths.answers, kPassword, Connection::Access::OpenExisting).IsIntact());
}

TEST_F(CompileTest, AFileThatWasRemovedIsMadeAgain) {
  CompileAndExtend();
  ASSERT_TRUE(QFile::remove(paths.questions));
  CompileWell();
  EXPECT_EQ(Count(paths.questions), 25);
  EXPECT_EQ(TimesAsked(), u"7"_s);
  ASSERT_TRUE(QFile::remove(paths.answers));
  CompileWell();
  EXPECT_EQ(TimesAsked(), u"0"_s);
}

TEST_F(CompileTest, WhatARemovedOrUnfinishedFileLeftBehindDoesNoHarm) {
  CompileWell();
  ASSERT_TRUE(QFile::remove(paths.answers));
  for (const QString& leftover : {u"-journal"_s, u".new"_s, u".new-journal"_s}) {
    WriteBytes(paths.questions + leftover, QByteArray(3000, 'x'));
    WriteBytes(paths.answers + leftover, QByteArray(3000, 'x'));
  }
  CompileWell();
  EXPECT_EQ(NamesIn(program.path()), QStringList({u"tessaly02a.mdb"_s, u"tessaly02q.mdb"_s}));
  EXPECT_EQ(Count(paths.answers), 22);
}

TEST_F(CompileTest, FaultySourcesChangeNothing) {
  CompileAndExtend();
  sources.Replace(u"01Part1.yaml"_s, u"answer: True"_s, u"answer: Yes"_s);
  ExpectRefusal(u"01Part1.yaml:9: question 2: the answer 'Yes' is not True or False"_s);
}

TEST_F(CompileTest, AnUnfinishedBankIsCompiledAsFarAsItGoes) {
  sources.WriteSubjects({u"Basis of Assets"_s});
  CompileWell();
  EXPECT_EQ(RunTool({u"check"_s, sources.Path()}).status, 1);
}

TEST_F(CompileTest, AFileOfAnotherPasswordIsRefused) {
  CompileAndExtend();
  for (const QString& path : {paths.questions, paths.answers}) {
    const QByteArray before = ReadBytes(path);
    ASSERT_TRUE(QFile::remove(path));
    Connection(path, u"another"_s, Connection::Access::CreateNew)
        .Execute(u"CREATE TABLE Cards (No INTEGER)"_s);
    ExpectRefusal(u"Run-time error 3031: Not a valid password ("_s + path);
    WriteBytes(path, before);
  }
}

TEST_F(CompileTest, AForeignFileIsRefused) {
  CompileAndExtend();
  for (const QString& path : {paths.questions, paths.answers}) {
    const QByteArray before = ReadBytes(path);
    for (const QByteArray& foreign : {""_ba, "Dear diary"_ba, QByteArray(4096, '\0')}) {
      WriteBytes(path, foreign);
      ExpectRefusal(u"Run-time error 3343: Unrecognized database format ("_s + path);
    }
    WriteBytes(path, before);
  }
}

TEST_F(CompileTest, AFileThatARunningProgramHoldsIsRefused) {
  CompileAndExtend();
  for (const QString& path : {paths.questions, paths.answers}) {
    ChildProcess holder([&path](const std::function<void()>& standStill) {
      const Connection held(path, kPassword, Connection::Access::OpenExisting);
      standStill();
    });
    ASSERT_TRUE(holder.StandsStill());
    ExpectRefusal(u"Run-time error 70: Permission denied ("_s + path);
  }
  CompileWell();
  EXPECT_EQ(TimesAsked(), u"7"_s);
}

TEST_F(CompileTest, AnAnswersFileOfAnotherShapeIsLeftAlone) {
  CompileAndExtend();
  Run(paths.answers, u"DROP TABLE \"96Part4\""_s);
  Run(paths.answers, u"DROP TABLE SubjectStats"_s);
  Run(paths.answers, u"CREATE TABLE SubjectStats (Name TEXT)"_s);
  ExpectRefusal(u"Run-time error 3075: Syntax error in query expression ("_s + paths.answers);
}

TEST_F(CompileTest, AFailureOfAnyChangeLeavesEachFileOldOrNew) {
  CompileAndExtend();
  const bank::BankSource bank = sources.Read();
  for (int failing = 1; failing < 100; ++failing) {
    SCOPED_TRACE(failing);
    int changes = 0;
    WatchedFiles files([&changes, failing] {
      ++changes;
      if (changes == failing) {
        throw RuntimeError(ErrorNumber::DiskFull);
      }
    });
    try {
      bank::CompileBank(bank, paths, files);
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), ErrorNumber::DiskFull);
    }
    EXPECT_EQ(TimesAsked(), u"7"_s);
    EXPECT_TRUE(Count(paths.questions) == 22 || Count(paths.questions) == 25);
    if (changes < failing) {
      EXPECT_GT(failing, 4);
      EXPECT_EQ(Count(paths.questions), 25);
      return;
    }
  }
  FAIL() << "the compilation never came to its end";
}

TEST_F(CompileTest, BeingKilledLeavesEachFileOldOrNew) {
  CompileAndExtend();
  const bank::BankSource bank = sources.Read();
  for (int last = 1; last < 100; ++last) {
    SCOPED_TRACE(last);
    ChildProcess compiler([&](const std::function<void()>& standStill) {
      int changes = 0;
      WatchedFiles files([&] {
        ++changes;
        if (changes == last) {
          standStill();
        }
      });
      bank::CompileBank(bank, paths, files);
    });
    const bool killed = compiler.StandsStill();
    compiler.Kill();
    EXPECT_EQ(TimesAsked(), u"7"_s);
    EXPECT_TRUE(Count(paths.questions) == 22 || Count(paths.questions) == 25);
    EXPECT_GE(Count(paths.answers), Count(paths.questions));
    if (!killed) {
      EXPECT_GT(last, 4);
      CompileWell();
      EXPECT_EQ(Count(paths.questions), 25);
      return;
    }
  }
  FAIL() << "the compilation never came to its end";
}

TEST_F(CompileTest, AFullDiskLeavesBothFilesAsTheyWere) {
  SmallDisk disk(512);
  SKIP_UNLESS_MOUNTED(disk);
  paths = {disk.FilePath(kQuestionsFileName), disk.FilePath(kAnswersFileName)};
  CompileAndExtend();
  disk.Fill();
  const ToolRun run = Compile();
  disk.Free();
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(Count(paths.questions), 22);
  EXPECT_EQ(TimesAsked(), u"7"_s);
  CompileWell();
  EXPECT_EQ(Count(paths.questions), 25);
  EXPECT_EQ(TimesAsked(), u"7"_s);
}

TEST_F(CompileTest, ACompactionThatWasCutOffIsFinishedFirst) {
  CompileAndExtend();
  const QTemporaryDir elsewhere;
  const QString questions = elsewhere.filePath(u"tempdb.mdb"_s);
  const QString answers = elsewhere.filePath(u"tempdba.mdb"_s);
  ASSERT_TRUE(QFile::rename(paths.questions, questions));
  ASSERT_TRUE(QFile::rename(paths.answers, answers));
  WriteBytes(program.filePath(u"tessaly02.compacting"_s),
             u"%1\n%2\n"_s.arg(questions, answers).toUtf8());
  CompileWell();
  EXPECT_EQ(TimesAsked(), u"7"_s);
  EXPECT_EQ(Count(paths.answers), 25);
  EXPECT_EQ(NamesIn(program.path()), QStringList({u"tessaly02a.mdb"_s, u"tessaly02q.mdb"_s}));
}

}  // namespace
}  // namespace tessaly::test
