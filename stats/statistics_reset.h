#ifndef TESSALY_STATS_STATISTICS_RESET_H_
#define TESSALY_STATS_STATISTICS_RESET_H_

#include <QString>
#include <cstdint>
#include <functional>
#include <optional>

namespace tessaly {

class Database;
class MessageBoxes;
class SettingsStore;
class Workspace;
struct ProgramState;

enum class ResetScope { CurrentSection, CurrentExam, AllExams, CurrentSubject, AllSubjects };

// What is chosen in the reset dialog: each of the four may be chosen beside the others.
struct ResetChoices {
  bool ResetAll = false;
  bool AllDifficult = false;  // the record of previously missed questions
  std::optional<ResetScope> Tutorial{};
  std::optional<ResetScope> Evaluation{};
};

// The windows as the reset sees them.
class ResetView {
public:
  ResetView() = default;
  ResetView(const ResetView&) = delete;
  ResetView& operator=(const ResetView&) = delete;
  virtual ~ResetView() = default;

  virtual void SetBusyPointer(bool busy) = 0;
  // Shows the progress form, or lets it repaint when it is shown.
  virtual void ShowProgress() = 0;
  // A No brings the statistics form back.
  virtual void ShowStatistics() = 0;
  // Unloads the progress form, the reset dialog and the statistics form.
  virtual void UnloadForms() = 0;
};

// Clears statistics in the fixed order of the choices. Every question answered No ends the work at
// once and leaves done what was done before it; otherwise the report of the last reset is shown.
//
// The status codes that are cleared are those of the study selection's mode, whichever mode's group
// was chosen: the group decides timers, subject counters and wording. Each table's rows change in
// one transaction.
class StatisticsReset {
public:
  StatisticsReset(ProgramState& state, SettingsStore& settings, Workspace& workspace,
                  MessageBoxes& boxes, ResetView& view);

  // The dialog's Reset button.
  void Run(const ResetChoices& choices);
  // Asked when the box of missed questions becomes checked; a No brings the statistics form back.
  void ConfirmAllDifficult();

private:
  enum class Outcome { Done, EndedByNo };

  void ResetEverything();
  [[nodiscard]] Outcome RunChoices();
  [[nodiscard]] Outcome ResetExams(std::uint8_t group);
  [[nodiscard]] Outcome ResetSubjects(std::uint8_t group);
  [[nodiscard]] Outcome ResetMissedQuestions();
  [[nodiscard]] Outcome ResetCurrentSection(std::uint8_t group);
  [[nodiscard]] Outcome ResetCurrentExam(std::uint8_t group);
  [[nodiscard]] Outcome ResetAllExams(std::uint8_t group);
  [[nodiscard]] Outcome ResetAllSubjects(std::uint8_t group);
  [[nodiscard]] Outcome ResetCurrentSubject(std::uint8_t group);
  [[nodiscard]] bool Ask(const QString& question);

  void ResetSectionStatus();
  void ResetExamStatus();
  void ResetAllStatus();
  void ResetSubjectStatus();
  void ClearSubjectStats(std::uint8_t group);
  void ClearTimers(std::uint8_t group);
  void DeleteTimer(std::uint8_t group, const QString& key);
  void DeleteSubjectKeys(std::uint8_t group);

  [[nodiscard]] Database OpenAnswers();
  [[nodiscard]] QString StatusField() const;
  void ResetTable(const Database& answers, const QString& table, const QString& field,
                  const std::function<bool(int questionNo)>& concerns);
  [[nodiscard]] const std::optional<ResetScope>& ScopeOf(std::uint8_t group) const;

  ProgramState& state_;
  SettingsStore& settings_;
  Workspace& workspace_;
  MessageBoxes& boxes_;
  ResetView& view_;
  ResetChoices choices_;
  QString report_;  // of the reset that ran last
};

}  // namespace tessaly

#endif  // TESSALY_STATS_STATISTICS_RESET_H_
