#ifndef TESSALY_APP_PROGRAM_SETTINGS_H_
#define TESSALY_APP_PROGRAM_SETTINGS_H_

#include <QString>

namespace tessaly {

struct ProgramState;
class SettingsStore;
class StudySelector;

// Where the main window stands: twips from the screen's upper left corner, sizes in twips.
struct WindowPlacement {
  bool Maximized = false;
  float MainLeft = 1000;
  float MainTop = 1000;
  float MainWidth = 11500;
  float MainHeight = 7000;
};

// Moves the options, the study selection and the window's placement between the settings store and
// the shared state. A stored text that is no number raises 13 or 6, with the key in its detail.
class ProgramSettings {
public:
  ProgramSettings(ProgramState& state, SettingsStore& settings, StudySelector& selector);

  // Reads the options and the last study selection with its section's study time, builds the
  // database paths and refreshes the status panels. A Mode stored as an empty text resets the
  // selection to its defaults instead, and nothing further is read.
  void LoadSettings();
  // Writes the options, and with them, when that was asked for, that dismissed reminders show
  // again.
  void SaveOptions();

  // The placement stored last, the defaults where nothing is stored. When Maximized is set the
  // other fields are the last normal placement, and a text there that is no number counts as
  // nothing stored.
  [[nodiscard]] WindowPlacement LoadWindowPlacement() const;
  // A maximized placement writes only that; the last normal one stays stored.
  void SaveWindowPlacement(const WindowPlacement& placement);

private:
  [[nodiscard]] QString ReadOption(const QString& key) const;
  void WriteOption(const QString& key, const QString& value);
  [[nodiscard]] QString ReadStudyMode(const QString& key, const QString& fallback) const;
  void LoadOptions();
  void LoadStudySelection();
  void LoadSectionTime();

  ProgramState& state_;
  SettingsStore& settings_;
  StudySelector& selector_;
};

}  // namespace tessaly

#endif  // TESSALY_APP_PROGRAM_SETTINGS_H_
