#include "backup/backup_form.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QTimer>

#include "app/main_window.h"
#include "tests/backup/backup_fixture.h"
#include "tests/support/form_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

const QString kBackupDescription =
    u"You are preparing to back up your study statistics to a floppy disk or other removable "
    u"media.  Select the drive containing the removal media and click OK to continue."_s;
const QString kRestoreDescriptionText =
    u"You are preparing to restore statistics from a removable disk.  This will overwrite the "
    u"statistics on your hard drive.  Click OK to continue."_s;

class BackupFormTest : public FormTest<frmBackup> {
protected:
  BackupFormTest() { Insert(u"Stick"_s, stick.path()); }

  void Insert(const QString& label, const QString& path) { drives.removable.append({label, path}); }
  void Open() {
    form = std::make_unique<frmBackup>(program, errors, window, nullptr);
    Show();
  }
  [[nodiscard]] QString TextOf(const QString& name) const { return Find<QLabel>(name)->text(); }
  [[nodiscard]] QComboBox* List() const { return Find<QComboBox>(u"drvSelectDrive"_s); }
  [[nodiscard]] const QString& Selected() { return State().Backup.SelectedDrive; }

  QTemporaryDir stick;
  FakeWindow window;
};

TEST_F(BackupFormTest, IsCaptionedByTheDirectionAndShowsItsTexts) {
  Open();
  EXPECT_EQ(form->windowTitle(), u"Back Up Statistics"_s);
  EXPECT_EQ(TextOf(u"lblSelectFloppy"_s), u"Select drive:"_s);
  EXPECT_EQ(TextOf(u"lblDesc"_s), kBackupDescription);
  EXPECT_EQ(CaptionOf(u"OKButton"_s), u"OK"_s);
  EXPECT_EQ(CaptionOf(u"CancelButton"_s), u"Cancel"_s);
  State().Backup.Direction = kRestore;
  Open();
  EXPECT_EQ(form->windowTitle(), u"Restore Statistics"_s);
}

TEST_F(BackupFormTest, TheSelectedDriveFollowsTheList) {
  QTemporaryDir other;
  Insert(u"Other"_s, other.path());
  Open();
  EXPECT_EQ(List()->currentText(), u"Stick"_s);
  EXPECT_EQ(Selected(), stick.path());
  QTest::keyClick(List(), Qt::Key_Down);
  EXPECT_EQ(List()->currentText(), u"Other"_s);
  EXPECT_EQ(Selected(), other.path());
  Click(u"OKButton"_s);
  EXPECT_EQ(NamesIn(other.path()), QStringList{kAnswersFileName});
  EXPECT_EQ(NamesIn(stick.path()), QStringList());
}

TEST_F(BackupFormTest, EscapeAndCancelCloseItAndChangeNothing) {
  Open();
  Press(Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible());
  Open();
  Click(u"CancelButton"_s);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(NamesIn(stick.path()), QStringList());
}

TEST_F(BackupFormTest, EnterBacksUpAndClosesIt) {
  Open();
  Press(Qt::Key_Return);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(NamesIn(stick.path()), QStringList{kAnswersFileName});
}

TEST_F(BackupFormTest, WhileItWorksOnlyTheDescriptionIsThereAndNothingClosesIt) {
  Open();
  const QSize size = form->size();
  drives.removable.clear();
  boxes.answers = {BoxAnswer::Cancel};
  boxes.whenShown = [&] {
    EXPECT_EQ(TextOf(u"lblDesc"_s), u"Please wait while Tessaly backs up your statistics..."_s);
    for (const QString& name :
         {u"OKButton"_s, u"CancelButton"_s, u"lblSelectFloppy"_s, u"drvSelectDrive"_s}) {
      EXPECT_FALSE(IsShown(name)) << name.toStdString();
    }
    EXPECT_TRUE(IsShown(u"lblDesc"_s));
    form->close();
    form->reject();
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(form->size(), size);
  };
  Click(u"OKButton"_s);
  EXPECT_EQ(boxes.shown, QStringList{kBackupRequest});
  EXPECT_FALSE(form->isVisible());
}

