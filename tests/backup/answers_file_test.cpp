#include "backup/answers_file.h"

#include "store/connection.h"
#include "tests/backup/backup_copies_fixture.h"
#include "tests/support/child_process.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

// The files that a backup or restore meets: whole ones, and those that are none.
class AnswersFileTest : public BackupCopiesTest {};

TEST_F(AnswersFileTest, WhatIsNoWholeAnswersFileIsNeverRestored) {
  const QString foreign = QDir(bank.WorkingFolder()).filePath(u"foreign"_s);
  {
    Connection file(foreign, u"another password"_s, Connection::Access::CreateNew);
    file.Execute(u"CREATE TABLE SubjectStats (Subject TEXT)"_s);
  }
  QByteArray damaged = older;
  damaged[older.size() / 2] = static_cast<char>(~damaged[older.size() / 2]);
  const QByteArray noise = QByteArray(older).replace(0, 5000, QByteArray(5000, 'n'));
  for (const QByteArray& content :
       {QByteArray(), QByteArray("a text"), noise, damaged, older.first(1024), older.first(3000),
        older.first(older.size() - 1024), older.first(older.size() / 2), ReadBytes(foreign),
        ReadBytes(bank.Paths().QuestionsDbPath)}) {
    SCOPED_TRACE(content.size());
    Reset();
    WriteBytes(OnDrive(), content);
    boxes.answers = {BoxAnswer::Ok, BoxAnswer::Cancel};
    RunOn(files, kRestore);
    EXPECT_EQ(boxes.shown, (QStringList{kRestoreRequest, kRestoreRequest}));
    EXPECT_EQ(ReadBytes(OnDrive()), content);
    ExpectNothingChanged();
  }
}

TEST_F(AnswersFileTest, AnAnswersFileThatLacksSomethingIsNeverRestored) {
  for (const QString& sql :
       {u"DROP TABLE \"96Part4\""_s, u"DROP TABLE SubjectStats"_s,
        u"DELETE FROM SubjectStats WHERE Subject = 'Subject 86'"_s,
        u"ALTER TABLE SubjectStats RENAME TO Others"_s,
        u"UPDATE SubjectStats SET EMCorrect = 40000 WHERE Subject = 'Subject 86'"_s}) {
    SCOPED_TRACE(sql.toStdString());
    Reset();
    {
      Connection file(OnDrive(), kPassword, Connection::Access::OpenExisting);
      file.Execute(sql);
    }
    boxes.answers = {BoxAnswer::Cancel};
    RunOn(files, kRestore);
    EXPECT_EQ(boxes.shown, QStringList{kRestoreRequest});
    ExpectNothingChanged();
  }
}

TEST_F(AnswersFileTest, AStatusTableWithoutAFieldIsNeverRestored) {
  {
    Connection file(OnDrive(), kPassword, Connection::Access::OpenExisting);
    file.Execute(u"DROP TABLE \"01Part1\""_s);
    file.Execute(u"CREATE TABLE \"01Part1\" (QuestionNo INTEGER, TutorialMode TEXT)"_s);
    file.Execute(u"INSERT INTO \"01Part1\" VALUES (1, 'U')"_s);
  }
  boxes.answers = {BoxAnswer::Cancel};
  RunOn(files, kRestore);
  EXPECT_EQ(boxes.shown, QStringList{kRestoreRequest});
  ExpectNothingChanged();
}

TEST_F(AnswersFileTest, ADriveWithoutABackupAsksForAnother) {
  ASSERT_TRUE(QFile::remove(OnDrive()));
  boxes.answers = {BoxAnswer::Cancel};
  RunOn(files, kRestore);
  EXPECT_EQ(boxes.shown, QStringList{kRestoreRequest});
  ExpectNothingChanged();
  ASSERT_TRUE(QDir(stick.path()).mkdir(kAnswersFileName));
  dialog.Clear();
  boxes.answers = {BoxAnswer::Cancel};
  RunOn(files, kRestore);
  ExpectNothingChanged();
  EXPECT_TRUE(QDir(stick.path()).rmdir(kAnswersFileName));
}

TEST_F(AnswersFileTest, ADamagedFileNeverReplacesAGoodBackup) {
  FlipByte(Answers(), newer.size() / 2);
  boxes.answers = {BoxAnswer::Cancel};
  Run(kBackUp);
  EXPECT_EQ(boxes.shown, QStringList{kBackupRequest});
  EXPECT_EQ(ReadBytes(OnDrive()), older);
  EXPECT_EQ(NamesIn(stick.path()), QStringList{kAnswersFileName});
}

TEST_F(AnswersFileTest, ADamagedOrMissingFileCanBeRestored) {
  for (const QByteArray& content : {QByteArray("a text"), newer.first(1024)}) {
    Reset();
    WriteBytes(Answers(), content);
    Run(kRestore);
    EXPECT_EQ(boxes.shown, QStringList());
    EXPECT_EQ(ReadBytes(Answers()), older);
  }
  Reset();
  ASSERT_TRUE(QFile::remove(Answers()));
  Run(kRestore);
  EXPECT_EQ(ReadBytes(Answers()), older);
}

// The engine would take the journal for the restored file's and spoil it.
TEST_F(AnswersFileTest, AJournalThatWasLeftBehindIsSettledBeforeTheFileIsReplaced) {
  Reset();
  ChildProcess killed([this](const std::function<void()>& standStill) {
    Connection file(Answers(), kPassword, Connection::Access::OpenExisting);
    file.Execute(u"PRAGMA cache_size = 1"_s);
    file.Execute(u"BEGIN"_s);
    file.Execute(u"UPDATE \"01Part1\" SET TimesAsked = 99"_s);
    file.Execute(u"UPDATE SubjectStats SET TMAsked = 99"_s);
    standStill();
  });
  ASSERT_TRUE(killed.StandsStill());
  killed.Kill();
  const QString journal = Answers() + u"-journal"_s;
  ASSERT_TRUE(QFile::exists(journal));
  const QByteArray journalBytes = ReadBytes(journal);
  const QByteArray tornBytes = ReadBytes(Answers());
  Run(kRestore);
  EXPECT_FALSE(QFile::exists(journal));
  EXPECT_EQ(ReadBytes(Answers()), older);
  EXPECT_TRUE(bank.IsIntact());

  Reset();
  WriteBytes(Answers(), tornBytes);
  WriteBytes(journal, journalBytes);
  Run(kBackUp);
  EXPECT_EQ(boxes.shown, QStringList());
  EXPECT_EQ(DumpOf(OnDrive()), DumpOf(Answers()));
  EXPECT_EQ(bank.SubjectRow(TestBank::SubjectName(5)), u"7 0 0 0"_s);
}

TEST_F(AnswersFileTest, AFileInUseByAnotherProcessIsNotReplaced) {
  const ChildProcess other([this](const std::function<void()>& standStill) {
    const Connection file(Answers(), kPassword, Connection::Access::OpenExisting);
    standStill();
  });
  ASSERT_TRUE(other.StandsStill());
  boxes.answers = {BoxAnswer::Cancel};
  Run(kRestore);
  EXPECT_EQ(boxes.shown, QStringList{kRestoreRequest});
  ExpectNothingChanged();
}

}  // namespace
}  // namespace tessaly::test
