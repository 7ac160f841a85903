#ifndef TESSALY_BACKUP_SETTINGS_EXPORT_H_
#define TESSALY_BACKUP_SETTINGS_EXPORT_H_

#include <QString>

namespace tessaly {

class FileOperations;
class PlacedWindow;
class PrivateProfile;
class ProgramSettings;
class SettingsStore;
struct ProgramState;

inline constexpr QLatin1StringView kExportFileName{"tessaly02s.ini"};

// The settings export file: an INI file in the program folder that a backup writes and the next
// restore reads back and deletes. It never goes to the removable drive.
//
// The way back is narrower than the way out: every key is read as a whole number, texts included,
// so that "2001 Examination" comes back as "2001" and "Part I" as "0". A missing file reads as all
// zeros.
class SettingsExport {
public:
  SettingsExport(ProgramState& state, SettingsStore& settings, ProgramSettings& programSettings,
                 FileOperations& files, PlacedWindow& mainWindow);

  // Writes the options, the main window's place and the study selection as they are in memory.
  // Raises 61 or 70.
  void MakeExportFile();
  // A file that is not there is no failure. Raises 70.
  void DeleteExportFile();
  // Takes the file's values into memory and the settings store, moves the main window, and deletes
  // the file. Raises 6 for a number that its setting cannot hold, 61 or 70, and at its end 53 when
  // there was no file; what was done before the failure stays done.
  void ImportSettingsFile();

private:
  void ImportOptions(const PrivateProfile& file);
  void ImportPlacement(const PrivateProfile& file);
  void ImportStudySelection(const PrivateProfile& file);
  void ImportSubjectBasis(const PrivateProfile& file);
  void SaveStudySelection();
  [[nodiscard]] QString Path() const;
  [[nodiscard]] PrivateProfile ReadFile() const;

  ProgramState& state_;
  SettingsStore& settings_;
  ProgramSettings& programSettings_;
  FileOperations& files_;
  PlacedWindow& mainWindow_;
};

}  // namespace tessaly

#endif  // TESSALY_BACKUP_SETTINGS_EXPORT_H_
