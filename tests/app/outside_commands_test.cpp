// The main window's commands that lead out of the program.

#include <QAction>
#include <QApplication>
#include <QTest>
#include <QTimer>

#include "app/main_window.h"
#include "reference/updater_form.h"
#include "reference/web_links.h"
#include "tests/support/program_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class OutsideCommandsTest : public ProgramTest {
protected:
  OutsideCommandsTest() {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    mainWindow.Attach(windowed);
    windowed.Prepare();
    mainWindow.Form_Load();
    mainWindow.show();
  }
  void Trigger(const QString& command) {
    auto* action = mainWindow.findChild<QAction*>(command);
    ASSERT_NE(action, nullptr) << command.toStdString();
    ASSERT_TRUE(action->isEnabled()) << command.toStdString();
    action->trigger();
  }

  frmMain mainWindow{boxes};
  Program windowed{{settings, clock, boxes, files, drives, printer, desktop, browserWindow},
                   bank.Folder(),
                   mainWindow};
};

TEST_F(OutsideCommandsTest, BeforeItsDateTheExamApplicationShowsItsMessageAndOpensNothing) {
  clock.now = QDateTime(QDate(2002, 5, 31), QTime(23, 59));
  Trigger(u"mnu2587"_s);
  EXPECT_EQ(boxes.shown,
            QStringList{u"Tessaly - 2002 Edition|The new version of Form 2587 will not be "
                        "available on the IRS website until June 1, 2002.  Tessaly will not "
                        "print Form 2587 until on or after June 1, 2002."_s});
  EXPECT_EQ(browserWindow.told, QStringList());
}

TEST_F(OutsideCommandsTest, FromItsDateOnTheExamApplicationOpensTheForm) {
  clock.now = QDateTime(QDate(2002, 6, 1), QTime(0, 0));
  Trigger(u"mnu2587"_s);
  EXPECT_EQ(boxes.shown, QStringList());
  EXPECT_EQ(browserWindow.address, QUrl(u"https://www.irs.gov/pub/irs-pdf/f2587.pdf"_s));
  EXPECT_EQ(browserWindow.listCaption, u"Pub List"_s);
  EXPECT_TRUE(browserWindow.visible);
}

TEST_F(OutsideCommandsTest, EveryWebLinkOpensItsTarget) {
  for (const WebLink& link : kWebLinks) {
    Trigger(link.command);
    EXPECT_EQ(desktop.asked.takeLast(), link.target);
  }
  EXPECT_EQ(boxes.shown, QStringList());
}

TEST_F(OutsideCommandsTest, AnUpdateIsStartedOnlyAfterItsNoticeWasShownAndClosesTheProgram) {
  QString shown;
  clock.whenWaiting = [&] {
    auto* notice = mainWindow.findChild<frmLoadUpdater*>();
    ASSERT_NE(notice, nullptr);
    EXPECT_TRUE(notice->isVisible());
    EXPECT_EQ(desktop.asked, QStringList());
    shown = notice->windowTitle();
  };
  QTimer::singleShot(0, &mainWindow, [this] { Trigger(u"mnuUpdates"_s); });
  // Ends because the window closes.
  EXPECT_EQ(QCoreApplication::exec(), 0);
  EXPECT_EQ(shown, u"Updater"_s);
  EXPECT_EQ(desktop.asked, QStringList{bank.Folder() + u"/wiseupdt.exe"_s});
  EXPECT_FALSE(mainWindow.isVisible());
}

TEST_F(OutsideCommandsTest, WhileTheUpdatersNoticeIsShownNothingElseCanBeUsed) {
  desktop.works = false;
  clock.whenWaiting = [&] {
    auto* notice = mainWindow.findChild<frmLoadUpdater*>();
    ASSERT_NE(notice, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(notice));
    EXPECT_EQ(QApplication::activeModalWidget(), notice);
    EXPECT_EQ(notice->windowModality(), Qt::ApplicationModal);
    QTest::keyClick(notice, Qt::Key_B, Qt::ControlModifier);
    EXPECT_FALSE(windowed.Session().IsRunning());
    QTest::keyClick(notice, Qt::Key_Escape);
    EXPECT_FALSE(notice->close());
    EXPECT_TRUE(notice->isVisible());
  };
  Trigger(u"mnuUpdates"_s);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(OutsideCommandsTest, WithoutAnUpdaterTheMessageComesWhileTheNoticeIsThereAndTheWindowStays) {
  desktop.works = false;
  boxes.whenShown = [&] { EXPECT_NE(mainWindow.findChild<frmLoadUpdater*>(), nullptr); };
  Trigger(u"mnuUpdates"_s);
  EXPECT_EQ(boxes.shown,
            QStringList{u"Tessaly - 2002 Edition|The program to update Tessaly could not be "
                        "found, so no update was made.  Please contact technical support for "
                        "assistance."_s});
  EXPECT_EQ(mainWindow.findChild<frmLoadUpdater*>(), nullptr);
  EXPECT_TRUE(mainWindow.isVisible());
}

}  // namespace
}  // namespace tessaly::test
