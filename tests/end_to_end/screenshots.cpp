// Draws the pictures of the README anew: runs the program as it was built through a session and
// saves what its windows show.
//
//   screenshots FILES_FOLDER OUTPUT_FOLDER
//
// What lies in the first folder is put into the program folder of the run.

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QThread>
#include <cstdio>
#include <stdexcept>

#include "tests/end_to_end/browser_driver.h"
#include "tests/end_to_end/program_driver.h"
#include "tests/support/file_contents.h"

using namespace Qt::StringLiterals;

namespace {

using tessaly::test::BrowserDriver;
using tessaly::test::Installation;
using tessaly::test::ProgramDriver;
using tessaly::test::WriteBytes;

constexpr int kPaintMilliseconds = 1000;

// The pictures show the real question bank, tips and pages, not those of the tests.
void TakeOverFiles(const Installation& installation, const QDir& folder) {
  QDirIterator files(folder.path(), QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString source = files.next();
    const QString target = installation.Folder() + u'/' + folder.relativeFilePath(source);
    QFile::remove(target);
    if (!QDir().mkpath(QFileInfo(target).path()) || !QFile::copy(source, target)) {
      throw std::runtime_error("a file of the program folder cannot be copied");
    }
  }
}

class Photographer {
public:
  Photographer(ProgramDriver& program, const QDir& folder) : program_(program), folder_(folder) {}

  void Take(const QString& window, const QString& picture) {
    program_.SavePicture(window, folder_.filePath(picture + u".png"_s));
  }

private:
  ProgramDriver& program_;
  QDir folder_;
};

void PhotographSession(ProgramDriver& program, Photographer& photographer) {
  const QString main = u"frmMain"_s;
  photographer.Take(main, u"idle"_s);
  program.Press(u"Ctrl+B"_s);
  program.WaitForVisible(u"txtQuestion"_s);
  while (!program.IsVisible(u"cmdC"_s)) {
    program.Click(u"cmdSkip"_s);
  }
  photographer.Take(main, u"question"_s);
  const QStringList buttons{u"cmdA"_s, u"cmdB"_s, u"cmdC"_s, u"cmdD"_s};
  const int right = program.Text(u"txtAnswerNumber"_s).toInt();
  program.Click(buttons[right]);
  photographer.Take(main, u"answer"_s);
  program.Press(u"Ctrl+N"_s);
  const int rightNext = program.Text(u"txtAnswerNumber"_s).toInt();
  program.Click(buttons[(rightNext + 1) % 4]);
  photographer.Take(main, u"wrong"_s);
  program.Press(u"Ctrl+E"_s);
}

void PhotographReferences(ProgramDriver& program, Photographer& photographer,
                          const QString& browserPicture) {
  program.Press(u"Ctrl+B"_s);
  program.WaitForVisible(u"txtQuestion"_s);
  program.Press(u"Ctrl+R"_s);
  program.WaitForVisible(u"frmHint"_s);
  photographer.Take(u"frmHint"_s, u"hint"_s);
  program.Click(u"cmdView"_s);
  BrowserDriver browser(program.SocketPath());
  browser.Connect();
  browser.WaitForCaption(
      u"Publication 501: Exemptions, Standard Deduction, and Filing Information"_s);
  // A page is painted a while after it has been loaded.
  QThread::msleep(kPaintMilliseconds);
  browser.SavePicture(browserPicture);
  browser.SendClose();
  program.Press(u"Ctrl+E"_s);
}

// The platform's own is of 800 by 800 pixels, where the larger windows are smaller than people see
// them.
void UseCommonScreen(Installation& installation) {
  const QString description = installation.WorkingFolder() + u"/screen.json"_s;
  WriteBytes(description,
             R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": 1280, "height": 1024,
                 "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
  installation.SetVariable(u"QT_QPA_PLATFORM"_s, u"offscreen:configfile="_s + description);
}

struct Dialog {
  QString command;
  QString window;
  QString picture;
  QString closeButton;
};

void PhotographDialogs(ProgramDriver& program, Photographer& photographer) {
  for (const Dialog& dialog :
       {Dialog{u"mnuHelpAbout"_s, u"frmAbout"_s, u"about"_s, u"cmdOK"_s},
        Dialog{u"mnuOptionsNavBar"_s, u"frmCustomize"_s, u"customize"_s, u"cmdClose"_s},
        Dialog{u"mnuViewExamChoices"_s, u"frmStudyMode"_s, u"wizard"_s, u"cmdCancel"_s},
        Dialog{u"mnuViewOptions"_s, u"frmOptions"_s, u"settings"_s, u"cmdCancel"_s},
        Dialog{u"mnuOptionsTip"_s, u"frmTip"_s, u"tip"_s, u"cmdOK"_s},
        Dialog{u"mnuViewStats"_s, u"frmStats"_s, u"statistics"_s, u"cmdCloseStats"_s},
        Dialog{u"mnuStatsReset"_s, u"frmResetChoices"_s, u"reset"_s, u"cmdCancel"_s},
        Dialog{u"mnuFileExport"_s, u"frmBackup"_s, u"backup"_s, u"CancelButton"_s},
        Dialog{u"mnuHelpContents"_s, u"frmHelp"_s, u"help"_s, u"cmdClose"_s}}) {
    program.Trigger(dialog.command);
    program.WaitForWindow(dialog.window);
    photographer.Take(dialog.window, dialog.picture);
    program.Click(dialog.closeButton);
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 3) {
    std::fputs("usage: screenshots FILES_FOLDER OUTPUT_FOLDER\n", stderr);
    return 2;
  }
  try {
    Installation installation;
    installation.AddReferenceBrowser();
    TakeOverFiles(installation, QDir(arguments[1]));
    installation.Store(u"Options/GraphicStats"_s, u"1"_s);
    installation.Store(u"Options/PubSource"_s, u"1"_s);
    installation.SetVariable(u"QT_SCALE_FACTOR"_s, qEnvironmentVariable("QT_SCALE_FACTOR", u"1"_s));
    UseCommonScreen(installation);
    ProgramDriver program(installation);
    program.StartToMainWindow();
    Photographer photographer(program, QDir(QDir(arguments[2]).absolutePath()));
    PhotographSession(program, photographer);
    PhotographReferences(program, photographer,
                         QDir(arguments[2]).absoluteFilePath(u"browser.png"_s));
    PhotographDialogs(program, photographer);
  } catch (const std::runtime_error& error) {
    std::fprintf(stderr, "screenshots: %s\n", error.what());
    return 1;
  }
  return 0;
}