TEST_F(BackupFormTest, WithoutADriveItSaysSoAndOkChangesNothing) {
  drives.removable.clear();
  Open();
  EXPECT_FALSE(IsShown(u"drvSelectDrive"_s));
  EXPECT_TRUE(IsShown(u"lblNoDrive"_s));
  EXPECT_EQ(TextOf(u"lblNoDrive"_s), u"No removable drive is connected."_s);
  EXPECT_EQ(Selected(), QString());
  boxes.answers = {BoxAnswer::Ok};
  Click(u"OKButton"_s);
  EXPECT_EQ(boxes.shown, QStringList{kBackupRequest});
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(NamesIn(bank.Folder()), (QStringList{kAnswersFileName, kQuestionsFileName}));
}

TEST_F(BackupFormTest, ADriveThatIsConnectedMeanwhileAppears) {
  drives.removable.clear();
  Open();
  Insert(u"Late"_s, stick.path());
  EXPECT_TRUE(QTest::qWaitFor([this] { return IsShown(u"drvSelectDrive"_s); }));
  EXPECT_FALSE(IsShown(u"lblNoDrive"_s));
  EXPECT_EQ(Selected(), stick.path());
}

TEST_F(BackupFormTest, ADriveThatIsTakenOutStaysInTheListAndAsksForItsDisk) {
  Open();
  drives.removable.clear();
  QTest::qWait(1200);
  EXPECT_EQ(List()->count(), 1);
  boxes.answers = {BoxAnswer::Ok};
  boxes.whenShown = [this] { Insert(u"Stick"_s, stick.path()); };
  Click(u"OKButton"_s);
  EXPECT_EQ(boxes.shown, QStringList{kBackupRequest});
  EXPECT_EQ(NamesIn(stick.path()), QStringList{kAnswersFileName});
}

TEST_F(BackupFormTest, WhatCannotBeTidiedUpIsReportedAndClosesIt) {
  Open();
  State().Paths.AnswersDbPath = bank.Folder();
  QFile locked(QDir(bank.Folder()).filePath(kExportFileName));
  boxes.answers = {BoxAnswer::Cancel};
  boxes.whenShown = [&] {
    if (boxes.shown.size() == 1) {
      EXPECT_TRUE(locked.remove() && QDir(bank.Folder()).mkdir(kExportFileName));
    }
  };
  Click(u"OKButton"_s);
  ASSERT_EQ(boxes.shown.size(), 2);
  EXPECT_TRUE(boxes.shown[1].contains(u"Run-time error '70'"_s)) << boxes.shown[1].toStdString();
  EXPECT_FALSE(form->isVisible());
}

// The commands in the main window.
class BackupCommandsTest : public BackupFormTest {
protected:
  BackupCommandsTest() {
    mainWindow.Attach(windowed);
    windowed.Prepare();
    mainWindow.Form_Load();
    mainWindow.show();
  }

  // Opens the command's dialog and clicks OK in it; what it showed is "caption|label|description".
  QString Choose(const QString& command, const QString& button = u"OKButton"_s) {
    QString shown;
    QTimer::singleShot(0, [&] {
      const auto* dialog = mainWindow.findChild<frmBackup*>();
      ASSERT_NE(dialog, nullptr);
      EXPECT_TRUE(dialog->isModal());
      shown = QStringList{dialog->windowTitle(),
                          dialog->findChild<QLabel*>(u"lblSelectFloppy"_s)->text(),
                          dialog->findChild<QLabel*>(u"lblDesc"_s)->text()}
                  .join(u'|');
      dialog->findChild<QAbstractButton*>(button)->click();
    });
    mainWindow.findChild<QAction*>(command)->trigger();
    return shown;
  }
  void CountTo(int value) {
    bank.RunOnAnswers(u"UPDATE SubjectStats SET TMAsked = ? WHERE Subject = ?"_s,
                      {value, TestBank::SubjectName(5)});
  }
  [[nodiscard]] QString Counted() { return bank.SubjectRow(TestBank::SubjectName(5)); }

