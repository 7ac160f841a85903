#ifndef TESSALY_TESTS_BACKUP_BACKUP_FIXTURE_H_
#define TESSALY_TESTS_BACKUP_BACKUP_FIXTURE_H_

#include <QTemporaryDir>
#include <algorithm>
#include <functional>
#include <map>

#include "app/placed_window.h"
#include "backup/statistics_backup.h"
#include "tests/support/file_contents.h"
#include "tests/support/program_fixture.h"

namespace tessaly::test {

// A window that stands where it is put and remembers in which order, but never gets smaller than
// its smallest size.
class FakeWindow : public PlacedWindow {
public:
  float Measure(WindowMeasure measure) const override { return measures.at(measure); }
  void SetMeasure(WindowMeasure measure, float twips) override {
    changes.append(measure);
    const bool isSize = measure == WindowMeasure::Height || measure == WindowMeasure::Width;
    measures[measure] = isSize ? std::max(twips, smallestSize) : twips;
  }

  std::map<WindowMeasure, float> measures{{WindowMeasure::Height, 7005.F},
                                          {WindowMeasure::Left, -60.F},
                                          {WindowMeasure::Top, 1005.F},
                                          {WindowMeasure::Width, 11505.F}};
  QList<WindowMeasure> changes;
  float smallestSize = 0;
};

class FakeBackupView : public BackupView {
public:
  void ShowWorking(const QString& text) override { working.append(text); }
  void Refresh() override {
    ++timesRefreshed;
    whenRefreshed();
  }
  void Unload() override { ++timesUnloaded; }
  void Clear() {
    working.clear();
    timesRefreshed = 0;
    timesUnloaded = 0;
    whenRefreshed = [] {};
  }

  QStringList working;
  int timesRefreshed = 0;
  int timesUnloaded = 0;
  std::function<void()> whenRefreshed = [] {};
};

inline const QString kTitle = QStringLiteral("Tessaly Backup/Restore|");
inline const QString kBackupRequest =
    kTitle + QStringLiteral("Please put a floppy disk in your disk drive");
inline const QString kRestoreRequest =
    kTitle + QStringLiteral("Please put a floppy disk containing backup files in your disk drive");

// The whole program without windows and one drive, a folder that counts as mounted while it is in
// `drives`.
class BackupTest : public ProgramTest {
protected:
  BackupTest() {
    program.Prepare();
    PutIn(stick.path());
  }

  void PutIn(const QString& folder) {
    drives.removable = {{QStringLiteral("Stick"), folder}};
    State().Backup.SelectedDrive = folder;
  }
  // The dialog's OK button, with the dialog loaded for this direction.
  void Run(std::uint8_t direction) {
    State().Backup.Direction = direction;
    StatisticsBackup(program, window, dialog).Run();
  }

  [[nodiscard]] QString Answers() const { return bank.Paths().AnswersDbPath; }
  [[nodiscard]] QString Export() const { return QDir(bank.Folder()).filePath(kExportFileName); }
  [[nodiscard]] QString OnDrive() const { return stick.filePath(kAnswersFileName); }
  void Count(const QString& column, int value) {
    bank.RunOnAnswers(
        QStringLiteral("UPDATE SubjectStats SET %1 = ? WHERE Subject = ?").arg(column),
        {value, TestBank::SubjectName(5)});
  }

  QTemporaryDir stick;
  FakeWindow window;
  FakeBackupView dialog;
};

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_BACKUP_BACKUP_FIXTURE_H_
