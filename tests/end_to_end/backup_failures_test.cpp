// Backup and restore with the program as it ships and a drive that is mounted as the desktop does
// it: whatever fails leaves each file as it was or as it was to become, and the program usable.

#include "store/connection.h"
#include "tests/end_to_end/disk_test.h"
#include "tests/end_to_end/statistics_commands.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

constexpr int kDriveKibibytes = 4096;
constexpr int kRowsATable = 300;
// A copy takes several times as many blocks; a dialog that hangs allows one look or two.
constexpr int kFewestLooks = 5;
const QString kBackup = u"mnuFileExport"_s;
const QString kRestore = u"mnuFileImport"_s;

// The drive holds a backup; the program has counted on since.
class BackupFailureTest : public DiskTest {
protected:
  explicit BackupFailureTest(ProgramFolderIs place = ProgramFolderIs::Elsewhere) : DiskTest(place) {
    FillStatistics(Bank(), kRowsATable);
    older = ReadBytes(Answers());
    AnswerEverything(Bank(), 2);
    newer = ReadBytes(Answers());
  }

  void SetUp() override {
    SKIP_UNLESS_MOUNTED(disk);
    SKIP_UNLESS_MOUNTED(drive);
    WriteBytes(OnDrive(), older);
  }
  [[nodiscard]] QString Answers() { return Bank().Paths().AnswersDbPath; }
  [[nodiscard]] QString OnDrive() const { return drive.FilePath(kAnswersFileName); }

  // Opens the command's dialog and clicks OK in it.
  void Choose(const QString& command) {
    OpenBackupDialog(program, command, drive.Folder());
    program.Click(u"OKButton"_s);
  }
  void Start(const QString& command) {
    OpenBackupDialog(program, command, drive.Folder());
    program.Start({u"click"_s, u"OKButton"_s});
  }
  void AnswerRequest(const QString& command, const QString& answer) {
    const BoxContent box = program.WaitForBox();
    EXPECT_EQ(box.title, u"Tessaly Backup/Restore"_s);
    EXPECT_EQ(box.text,
              command == kRestore
                  ? u"Please put a floppy disk containing backup files in your disk drive"_s
                  : u"Please put a floppy disk in your disk drive"_s);
    EXPECT_EQ(box.icon, u"Warning"_s);
    EXPECT_EQ(box.buttons, (QStringList{u"OK"_s, u"Cancel"_s}));
    program.AnswerBox(answer);
  }
  void ExpectClosed() {
    WaitUntilClosed(program, u"frmBackup"_s);
    EXPECT_EQ(program.Windows(), QStringList{u"frmMain"_s});
  }
  void ExpectFiles(const QByteArray& inFolder, const QByteArray& onDrive) {
    EXPECT_TRUE(ReadBytes(Answers()) == inFolder);
    EXPECT_TRUE(ReadBytes(OnDrive()) == onDrive);
    EXPECT_TRUE(Bank().IsIntact());
    EXPECT_FALSE(QFile::exists(Answers() + u".new"_s));
    EXPECT_FALSE(QFile::exists(OnDrive() + u".new"_s));
  }
  void ExpectBothWork() {
    Choose(kBackup);
    ExpectClosed();
    ExpectFiles(newer, newer);
    WriteBytes(OnDrive(), older);
    Choose(kRestore);
    ExpectClosed();
    ExpectFiles(older, older);
  }
  // A backup and a restore of it, and a session.
  void ExpectUsable() {
    Choose(kBackup);
    ExpectClosed();
    Choose(kRestore);
    ExpectClosed();
    EXPECT_TRUE(Bank().IsIntact());
    program.Press(u"Ctrl+B"_s);
    program.WaitForVisible(u"txtQuestion"_s);
  }

  SmallDisk drive{kDriveKibibytes, DiskPlace::Media};
  QByteArray older;
  QByteArray newer;
};

class DriveTest : public BackupFailureTest {
protected:
  DriveTest() {
    // So that there is a question left to study.
    installation.Store(u"StudyMode/Mode"_s, u"1"_s);
    installation.Store(u"StudyMode/QuestionType"_s, u"2"_s);
  }
};

TEST_F(DriveTest, AMountedDriveTakesABackupAndGivesItBack) {
  program.StartToMainWindow();
  ExpectBothWork();
  EXPECT_FALSE(QFile::exists(installation.Folder() + u"/tessaly02s.ini"_s));
}

TEST_F(DriveTest, AFullDriveKeepsItsBackupUntilThereIsRoom) {
  program.StartToMainWindow();
  drive.Fill();
  Choose(kBackup);
  AnswerRequest(kBackup, u"OK"_s);
  static_cast<void>(program.WaitForBox());
  ExpectFiles(newer, older);
  drive.Free();
  AnswerRequest(kBackup, u"OK"_s);
  ExpectClosed();
  ExpectFiles(newer, newer);
  ExpectUsable();
}

