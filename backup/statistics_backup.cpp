#include "backup/statistics_backup.h"

#include <QDir>
#include <QScopeGuard>
#include <algorithm>

#include "app/program.h"
#include "backup/answers_file.h"
#include "platform/drives.h"
#include "platform/file_operations.h"
#include "platform/message_boxes.h"
#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

namespace tessaly {

StatisticsBackup::StatisticsBackup(Program& program, PlacedWindow& mainWindow, BackupView& view)
    : program_(program),
      view_(view),
      export_(program.State(), program.Machine().settings, program.Settings(),
              program.Machine().files, mainWindow) {}

void StatisticsBackup::Run() {
  const BackupState& backup = program_.State().Backup;
  if (backup.SelectedDrive.isEmpty()) {
    if (!AskForDisk()) {
      view_.Unload();
    }
    return;
  }
  const auto unload = qScopeGuard([this] { view_.Unload(); });
  if (backup.Direction == kRestore) {
    Restore();
  } else {
    BackUp();
  }
}

void StatisticsBackup::BackUp() {
  const bool done = Carry([this] { export_.MakeExportFile(); }) && Carry([this] { CopyToDrive(); });
  if (!done) {
    export_.DeleteExportFile();
  }
}

void StatisticsBackup::Restore() {
  if (Carry([this] { CopyFromDrive(); })) {
    // Given up or not, what was taken over before stays.
    static_cast<void>(Carry([this] { export_.ImportSettingsFile(); }));
    TakeUpRestored();
  }
}

void StatisticsBackup::CopyToDrive() {
  view_.ShowWorking(u"Please wait while Tessaly backs up your statistics..."_s);
  const BankPaths& paths = program_.State().Paths;
  RequireDisk();
  // A change that was cut off is undone when the file is opened. It must be closed again: reading
  // it would take away the locks of an open one.
  static_cast<void>(program_.Bank().OpenDatabase(paths.AnswersDbPath, paths.DbConnect));
  PutCopy(paths.AnswersDbPath, FileOnDrive(), [] {});
}

void StatisticsBackup::CopyFromDrive() {
  view_.ShowWorking(u"Please wait while Tessaly restores your statistics..."_s);
  const BankPaths& paths = program_.State().Paths;
  RequireDisk();
  PutCopy(FileOnDrive(), paths.AnswersDbPath,
          [this, &paths] { PrepareToReplace(program_.Bank(), program_.Machine().files, paths); });
}

void StatisticsBackup::PutCopy(const QString& source, const QString& target,
                               const std::function<void()>& beforeReplacing) {
  FileOperations& files = program_.Machine().files;
  const QString beside = BesideName(target);
  files.Copy(source, beside, [this] { view_.Refresh(); });
  try {
    RequireAnswersFile(program_.Bank(), beside, program_.State().Paths.DbConnect);
    beforeReplacing();
    files.Move(beside, target);
  } catch (const RuntimeError&) {
    files.Remove(beside);
    throw;
  }
}

// The subjects' totals in memory are those of before; the next session would write them over the
// restored ones.
void StatisticsBackup::TakeUpRestored() {
  StudySelector& selector = program_.Selector();
  selector.ShowModeCaption();
  selector.RefreshStatus();
  selector.LoadSubjectTotals();
}

bool StatisticsBackup::Carry(const std::function<void()>& step) {
  for (;;) {
    try {
      step();
      return true;
    } catch (const RuntimeError&) {
      if (!AskForDisk()) {
        return false;
      }
    }
  }
}

bool StatisticsBackup::AskForDisk() {
  const bool restoring = program_.State().Backup.Direction == kRestore;
  const QString request =
      restoring ? u"Please put a floppy disk containing backup files in your disk drive"_s
                : u"Please put a floppy disk in your disk drive"_s;
  return program_.Machine().boxes.Show(request, u"Tessaly Backup/Restore"_s, BoxIcon::Exclamation,
                                       BoxButtons::OkCancel) == BoxAnswer::Ok;
}

// The folder of a drive that was taken out may still be there, on the hard disk.
void StatisticsBackup::RequireDisk() const {
  const QString& selected = program_.State().Backup.SelectedDrive;
  const QList<Drive> drives = program_.Machine().drives.Removable();
  if (std::none_of(drives.begin(), drives.end(),
                   [&selected](const Drive& drive) { return drive.Path == selected; })) {
    throw RuntimeError(ErrorNumber::DiskNotReady, selected);
  }
}

QString StatisticsBackup::FileOnDrive() const {
  return QDir(program_.State().Backup.SelectedDrive).filePath(kAnswersFileName);
}

}  // namespace tessaly
