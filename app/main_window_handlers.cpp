// The main window's command handlers: each hands on to the part of the program that does the work.

#include <QStatusBar>

#include "app/about.h"
#include "app/customize_toolbar.h"
#include "app/general_settings.h"
#include "app/main_window.h"
#include "app/program.h"
#include "app/welcome_pane.h"
#include "backup/backup_form.h"
#include "catalogue/study_mode_wizard.h"
#include "catalogue/study_selection.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/message_boxes.h"
#include "reference/exam_application.h"
#include "reference/help_form.h"
#include "reference/hint_form.h"
#include "reference/research_hint.h"
#include "reference/tip_form.h"
#include "reference/updater_form.h"
#include "session/question_printing.h"
#include "stats/reset_form.h"
#include "stats/statistics_form.h"
#include "store/settings_store.h"

using namespace Qt::StringLiterals;

namespace tessaly {

const std::span<const frmMain::CommandHandler> frmMain::kHandlers = [] {
  static constexpr std::array kTable{
      CommandHandler{"mnuFileBegin"_L1, "beginning a study session", &frmMain::mnuFileBegin_Click},
      CommandHandler{"mnuFileNext"_L1, "going on to the next question",
                     &frmMain::mnuFileNext_Click},
      CommandHandler{"mnuFileClose"_L1, "ending the study session", &frmMain::mnuFileClose_Click},
      CommandHandler{"mnuFilePrint"_L1, "printing the question", &frmMain::mnuFilePrint_Click},
      CommandHandler{"mnuFileResearch"_L1, "opening the research hint",
                     &frmMain::mnuFileResearch_Click},
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
      CommandHandler{"mnuUpdates"_L1, "starting the update", &frmMain::mnuUpdates_Click},
      CommandHandler{"mnuHelpContents"_L1, "opening the help", &frmMain::mnuHelpContents_Click},
      CommandHandler{"mnu2587"_L1, "opening the exam application", &frmMain::mnu2587_Click},
      CommandHandler{"mnuHelpPubs"_L1, "opening the IRS references", &frmMain::mnuHelpPubs_Click},
      CommandHandler{"mnuHelpKovrins"_L1, "opening the Kovrins pages",
                     &frmMain::mnuHelpKovrins_Click},
      CommandHandler{"mnuHelpGlossary"_L1, "opening the definitions",
                     &frmMain::mnuHelpGlossary_Click},
      CommandHandler{"mnu23"_L1, "opening the practice application", &frmMain::mnu23_Click},
      CommandHandler{"mnuHelpAbout"_L1, "reading the release of the question data",
                     &frmMain::mnuHelpAbout_Click},
  };
  return std::span<const CommandHandler>(kTable);
}();

void frmMain::mnuFileBegin_Click() {
  program_->Session().BeginSession();
}

void frmMain::mnuFileNext_Click() {
  program_->Session().NextQuestion();
}

void frmMain::mnuFileClose_Click() {
  program_->Session().EndSession();
}

void frmMain::mnuFilePrint_Click() {
  const PrintedQuestion question = QuestionOnScreen(program_->State(), *this);
  const Platform& machine = program_->Machine();
  printing_.Print(PrintingText(question), *this,
                  [&] { PrintQuestion(question, machine.printer, machine.clock); });
}

// One dialog at a time: where a question was answered or skipped meanwhile, it shows the new hint.
void frmMain::mnuFileResearch_Click() {
  const QString hint = BeginResearch(*this);
  if (hint_.isNull()) {
    hint_ = new frmHint(*program_, *this, errors_, this);
  }
  hint_->SetHint(hint);
  hint_->show();
  hint_->raise();
  hint_->activateWindow();
}

void frmMain::mnuFileExit_Click() {
  SaveWindowPlacement();
  close();
}

// After its Default the status bar still shows the earlier selection, but the panes' place says
// what the next session asks.
void frmMain::mnuViewExamChoices_Click() {
  frmStudyMode dialog(*program_, errors_, this);
  if (dialog.exec() == QDialog::Accepted) {
    const ProgramState& state = program_->State();
    welcome_->SetSelection(SelectionText(state.Selection, state.QuestionSubject));
  }
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

void frmMain::mnuHelpPubs_Click() {
  program_->Browser().OpenReferences();
}

void frmMain::mnuHelpKovrins_Click() {
  program_->Browser().OpenKovrins();
}

void frmMain::mnuHelpGlossary_Click() {
  program_->Browser().OpenDefinitions();
}

void frmMain::mnu23_Click() {
  program_->Browser().OpenForm(kForm23);
}

void frmMain::mnuUpdates_Click() {
  const Platform& machine = program_->Machine();
  frmLoadUpdater notice(this);
  notice.show();
  machine.clock.Wait(kUpdateNoticeMilliseconds);
  if (machine.desktop.StartProgram(program_->State().Paths.ProgramFolder + u'/' + kUpdateProgram)) {
    notice.hide();
    mnuFileExit_Click();
    return;
  }
  machine.boxes.ShowMessage(kNoUpdateProgram, kApplicationTitle);
}

// One help window: the command brings up the one that is open.
void frmMain::mnuHelpContents_Click() {
  if (!help_) {
    help_ = new frmHelp(program_->State().Paths.ProgramFolder + u"/help/tessaly2002.chm"_s, this);
    help_->setAttribute(Qt::WA_DeleteOnClose);
  }
  help_->show();
  help_->raise();
  help_->activateWindow();
}

void frmMain::mnu2587_Click() {
  const Platform& machine = program_->Machine();
  if (IsForm2587Available(machine.clock.Now().date(), QLocale())) {
    program_->Browser().OpenForm(kForm2587);
    return;
  }
  machine.boxes.ShowMessage(kForm2587NotYet, kApplicationTitle);
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
