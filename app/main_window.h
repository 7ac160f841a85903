#ifndef TESSALY_APP_MAIN_WINDOW_H_
#define TESSALY_APP_MAIN_WINDOW_H_

#include <QMainWindow>
#include <QPointer>
#include <array>
#include <map>
#include <span>

#include "app/error_boundary.h"
#include "app/main_window_commands.h"
#include "app/main_window_view.h"
#include "app/placed_window.h"
#include "app/printing_form.h"
#include "app/program_settings.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QStatusBar;
class QTimer;
class QToolBar;

namespace tessaly {

class Program;
class frmHelp;
class StudyTextBox;
class WelcomePane;
class frmHint;

// The program's main window: navigation bar, question and explanation panes, answer buttons,
// status bar and menus. It shows what the study logic tells it and hands every command on; which
// commands can be used, and what they do, is decided there.
class frmMain : public QMainWindow, public MainWindowView, public PlacedWindow {
  Q_OBJECT

public:
  explicit frmMain(MessageBoxes& boxes);

  // Ties the window's commands to the program; once, before the window is shown.
  void Attach(Program& program);
  // Puts the window where it was left and resets the timer panel.
  void Form_Load();

  void SetBoxText(Box box, const QString& text) override;
  [[nodiscard]] QString BoxText(Box box) const override;
  void ShowBox(Box box, bool visible) override;
  void SetFeedbackColour(BoxColour colour) override;
  void SetQuestionFontSize(int points) override;
  void ShowAnswerButtons(bool trueFalse) override;
  void HideAnswerButtons() override;
  void FitPanes() override;
  void EnableCommand(Command command, bool enabled) override;
  void EnableToolButton(ToolButton button, bool enabled) override;
  void SetPanelText(Panel panel, const QString& text) override;
  void SetPanelToolTip(Panel panel, const QString& toolTip) override;
  void StartTestTimer(int intervalMilliseconds) override;
  void StopTestTimer() override;

  [[nodiscard]] float Measure(WindowMeasure measure) const override;
  void SetMeasure(WindowMeasure measure, float twips) override;

protected:
  void closeEvent(QCloseEvent* event) override;
  // Claims the key of answer A before the menu of the same letter gets it.
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

  // The client area reports its resizes here, because that is what the layout counts from, and the
  // research reference that it loses the focus.
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  struct CommandHandler {
    QLatin1StringView command;
    const char* doing = nullptr;  // completes "While ..." when it fails
    void (frmMain::*handler)() = nullptr;
  };
  static const std::span<const CommandHandler> kHandlers;

  void BuildMenus();
  void BuildToolbar();
  void BuildPanes();
  void BuildAnswerButtons();
  void BuildStatusBar();
  void ConnectCommands();
  void ConnectAnswerButtons();
  void SetFocusOrder();
  void AddMenuItems(class QMenu* menu, std::span<const MenuItem> items);

  void mnuFileBegin_Click();
  void mnuFileNext_Click();
  void mnuFileClose_Click();
  void mnuFilePrint_Click();
  void mnuFileResearch_Click();
  void mnuFileExit_Click();
  void mnuViewExamChoices_Click();
  void mnuViewOptions_Click();
  void mnuOptionsNavBar_Click();
  void mnuOptionsTip_Click();
  void mnuViewStatusBar_Click();
  void mnuFileExport_Click();
  void mnuFileImport_Click();
  void mnuViewStats_Click();
  void mnuStatsReset_Click();
  void mnuHelpPubs_Click();
  void mnuHelpKovrins_Click();
  void mnuHelpGlossary_Click();
  void mnu23_Click();
  void mnuUpdates_Click();
  void mnuHelpContents_Click();
  void mnu2587_Click();
  void mnuHelpAbout_Click();
  void cmdSkip_Click();
  void tmrTestTimer_Timer();
  void Toolbar1_ButtonClick(const QString& key);

  void RunCommand(const CommandHandler& handler);
  void PlaceWindow(const WindowPlacement& placement);
  void SaveWindowPlacement();
  void ShowHintLink(const QString& hint);
  [[nodiscard]] bool IsKeyOfAnswerA(const QKeyEvent& event) const;
  [[nodiscard]] QAction* ActionOf(QLatin1StringView name) const;
  [[nodiscard]] QWidget* WidgetOf(Box box) const;
  [[nodiscard]] QSize ClientTwips() const;

  ErrorBoundary errors_;
  Program* program_ = nullptr;
  std::map<QLatin1StringView, QAction*> menuActions_;  // by control name
  std::array<QAction*, kToolButtonCount> toolActions_{};
  QWidget* client_;
  QWidget* coolBar_ = nullptr;
  QToolBar* toolbar_ = nullptr;
  QLineEdit* rightWrong_ = nullptr;
  StudyTextBox* question_ = nullptr;
  StudyTextBox* answer_ = nullptr;
  WelcomePane* welcome_ = nullptr;
  std::array<QPushButton*, 4> answerButtons_{};
  QPushButton* skip_ = nullptr;
  QLineEdit* hintLink_ = nullptr;
  // Bookkeeping of the current question, never shown.
  std::array<QLineEdit*, 4> hiddenBoxes_{};
  QStatusBar* statusBar_ = nullptr;
  std::array<QLabel*, 3> panels_{};
  QTimer* testTimer_ = nullptr;
  PrintingForm printing_;
  QPointer<frmHelp> help_;
  QPointer<frmHint> hint_;  // while it is open
};

// Closes every window of the program, in the order in which the platform lists them.
void UnloadAllForms();

}  // namespace tessaly

#endif  // TESSALY_APP_MAIN_WINDOW_H_
