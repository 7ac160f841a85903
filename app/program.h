#ifndef TESSALY_APP_PROGRAM_H_
#define TESSALY_APP_PROGRAM_H_

#include <QString>

#include "app/program_settings.h"
#include "app/program_state.h"
#include "catalogue/study_selector.h"
#include "reference/reference_browser.h"
#include "session/study_session.h"
#include "store/compaction.h"
#include "store/database.h"

namespace tessaly {

class Desktop;
class Drives;
class FileOperations;
class Printer;

// What the program asks of the machine.
struct Platform {
  SettingsStore& settings;
  Clock& clock;
  MessageBoxes& boxes;
  FileOperations& files;
  Drives& drives;
  Printer& printer;
  Desktop& desktop;
  BrowserWindow& browserWindow;
};

// The program without its windows: the shared state and everything that works on it.
class Program {
public:
  // `programFolder` holds the database files, pictures and pages; no trailing separator.
  Program(const Platform& platform, const QString& programFolder, MainWindowView& view);

  // Start-up from the settings to the subject statistics, before anything is shown. A compaction
  // that was cut off is finished first.
  void Prepare();
  // The state of panels and commands while the splash screen is up; safe to repeat.
  void ShowStartUpState();

  [[nodiscard]] const Platform& Machine() const { return platform_; }
  [[nodiscard]] ProgramState& State() { return state_; }
  [[nodiscard]] Workspace& Bank() { return workspace_; }
  [[nodiscard]] ProgramSettings& Settings() { return settings_; }
  [[nodiscard]] StudySelector& Selector() { return selector_; }
  [[nodiscard]] StudySession& Session() { return session_; }
  [[nodiscard]] ReferenceBrowser& Browser() { return browser_; }

private:
  Platform platform_;
  ProgramState state_;
  Workspace workspace_;
  StudySelector selector_;
  ProgramSettings settings_;
  Compaction compaction_;
  StudySession session_;
  ReferenceBrowser browser_;
  MainWindowView& view_;
};

// "2002 Edition (Release 1.0.0)", for the splash screen and About.
[[nodiscard]] QString VersionCaption();

}  // namespace tessaly

#endif  // TESSALY_APP_PROGRAM_H_
