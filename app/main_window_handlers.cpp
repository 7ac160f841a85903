// The main window's command handlers: each hands on to the part of the program that does the work.

#include <QStatusBar>
#include <algorithm>

#include "app/about.h"
#include "app/customize_toolbar.h"
#include "app/general_settings.h"
#include "app/main_window.h"
#include "app/program.h"
#include "backup/backup_form.h"
#include "catalogue/study_mode_wizard.h"
#include "reference/tip_form.h"
#include "stats/reset_form.h"
#include "stats/statistics_form.h"

using namespace Qt::StringLiterals;

namespace tessaly {

const std::span<const frmMain::CommandHandler> frmMain::kHandlers = [] {
  static constexpr std::array kTable{
      CommandHandler{"mnuFileBegin"_L1, "beginning a study session", &frmMain::mnuFileBegin_Click},
      CommandHandler{"mnuFileNext"_L1, "going on to the next question",
                     &frmMain::mnuFileNext_Click},
      CommandHandler{"mnuFileClose"_L1, "ending the study session", &frmMain::mnuFileClose_Click},
      CommandHandler{"mnuFileExit"_L1, "leaving the program", &frmMain::mnuFileExit_Click},
      CommandHandler{"mnuViewExamChoices"_L1, "opening the Study Mode wizard",
                     &frmMain::mnuViewExamChoices_Click},
      CommandHandler{"mnuViewOptions"_L1, "opening the general settings",
                     &frmMain::mnuViewOptions_Click},
      CommandHandler{"mnuOptionsTip"_L1, "showing the tip of the day",
                     &frmMain::mnuOptionsTip_Click},
      CommandHandler{"mnuOptionsNavBar"_L1, "customizing the navigation bar",
                     &frmMain::mnuOptionsNavBar_Click},
      CommandHandler{"mnuViewStatusBar"_L1, "showing or hiding the status bar",
                     &frmMain::mnuViewStatusBar_Click},
      CommandHandler{"mnuFileExport"_L1, "backing up the statistics",
                     &frmMain::mnuFileExport_Click},
      CommandHandler{"mnuFileImport"_L1, "restoring the statistics", &frmMain::mnuFileImport_Click},
      CommandHandler{"mnuViewStats"_L1, "reading the statistics", &frmMain::mnuViewStats_Click},
      CommandHandler{"mnuStatsReset"_L1, "reading the statistics", &frmMain::mnuStatsReset_Click},
      CommandHandler{"mnuHelpAbout"_L1, "reading the release of the question data",
                     &frmMain::mnuHelpAbout_Click},
  };
  return std::span<const CommandHandler>(kTable);
}();

bool frmMain::HasHandler(QLatin1StringView command) {
  return std::any_of(kHandlers.begin(), kHandlers.end(),
                     [command](const CommandHandler& entry) { return entry.command == command; });
}

void frmMain::mnuFileBegin_Click() {
  program_->Session().BeginSession();
}

void frmMain::mnuFileNext_Click() {
  program_->Session().NextQuestion();
}

void frmMain::mnuFileClose_Click() {
  program_->Session().EndSession();
}

void frmMain::mnuFileExit_Click() {
  SaveWindowPlacement();
  close();
}

void frmMain::mnuViewExamChoices_Click() {
  frmStudyMode dialog(*program_, errors_, this);
  dialog.exec();
}

void frmMain::mnuViewOptions_Click() {
  frmOptions dialog(*program_, errors_, this);
  dialog.exec();
}

void frmMain::mnuOptionsTip_Click() {
  frmTip dialog(*program_, errors_, this);
  dialog.LoadAndShow(TipOccasion::Menu);
}

void frmMain::mnuOptionsNavBar_Click() {
  frmCustomize dialog(*toolbar_, DefaultArrangement(*this), this);
  dialog.exec();
  FitPanes();
}

void frmMain::mnuViewStatusBar_Click() {
  statusBar_->setVisible(ActionOf("mnuViewStatusBar"_L1)->isChecked());
}

// The direction goes back only when the dialog has closed: after a restore this one restores too.
void frmMain::mnuFileExport_Click() {
  frmBackup dialog(*program_, errors_, *this, this);
  dialog.SetSelectCaption(kSelectDestination);
  dialog.exec();
  program_->State().Backup.Direction = kBackUp;
}

void frmMain::mnuFileImport_Click() {
  program_->State().Backup.Direction = kRestore;
  frmBackup dialog(*program_, errors_, *this, this);
  dialog.SetSelectCaption(kSelectSource);
  dialog.SetDescription(kRestoreDescription);
  dialog.exec();
}

void frmMain::mnuViewStats_Click() {
  frmStats statistics(*program_, errors_, this);
  statistics.exec();
}

// The statistics form is there, hidden, so that a No can bring it up.
void frmMain::mnuStatsReset_Click() {
  frmStats statistics(*program_, errors_, this);
  frmResetChoices choices(*program_, errors_, statistics);
  choices.exec();
  if (statistics.isVisible()) {
    statistics.exec();
  }
}

void frmMain::mnuHelpAbout_Click() {
  frmAbout dialog(*program_, this);
  dialog.exec();
}

void frmMain::cmdSkip_Click() {
  errors_.Run(u"skipping the question"_s, [this] { program_->Session().Skip(); });
}

void frmMain::tmrTestTimer_Timer() {
  errors_.Run(u"counting the study time"_s, [this] { program_->Session().TimerTick(); });
}

void frmMain::Toolbar1_ButtonClick(const QString& key) {
  const QLatin1StringView command = CommandOfKey(key);
  for (const CommandHandler& entry : kHandlers) {
    if (entry.command == command) {
      RunCommand(entry);
    }
  }
}

void frmMain::RunCommand(const CommandHandler& handler) {
  errors_.Run(QString::fromLatin1(handler.doing), [this, &handler] { (this->*handler.handler)(); });
}

}  // namespace tessaly
