#ifndef TESSALY_APP_MAIN_WINDOW_VIEW_H_
#define TESSALY_APP_MAIN_WINDOW_VIEW_H_

#include <QString>

namespace tessaly {

enum class Box {
  txtRightWrong,
  txtQuestion,
  txtAnswer,
  txtHintLink,
  txtQNo,
  txtAnswerNumber,
  txtAnswered,
  txtPassFail,
};

// Background of the feedback line.
enum class BoxColour { Green, Red, LightYellow };

// Menu commands whose state changes while the program runs.
enum class Command {
  mnuFileBegin,
  mnuFileNext,
  mnuFileClose,
  mnuFilePrint,
  mnuFileResearch,
  mnuUpdates,
  mnuFileExit,
  mnuViewExamChoices,
  mnuViewOptions,
  mnuFileExport,
  mnuFileImport,
  mnuViewStats,
  mnuStatsReset,
  mnuHelpAbout,
};

// Toolbar buttons, by their keys.
enum class ToolButton { Start, Stop, Hint, Print, Mode, Settings, Stats, Next };

enum class Panel { Mode = 1, Selection = 2, Timer = 3 };

// The main window as the study logic sees it: boxes, answer buttons, commands and status panels.
// The view only shows what it is told and gives back what a box holds; it decides nothing.
class MainWindowView {
public:
  MainWindowView() = default;
  MainWindowView(const MainWindowView&) = delete;
  MainWindowView& operator=(const MainWindowView&) = delete;
  virtual ~MainWindowView() = default;

  virtual void SetBoxText(Box box, const QString& text) = 0;
  [[nodiscard]] virtual QString BoxText(Box box) const = 0;
  virtual void ShowBox(Box box, bool visible) = 0;
  virtual void SetFeedbackColour(BoxColour colour) = 0;
  // Font size of the question and explanation boxes, in points.
  virtual void SetQuestionFontSize(int points) = 0;

  // Places and shows the answer buttons and Skip: two captioned True and False, or four.
  virtual void ShowAnswerButtons(bool trueFalse) = 0;
  virtual void HideAnswerButtons() = 0;
  // Lays the panes out for the window's size and for whether the question has been answered.
  virtual void FitPanes() = 0;

  virtual void EnableCommand(Command command, bool enabled) = 0;
  virtual void EnableToolButton(ToolButton button, bool enabled) = 0;

  virtual void SetPanelText(Panel panel, const QString& text) = 0;
  virtual void SetPanelToolTip(Panel panel, const QString& toolTip) = 0;

  // The one-second study timer.
  virtual void StartTestTimer(int intervalMilliseconds) = 0;
  virtual void StopTestTimer() = 0;
};

}  // namespace tessaly

#endif  // TESSALY_APP_MAIN_WINDOW_VIEW_H_
