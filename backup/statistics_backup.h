#ifndef TESSALY_BACKUP_STATISTICS_BACKUP_H_
#define TESSALY_BACKUP_STATISTICS_BACKUP_H_

#include <QString>
#include <functional>

#include "backup/settings_export.h"

namespace tessaly {

class PlacedWindow;
class Program;

// What the two commands give the dialog beside its own texts.
inline constexpr QLatin1StringView kSelectDestination{"Select destination drive:"};
inline constexpr QLatin1StringView kSelectSource{"Select source drive:"};
inline constexpr QLatin1StringView kRestoreDescription{
    "You are preparing to restore statistics from a removable disk.  This will overwrite the "
    "statistics on your hard drive.  Click OK to continue."};

// The backup dialog as the work sees it.
class BackupView {
public:
  BackupView() = default;
  BackupView(const BackupView&) = delete;
  BackupView& operator=(const BackupView&) = delete;
  virtual ~BackupView() = default;

  // Says what the program is busy with, hides the controls and repaints.
  virtual void ShowWorking(const QString& text) = 0;
  // Lets the dialog repaint while a copy is under way.
  virtual void Refresh() = 0;
  virtual void Unload() = 0;
};

// Copies the answers file to the selected drive or back from it, as the direction says. A copy
// takes the place of the file before it only when it is whole, on the disk, and proven to be an
// answers file: whatever fails or is cut off leaves that file as it was, beside it at most a file
// with the ending ".new", which the next copy replaces.
//
// A failure asks for a disk: OK tries the failed step again, Cancel gives up.
class StatisticsBackup {
public:
  StatisticsBackup(Program& program, PlacedWindow& mainWindow, BackupView& view);

  // The dialog's OK button; unloads the dialog when it is done or given up. Without a drive it only
  // asks for a disk. Raises what stands in the way of tidying up.
  void Run();

private:
  void BackUp();
  void Restore();
  void CopyToDrive();
  void CopyFromDrive();
  void PutCopy(const QString& source, const QString& target,
               const std::function<void()>& beforeReplacing);
  void TakeUpRestored();
  // False when the user gave up.
  [[nodiscard]] bool Carry(const std::function<void()>& step);
  [[nodiscard]] bool AskForDisk();
  void RequireDisk() const;
  [[nodiscard]] QString FileOnDrive() const;

  Program& program_;
  BackupView& view_;
  SettingsExport export_;
};

}  // namespace tessaly

#endif  // TESSALY_BACKUP_STATISTICS_BACKUP_H_
