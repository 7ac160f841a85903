#include "backup/settings_export.h"

#include <QDir>
#include <QFile>
#include <array>

#include "app/placed_window.h"
#include "app/program_settings.h"
#include "app/program_state.h"
#include "backup/private_profile.h"
#include "platform/file_operations.h"
#include "store/conversions.h"
#include "store/runtime_error.h"
#include "store/settings_store.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

struct PlacementEntry {
  QLatin1StringView key;
  WindowMeasure measure{};
};

constexpr std::array kPlacement{
    PlacementEntry{"MainHeight"_L1, WindowMeasure::Height},
    PlacementEntry{"MainLeft"_L1, WindowMeasure::Left},
    PlacementEntry{"MainTop"_L1, WindowMeasure::Top},
    PlacementEntry{"MainWidth"_L1, WindowMeasure::Width},
};

// One section of an export file, read in the widths that the settings have.
class SectionReader {
public:
  SectionReader(const PrivateProfile& file, QLatin1StringView section)
      : file_(file), section_(section) {}

  [[nodiscard]] QString Number(QLatin1StringView key) const {
    return QString::number(file_.Integer(section_, key));
  }
  [[nodiscard]] std::uint8_t Byte(QLatin1StringView key) const {
    return ToByte(Number(key), section_ + u'/' + key);
  }
  [[nodiscard]] std::int16_t Integer(QLatin1StringView key) const {
    return ToInteger(Number(key), section_ + u'/' + key);
  }

private:
  const PrivateProfile& file_;
  QLatin1StringView section_;
};

void WriteOptions(PrivateProfile& file, const Options& options) {
  const auto write = [&file](QLatin1StringView key, const QString& value) {
    file.Write(settings_section::kOptions, key, value);
  };
  write("AlarmSetting"_L1, QString::number(options.AlarmSetting));
  write("DisplaySmallFonts"_L1, QString::number(options.DisplaySmallFonts));
  write("GraphicStats"_L1, QString::number(options.GraphicStats));
  write("TimerStatus"_L1, QString::number(options.TimerStatus));
  write("TipofDay"_L1, QString::number(options.TipofDay));
  write("PubSource"_L1, options.PubSource);
}

// The study selection goes to the export file and to the settings store in the same order.
template <typename Write>
void WriteSelection(const StudySelection& selection, const Write& write) {
  write("Exam"_L1, QString::number(selection.Exam));
  write("ExamString"_L1, selection.ExamString);
  write("Method"_L1, QString::number(selection.Method));
  write("Mode"_L1, QString::number(selection.Mode));
  write("QuestionType"_L1, QString::number(selection.QuestionType));
  write("Section"_L1, QString::number(selection.Section));
  write("SectionString"_L1, selection.SectionString);
  write("Subject"_L1, selection.Subject);
}

}  // namespace

SettingsExport::SettingsExport(ProgramState& state, SettingsStore& settings,
                               ProgramSettings& programSettings, FileOperations& files,
                               PlacedWindow& mainWindow)
    : state_(state),
      settings_(settings),
      programSettings_(programSettings),
      files_(files),
      mainWindow_(mainWindow) {}

void SettingsExport::MakeExportFile() {
  PrivateProfile file = ReadFile();
  WriteOptions(file, state_.ProgramOptions);
  for (const PlacementEntry& entry : kPlacement) {
    file.Write(settings_section::kSettings, entry.key,
               SingleText(mainWindow_.Measure(entry.measure)));
  }
  WriteSelection(state_.Selection, [&file](QLatin1StringView key, const QString& value) {
    file.Write(settings_section::kStudyMode, key, value);
  });
  files_.Write(Path(), file.Text().toUtf8());
}

void SettingsExport::DeleteExportFile() {
  // A read-only folder would refuse even to remove what is not there.
  if (QFile::exists(Path())) {
    files_.Remove(Path());
  }
}

void SettingsExport::ImportSettingsFile() {
  const PrivateProfile file = ReadFile();
  ImportOptions(file);
  ImportPlacement(file);
  ImportStudySelection(file);
  ImportSubjectBasis(file);
  SaveStudySelection();
  if (!QFile::exists(Path())) {
    throw RuntimeError(ErrorNumber::FileNotFound, Path());
  }
  files_.Remove(Path());
}

void SettingsExport::ImportOptions(const PrivateProfile& file) {
  const SectionReader section(file, settings_section::kOptions);
  Options& options = state_.ProgramOptions;
  options.TimerStatus = section.Byte("TimerStatus"_L1);
  options.AlarmSetting = section.Byte("AlarmSetting"_L1);
  options.GraphicStats = section.Byte("GraphicStats"_L1);
  options.DisplaySmallFonts = section.Byte("DisplaySmallFonts"_L1);
  options.TipofDay = section.Byte("TipofDay"_L1);
  options.PubSource = section.Number("PubSource"_L1);
  programSettings_.SaveOptions();
}

void SettingsExport::ImportPlacement(const PrivateProfile& file) {
  for (const PlacementEntry& entry : kPlacement) {
    const std::int32_t twips = file.Integer(settings_section::kSettings, entry.key);
    mainWindow_.SetMeasure(entry.measure, static_cast<float>(twips));
  }
  for (const PlacementEntry& entry : kPlacement) {
    settings_.Write(settings_section::kSettings, entry.key,
                    SingleText(mainWindow_.Measure(entry.measure)));
  }
}

void SettingsExport::ImportStudySelection(const PrivateProfile& file) {
  const SectionReader section(file, settings_section::kStudyMode);
  StudySelection& selection = state_.Selection;
  selection.Exam = section.Byte("Exam"_L1);
  selection.ExamString = section.Number("ExamString"_L1);
  selection.Method = section.Byte("Method"_L1);
  selection.Mode = section.Byte("Mode"_L1);
  selection.QuestionType = section.Integer("QuestionType"_L1);
  selection.Section = section.Integer("Section"_L1);
  selection.SectionString = section.Number("SectionString"_L1);
  selection.Subject = section.Number("Subject"_L1);
}

// No export writes this section, so that the value is 0 unless somebody put another into the file.
void SettingsExport::ImportSubjectBasis(const PrivateProfile& file) {
  constexpr auto kBasisOfAssets = "Basis of Assets"_L1;
  const SectionReader section(file, "SubjectStatsT"_L1);
  settings_.Write(settings_section::kStudyMode, kBasisOfAssets, section.Number(kBasisOfAssets));
}

void SettingsExport::SaveStudySelection() {
  WriteSelection(state_.Selection, [this](QLatin1StringView key, const QString& value) {
    settings_.Write(settings_section::kStudyMode, key, value);
  });
}

QString SettingsExport::Path() const {
  return QDir(state_.Paths.ProgramFolder).filePath(kExportFileName);
}

// A file that cannot be read holds nothing, as a missing one.
PrivateProfile SettingsExport::ReadFile() const {
  QFile file(Path());
  return PrivateProfile(file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll())
                                                       : QString());
}

}  // namespace tessaly
