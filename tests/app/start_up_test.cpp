#include "app/start_up.h"

#include <QApplication>
#include <QImage>
#include <QTimer>

#include "app/error_boundary.h"
#include "app/main_window.h"
#include "tests/support/file_contents.h"
#include "tests/support/program_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

// A start of the program in the main window's own folder, with a clock that does not wait.
class StartUpTest : public ProgramTest {
protected:
  StartUpTest() {
    SavePicture(u"splash01.bmp"_s);
    SavePicture(u"tips.bmp"_s);
    WriteBytes(bank.Folder() + u"/TIPOFDAY.TXT"_s, "one\ntwo\n");
    SetOption(u"Suppress2587Msg"_s, u"1"_s);
    mainWindow.Attach(windowed);
  }

  void SavePicture(const QString& name) {
    EXPECT_TRUE(QImage(96, 160, QImage::Format_RGB32).save(bank.Folder() + u'/' + name));
  }
  // Closes every dialog that comes up and remembers it.
  bool Start() {
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &mainWindow, [this] {
      if (QWidget* dialog = QApplication::activeModalWidget()) {
        dialogs.append(dialog->objectName());
        EXPECT_TRUE(mainWindow.isVisible());
        EXPECT_EQ(dialog->parentWidget(), &mainWindow);
        dialog->close();
      }
    });
    watch.start(10);
    return StartUp(windowed, mainWindow, clock, errors);
  }

  frmMain mainWindow{boxes};
  Program windowed{{settings, clock, boxes, files, drives, printer, desktop, browserWindow},
                   bank.Folder(),
                   mainWindow};
  ErrorBoundary errors{boxes};
  QStringList dialogs;
};

TEST_F(StartUpTest, ShowsATipOverTheMainWindowWhenThatIsTurnedOn) {
  SetOption(u"TipofDay"_s, u"1"_s);
  EXPECT_TRUE(Start());
  EXPECT_EQ(dialogs, QStringList{u"frmTip"_s});
  EXPECT_EQ(settings.values.value(u"Settings/CurrentTip"_s), u"2"_s);
}

TEST_F(StartUpTest, ShowsNoTipWhenThatIsTurnedOffOrWasNeverStored) {
  EXPECT_TRUE(Start());
  SetOption(u"TipofDay"_s, u"0"_s);
  EXPECT_TRUE(Start());
  EXPECT_TRUE(dialogs.isEmpty());
  EXPECT_TRUE(mainWindow.isVisible());
}

TEST_F(StartUpTest, AMissingTipPictureIsReportedAndTheProgramGoesOn) {
  SetOption(u"TipofDay"_s, u"1"_s);
  ASSERT_TRUE(QFile::remove(bank.Folder() + u"/tips.bmp"_s));
  EXPECT_TRUE(Start());
  EXPECT_TRUE(dialogs.isEmpty());
  ASSERT_EQ(boxes.shown.size(), 1);
  EXPECT_TRUE(boxes.shown.first().startsWith(
      u"Tessaly - 2002 Edition|Run-time error '53':\n\nFile not found\n\nWhile showing the tip of "
      u"the day."_s));
  EXPECT_TRUE(mainWindow.isVisible());
}

TEST_F(StartUpTest, AMissingSplashPictureEndsTheStart) {
  ASSERT_TRUE(QFile::remove(bank.Folder() + u"/splash01.bmp"_s));
  EXPECT_FALSE(Start());
  EXPECT_FALSE(mainWindow.isVisible());
}

}  // namespace
}  // namespace tessaly::test
