#ifndef TESSALY_CATALOGUE_STUDY_SELECTOR_H_
#define TESSALY_CATALOGUE_STUDY_SELECTOR_H_

#include <QString>

namespace tessaly {

struct ProgramState;
class MainWindowView;
class SettingsStore;
class Workspace;

// Changes the study selection and the current question table, and keeps the status panels that
// tell of them.
class StudySelector {
public:
  StudySelector(ProgramState& state, SettingsStore& settings, Workspace& workspace,
                MainWindowView& view);

  // Sets TablePosition to 1 and CurrentTableName to the selection's table (by subject: the first
  // of all, the position going on to 2) and writes the selection panel. An exam or section outside
  // the catalogue leaves the table as it was.
  void SetCurrentTable();
  // Sets CurrentTableName to the table at TablePosition and advances; does nothing past the last.
  void NextTable();
  // Sets Year from ExamString; a text that is no exam's caption leaves it.
  void SetYearFromExamString();

  // Sets every field to its default and writes them all.
  void ResetStudySelection();
  // Writes the fields that belong to the method, reads the section's study time where it is by
  // exam section, and loads the subject statistics of the mode.
  void SaveStudySelection();
  // Loads the subject statistics of the selection's mode.
  void LoadSubjectTotals();

  // Status panels: the mode; selection and timer; the selection alone.
  void ShowModeCaption();
  void RefreshStatus();
  void RefreshSelectionPanel();

private:
  void WriteSetting(QLatin1StringView key, const QString& value);
  void WriteExamAndSection();
  void WriteCaptions();

  ProgramState& state_;
  SettingsStore& settings_;
  Workspace& workspace_;
  MainWindowView& view_;
};

}  // namespace tessaly

#endif  // TESSALY_CATALOGUE_STUDY_SELECTOR_H_