TEST_F(DriveTest, WhatIsNoWholeBackupIsNeverRestored) {
  const QString foreign = installation.WorkingFolder() + u"/foreign"_s;
  Connection(foreign, u"another password"_s, Connection::Access::CreateNew)
      .Execute(u"CREATE TABLE SubjectStats (Subject TEXT)"_s);
  QByteArray damaged = older;
  damaged[older.size() / 2] = static_cast<char>(~damaged[older.size() / 2]);
  program.StartToMainWindow();
  for (const QByteArray& content :
       {QByteArray(), QByteArray("A letter.\n"), damaged, older.first(older.size() / 2),
        older.first(older.size() - 1024), ReadBytes(foreign),
        ReadBytes(Bank().Paths().QuestionsDbPath)}) {
    SCOPED_TRACE(content.size());
    WriteBytes(OnDrive(), content);
    Choose(kRestore);
    AnswerRequest(kRestore, u"OK"_s);
    AnswerRequest(kRestore, u"Cancel"_s);
    ExpectClosed();
    ExpectFiles(newer, content);
    // The next backup would otherwise restore.
    OpenBackupDialog(program, kBackup, drive.Folder());
    program.Click(u"CancelButton"_s);
  }
  ExpectUsable();
}

// A drive that takes its time, so that the work on it can be watched.
class SlowDriveTest : public DriveTest {
protected:
  SlowDriveTest() {
    constexpr int kMillisecondsABlock = 60;
    installation.SlowDown(drive.Folder(), kMillisecondsABlock);
  }

  void ExpectPulledOut(const QString& command, const QString& copy) {
    program.StartToMainWindow();
    Start(command);
    program.WaitUntil(u"the first block"_s, [&copy] { return QFileInfo(copy).size() > 0; });
    drive.TakeOut();
    AnswerRequest(command, u"OK"_s);
    AnswerRequest(command, u"Cancel"_s);
    ExpectClosed();
    EXPECT_TRUE(ReadBytes(Answers()) == newer);
    EXPECT_TRUE(Bank().IsIntact());
    EXPECT_FALSE(QFile::exists(Answers() + u".new"_s));
    EXPECT_EQ(NamesIn(drive.Folder()), QStringList());
    program.Press(u"Ctrl+B"_s);
    program.WaitForVisible(u"txtQuestion"_s);
  }
  // How often the dialog could be looked at while it was at work.
  int LookWhileWorking(const QString& command, const QString& text) {
    program.StartToMainWindow();
    Start(command);
    EXPECT_EQ(program.Text(u"lblDesc"_s), text);
    EXPECT_FALSE(program.IsVisible(u"OKButton"_s));
    int looks = 0;
    while (program.Windows().contains(u"frmBackup"_s)) {
      ++looks;
    }
    EXPECT_FALSE(program.HasBox());
    return looks;
  }
};

TEST_F(SlowDriveTest, PulledOutHalfWayThroughARestoreItHarmsNothing) {
  ExpectPulledOut(kRestore, Answers() + u".new"_s);
}

TEST_F(SlowDriveTest, PulledOutHalfWayThroughABackupItHarmsNothing) {
  ExpectPulledOut(kBackup, OnDrive() + u".new"_s);
  EXPECT_FALSE(QFile::exists(installation.Folder() + u"/tessaly02s.ini"_s));
}

TEST_F(SlowDriveTest, ARestoreFromItKeepsTheDialogAlive) {
  WriteBytes(installation.Folder() + u"/tessaly02s.ini"_s, "[StudyMode]\nMode=1\n");
  EXPECT_GE(LookWhileWorking(kRestore, u"Please wait while Tessaly restores your statistics..."_s),
            kFewestLooks);
  ExpectFiles(older, older);
}

TEST_F(SlowDriveTest, ABackupToItKeepsTheDialogAlive) {
  EXPECT_GE(LookWhileWorking(kBackup, u"Please wait while Tessaly backs up your statistics..."_s),
            kFewestLooks);
  ExpectFiles(newer, newer);
}

// The disk that the program folder lies on.
class BackupProgramFolderTest : public BackupFailureTest {
protected:
  BackupProgramFolderTest() : BackupFailureTest(ProgramFolderIs::OnTheDisk) {}

  void ExpectBothFail() {
    for (const QString& command : {kBackup, kRestore}) {
      SCOPED_TRACE(command.toStdString());
      Choose(command);
      AnswerRequest(command, u"OK"_s);
      AnswerRequest(command, u"Cancel"_s);
      ExpectClosed();
      ExpectFiles(newer, older);
    }
    EXPECT_FALSE(QFile::exists(installation.Folder() + u"/tessaly02s.ini"_s));
    // The next backup would otherwise restore.
    OpenBackupDialog(program, kBackup, drive.Folder());
    program.Click(u"CancelButton"_s);
  }
};

TEST_F(BackupProgramFolderTest, AFullOneFailsBothWaysUntilThereIsRoom) {
  program.StartToMainWindow();
  disk.Fill();
  ExpectBothFail();
  disk.Free();
  ExpectBothWork();
}

TEST_F(BackupProgramFolderTest, AReadOnlyOneFailsBothWaysUntilItCanBeWritten) {
  disk.SetReadOnly(true);
  program.StartToMainWindow();
  ExpectBothFail();
  disk.SetReadOnly(false);
  ExpectBothWork();
}

}  // namespace
}  // namespace tessaly::test
