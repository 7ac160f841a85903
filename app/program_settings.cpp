#include "app/program_settings.h"

#include "app/program_state.h"
#include "catalogue/exam_catalogue.h"
#include "catalogue/study_selector.h"
#include "session/study_timer.h"
#include "store/conversions.h"
#include "store/runtime_error.h"
#include "store/settings_store.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

QString Address(QLatin1StringView section, const QString& key) {
  return section + u'/' + key;
}

}  // namespace

ProgramSettings::ProgramSettings(ProgramState& state, SettingsStore& settings,
                                 StudySelector& selector)
    : state_(state), settings_(settings), selector_(selector) {}

void ProgramSettings::LoadSettings() {
  LoadOptions();
  if (ReadStudyMode(u"Mode"_s, u"0"_s).isEmpty()) {
    selector_.ResetStudySelection();
    return;
  }
  LoadStudySelection();
  LoadSectionTime();
  BuildDatabasePaths(state_.Paths);
  selector_.RefreshStatus();
}

void ProgramSettings::SaveOptions() {
  const Options& options = state_.ProgramOptions;
  WriteOption(u"TimerStatus"_s, QString::number(options.TimerStatus));
  WriteOption(u"AlarmSetting"_s, QString::number(options.AlarmSetting));
  WriteOption(u"GraphicStats"_s, QString::number(options.GraphicStats));
  WriteOption(u"DisplaySmallFonts"_s, QString::number(options.DisplaySmallFonts));
  WriteOption(u"TipofDay"_s, QString::number(options.TipofDay));
  WriteOption(u"PubSource"_s, options.PubSource);
  if (state_.ResetReminders) {
    state_.ResetReminders = false;
    WriteOption(u"Suppress2587Msg"_s, u"0"_s);
  }
}

WindowPlacement ProgramSettings::LoadWindowPlacement() const {
  WindowPlacement placement;
  placement.Maximized =
      settings_.Read(settings_section::kSettings, u"Maximized"_s, u"0"_s) == u"1"_s;
  const auto read = [&](const QString& key, float& value) {
    try {
      value = ToSingle(settings_.Read(settings_section::kSettings, key, SingleText(value)),
                       Address(settings_section::kSettings, key));
    } catch (const RuntimeError&) {
      // The screen's size will do until the window leaves that state.
      if (!placement.Maximized) {
        throw;
      }
    }
  };
  read(u"MainLeft"_s, placement.MainLeft);
  read(u"MainTop"_s, placement.MainTop);
  read(u"MainWidth"_s, placement.MainWidth);
  read(u"MainHeight"_s, placement.MainHeight);
  return placement;
}

void ProgramSettings::SaveWindowPlacement(const WindowPlacement& placement) {
  const auto write = [this](const QString& key, const QString& value) {
    settings_.Write(settings_section::kSettings, key, value);
  };
  if (placement.Maximized) {
    write(u"Maximized"_s, u"1"_s);
    return;
  }
  write(u"MainLeft"_s, SingleText(placement.MainLeft));
  write(u"MainTop"_s, SingleText(placement.MainTop));
  write(u"MainWidth"_s, SingleText(placement.MainWidth));
  write(u"MainHeight"_s, SingleText(placement.MainHeight));
  write(u"Maximized"_s, u"0"_s);
}

QString ProgramSettings::ReadOption(const QString& key) const {
  return settings_.Read(settings_section::kOptions, key, u"0"_s);
}

void ProgramSettings::WriteOption(const QString& key, const QString& value) {
  settings_.Write(settings_section::kOptions, key, value);
}

QString ProgramSettings::ReadStudyMode(const QString& key, const QString& fallback) const {
  return settings_.Read(settings_section::kStudyMode, key, fallback);
}

void ProgramSettings::LoadOptions() {
  Options& options = state_.ProgramOptions;
  const auto readByte = [this](const QString& key) {
    return ToByte(ReadOption(key), Address(settings_section::kOptions, key));
  };
  options.TimerStatus = readByte(u"TimerStatus"_s);
  options.AlarmSetting = readByte(u"AlarmSetting"_s);
  options.GraphicStats = readByte(u"GraphicStats"_s);
  options.DisplaySmallFonts = readByte(u"DisplaySmallFonts"_s);
  options.TipofDay = readByte(u"TipofDay"_s);
  options.PubSource = ReadOption(u"PubSource"_s);
  if (options.DisplaySmallFonts == 0) {
    options.QuestionFontSize = kQuestionFontPoints;
  } else if (options.DisplaySmallFonts == 1) {
    options.QuestionFontSize = kSmallQuestionFontPoints;
  }
}

void ProgramSettings::LoadStudySelection() {
  StudySelection& selection = state_.Selection;
  const auto read = [this](const QString& key) { return ReadStudyMode(key, u"0"_s); };
  const auto address = [](const QString& key) {
    return Address(settings_section::kStudyMode, key);
  };
  selection.Mode = ToByte(read(u"Mode"_s), address(u"Mode"_s));
  selection.Method = ToByte(read(u"Method"_s), address(u"Method"_s));
  if (selection.Method == kByExamSection) {
    selection.Exam = ToByte(read(u"Exam"_s), address(u"Exam"_s));
    selection.Section = ToInteger(read(u"Section"_s), address(u"Section"_s));
  }
  selection.ExamString = ReadStudyMode(u"ExamString"_s, kExams.front().caption);
  selection.Year = ReadStudyMode(u"Year"_s, u"0"_s);
  selection.SectionString = ReadStudyMode(u"SectionString"_s, kParts.front().caption);
  selection.Subject = ReadStudyMode(u"Subject"_s, {});
  const QString questionType = read(u"QuestionType"_s);
  selection.QuestionType = questionType.isEmpty()
                               ? kUnansweredQuestions
                               : ToInteger(questionType, address(u"QuestionType"_s));
}

void ProgramSettings::LoadSectionTime() {
  const QString section = TimerSection(state_.Selection.Mode);
  const QString key = TimerKey(state_.Selection);
  const QString stored = settings_.Read(section, key, {});
  state_.Time.Stored = stored.isEmpty() ? u"0"_s : stored;
  if (ToLong(state_.Time.Stored, section + u'/' + key) > kSectionLimitSeconds) {
    state_.Time.Exceeded = true;
  }
}

}  // namespace tessaly
