#ifndef TESSALY_APP_OPTION_CHOICES_H_
#define TESSALY_APP_OPTION_CHOICES_H_

namespace tessaly {

class MessageBoxes;
class ProgramSettings;
class StudySelector;
struct Options;
struct ProgramState;

// The general settings as their check boxes show them.
struct OptionChoices {
  bool ResetReminders = false;
  bool PubSource = false;
  bool TipofDay = false;
  bool AlarmSetting = false;
  bool TimerStatus = false;
  bool DisplaySmallFonts = false;
  bool GraphicStats = false;

  bool operator==(const OptionChoices&) const = default;
};

inline constexpr int kOptionChoiceCount = 7;

// What the Default button sets. A missing key of the settings reads otherwise.
inline constexpr OptionChoices kDefaultChoices{
    .ResetReminders = false,
    .PubSource = true,
    .TipofDay = true,
    .AlarmSetting = false,
    .TimerStatus = true,
    .DisplaySmallFonts = false,
    .GraphicStats = false,
};

// The choices that stand for the options in memory. Raises 13 or 6 when PubSource is no number.
[[nodiscard]] OptionChoices ChoicesOf(const Options& options);

// The general settings dialog without its window.
class OptionEditor {
public:
  OptionEditor(ProgramState& state, ProgramSettings& settings, StudySelector& selector,
               MessageBoxes& boxes);

  [[nodiscard]] OptionChoices Choices() const;
  // Takes the choices over, writes them and refreshes the status panels. A failure to write leaves
  // the options in memory as they were.
  void Save(const OptionChoices& choices);
  // Asks whether to go back to the defaults, and saves them on Yes; false on No.
  [[nodiscard]] bool Reset();

private:
  ProgramState& state_;
  ProgramSettings& settings_;
  StudySelector& selector_;
  MessageBoxes& boxes_;
};

}  // namespace tessaly

#endif  // TESSALY_APP_OPTION_CHOICES_H_
