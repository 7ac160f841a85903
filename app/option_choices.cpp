#include "app/option_choices.h"

#include "app/program_settings.h"
#include "app/program_state.h"
#include "catalogue/study_selector.h"
#include "platform/message_boxes.h"
#include "store/conversions.h"
#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

// The question font size follows when the options are loaded for the next session.
void TakeOver(const OptionChoices& choices, Options& options) {
  options.TimerStatus = choices.TimerStatus ? 1 : 0;
  options.AlarmSetting = choices.AlarmSetting ? 1 : 0;
  options.GraphicStats = choices.GraphicStats ? 1 : 0;
  options.DisplaySmallFonts = choices.DisplaySmallFonts ? 1 : 0;
  options.TipofDay = choices.TipofDay ? 1 : 0;
  options.PubSource = choices.PubSource ? u"1"_s : u"0"_s;
}

}  // namespace

OptionChoices ChoicesOf(const Options& options) {
  return {
      .ResetReminders = false,
      .PubSource = ToInteger(options.PubSource, u"Options/PubSource"_s) == 1,
      .TipofDay = options.TipofDay == 1,
      .AlarmSetting = options.AlarmSetting == 1,
      .TimerStatus = options.TimerStatus == 1,
      .DisplaySmallFonts = options.DisplaySmallFonts == 1,
      .GraphicStats = options.GraphicStats == 1,
  };
}

OptionEditor::OptionEditor(ProgramState& state, ProgramSettings& settings, StudySelector& selector,
                           MessageBoxes& boxes)
    : state_(state), settings_(settings), selector_(selector), boxes_(boxes) {}

OptionChoices OptionEditor::Choices() const {
  return ChoicesOf(state_.ProgramOptions);
}

void OptionEditor::Save(const OptionChoices& choices) {
  const Options before = state_.ProgramOptions;
  TakeOver(choices, state_.ProgramOptions);
  state_.ResetReminders = choices.ResetReminders;
  try {
    settings_.SaveOptions();
  } catch (const RuntimeError&) {
    state_.ProgramOptions = before;
    state_.ResetReminders = false;
    throw;
  }
  selector_.RefreshStatus();
}

bool OptionEditor::Reset() {
  if (!boxes_.AskYesNo(u"Reset options to default values?"_s, u"Tessaly Options"_s)) {
    return false;
  }
  Save(kDefaultChoices);
  return true;
}

}  // namespace tessaly
