#include "tests/end_to_end/disk_test.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class DiskFailureTest : public DiskTest {
protected:
  using DiskTest::DiskTest;

  void ExpectBeginFails(int number, const QString& text) {
    program.Press(u"Ctrl+B"_s);
    ExpectErrorBox(number, text);
    EXPECT_FALSE(program.IsVisible(u"txtQuestion"_s));
    EXPECT_TRUE(program.IsEnabled(u"mnuFileBegin"_s));
  }
  void ExpectBeginWorks() {
    program.Press(u"Ctrl+B"_s);
    program.WaitForVisible(u"txtQuestion"_s);
  }
  void ExpectNothingAnswered() {
    EXPECT_TRUE(Bank().IsIntact());
    EXPECT_EQ(Bank().StatusRow(u"01Part1"_s, 1), u"U U U 0 0"_s);
    EXPECT_EQ(Bank().SubjectRow(TestBank::SubjectName(5)), u"0 0 0 0"_s);
  }
};

class ProgramFolderDiskTest : public DiskFailureTest {
protected:
  ProgramFolderDiskTest() : DiskFailureTest(ProgramFolderIs::OnTheDisk) {}
};

TEST_F(ProgramFolderDiskTest, AFullOneStopsABeginAndHarmsNothing) {
  program.StartToMainWindow();
  disk.Fill();
  ExpectBeginFails(61, kDiskFull);
  ExpectNothingAnswered();
  disk.Free();
  ExpectBeginWorks();
}

TEST_F(ProgramFolderDiskTest, AFullOneDoesNotCountAnAnswerUntilThereIsRoom) {
  Begin();
  disk.Fill();
  program.Click(u"cmdA"_s);
  ExpectErrorBox(61, kDiskFull);
  EXPECT_FALSE(program.IsVisible(u"txtAnswer"_s));
  EXPECT_EQ(program.Text(u"txtRightWrong"_s), u"     Question #1"_s);
  disk.Free();
  program.Click(u"cmdA"_s);
  EXPECT_TRUE(program.IsVisible(u"txtAnswer"_s));
  program.Press(u"Ctrl+E"_s);
  EXPECT_EQ(Bank().StatusRow(u"01Part1"_s, 1), u"C U P 1 1"_s);
  EXPECT_EQ(Bank().SubjectRow(TestBank::SubjectName(5)), u"1 1 0 0"_s);
}

TEST_F(ProgramFolderDiskTest, AReadOnlyOneLetsTheProgramStartAndStopsABegin) {
  disk.SetReadOnly(true);
  program.StartToMainWindow();
  ExpectBeginFails(70, kPermissionDenied);
  disk.SetReadOnly(false);
  ExpectNothingAnswered();
  ExpectBeginWorks();
}

class WorkingFolderDiskTest : public DiskFailureTest {
protected:
  WorkingFolderDiskTest() { installation.UseWorkingFolder(disk.Folder()); }
};

TEST_F(WorkingFolderDiskTest, AFullOneStopsABeginAndLeavesNoCopies) {
  program.StartToMainWindow();
  disk.Fill();
  ExpectBeginFails(61, kDiskFull);
  ExpectNothingAnswered();
  EXPECT_EQ(NamesIn(disk.Folder()), QStringList{u"ballast"_s});
  disk.Free();
  ExpectBeginWorks();
}

TEST_F(WorkingFolderDiskTest, AReadOnlyOneStopsABegin) {
  disk.SetReadOnly(true);
  program.StartToMainWindow();
  ExpectBeginFails(70, kPermissionDenied);
  ExpectNothingAnswered();
  disk.SetReadOnly(false);
  ExpectBeginWorks();
}

class ConfigFolderDiskTest : public DiskFailureTest {
protected:
  ConfigFolderDiskTest() { installation.UseConfigFolder(disk.Folder()); }

  void ExpectClosingFails(int number, const QString& text) {
    const QByteArray before = ReadBytes(installation.SettingsPath());
    program.Move(40, 50);
    program.Close(u"frmMain"_s);
    ExpectErrorBox(number, text);
    EXPECT_EQ(program.WaitForExit(), 0);
    EXPECT_EQ(ReadBytes(installation.SettingsPath()), before);
  }
};

TEST_F(ConfigFolderDiskTest, AFullOneKeepsTheSettingsAsTheyWere) {
  program.StartToMainWindow();
  disk.Fill();
  ExpectClosingFails(61, kDiskFull);
}

TEST_F(ConfigFolderDiskTest, AReadOnlyOneKeepsTheSettingsAsTheyWere) {
  disk.SetReadOnly(true);
  program.StartToMainWindow();
  ExpectClosingFails(70, kPermissionDenied);
}

TEST_F(ConfigFolderDiskTest, AFullOneStopsSavingTheTimeButNotTheStatistics) {
  installation.Store(u"Options/TimerStatus"_s, u"1"_s);
  Begin();
  program.Click(u"cmdA"_s);
  program.WaitUntil(u"the timer's first tick"_s,
                    [this] { return program.Panel(3).startsWith(u"Time Elapsed: "_s); });
  disk.Fill();
  program.Press(u"Ctrl+E"_s);
  ExpectErrorBox(61, kDiskFull);
  EXPECT_FALSE(program.IsVisible(u"txtQuestion"_s));
  EXPECT_EQ(Bank().SubjectRow(TestBank::SubjectName(5)), u"1 1 0 0"_s);
  disk.Free();
  ExpectBeginWorks();
}

}  // namespace
}  // namespace tessaly::test