  frmMain mainWindow{boxes};
  Program windowed{{settings, clock, boxes, files, drives, printer, desktop, browserWindow},
                   bank.Folder(),
                   mainWindow};
};

TEST_F(BackupCommandsTest, BackUpAndRestoreGiveTheDialogTheirTexts) {
  EXPECT_EQ(Choose(u"mnuFileExport"_s, u"CancelButton"_s),
            u"Back Up Statistics|Select destination drive:|"_s + kBackupDescription);
  EXPECT_EQ(Choose(u"mnuFileImport"_s, u"CancelButton"_s),
            u"Restore Statistics|Select source drive:|"_s + kRestoreDescriptionText);
}

TEST_F(BackupCommandsTest, BackUpAfterRestoreRestoresOnceMoreAndTheNextOneBacksUp) {
  CountTo(1);
  Choose(u"mnuFileExport"_s);
  Choose(u"mnuFileImport"_s);
  CountTo(2);
  // No export file is left by now, so the import fails at its end.
  boxes.answers = {BoxAnswer::Cancel};
  EXPECT_EQ(Choose(u"mnuFileExport"_s),
            u"Restore Statistics|Select destination drive:|"_s + kBackupDescription);
  EXPECT_EQ(boxes.shown, QStringList{kRestoreRequest});
  EXPECT_EQ(Counted(), u"1 0 0 0"_s);
  CountTo(3);
  EXPECT_EQ(Choose(u"mnuFileExport"_s),
            u"Back Up Statistics|Select destination drive:|"_s + kBackupDescription);
  CountTo(4);
  Choose(u"mnuFileImport"_s);
  EXPECT_EQ(Counted(), u"3 0 0 0"_s);
}

TEST_F(BackupCommandsTest, ARestorePutsTheMainWindowWhereItWas) {
  mainWindow.move(100, 120);
  mainWindow.resize(700, 500);
  Choose(u"mnuFileExport"_s);
  mainWindow.move(10, 20);
  mainWindow.resize(900, 600);
  Choose(u"mnuFileImport"_s);
  EXPECT_EQ(mainWindow.pos(), QPoint(100, 120));
  EXPECT_EQ(mainWindow.size(), QSize(700, 500));
  EXPECT_EQ(settings.values.value(u"Settings/MainLeft"_s), u"1500"_s);
  EXPECT_EQ(settings.values.value(u"Settings/MainWidth"_s), u"10500"_s);
}

TEST_F(BackupCommandsTest, AMaximizedWindowTakesThePlaceAsWell) {
  mainWindow.resize(700, 500);
  Choose(u"mnuFileExport"_s);
  mainWindow.showMaximized();
  Choose(u"mnuFileImport"_s);
  EXPECT_FALSE(mainWindow.isMaximized());
  EXPECT_EQ(mainWindow.size(), QSize(700, 500));
}

// Without an export file the place is all zeros.
TEST_F(BackupCommandsTest, AWindowWithoutSizeStaysAtItsSmallestAndCanBeEnlarged) {
  Choose(u"mnuFileExport"_s);
  ASSERT_TRUE(QFile::remove(QDir(bank.Folder()).filePath(kExportFileName)));
  boxes.answers = {BoxAnswer::Cancel};
  Choose(u"mnuFileImport"_s);
  EXPECT_EQ(mainWindow.pos(), QPoint(0, 0));
  EXPECT_EQ(mainWindow.width(), 136);
  EXPECT_GT(mainWindow.height(), 15);
  EXPECT_EQ(settings.values.value(u"Settings/MainWidth"_s),
            QString::number(15 * mainWindow.width()));
  EXPECT_EQ(settings.values.value(u"Settings/MainHeight"_s),
            QString::number(15 * mainWindow.height()));
  mainWindow.resize(800, 600);
  EXPECT_EQ(mainWindow.size(), QSize(800, 600));
}

}  // namespace
}  // namespace tessaly::test
