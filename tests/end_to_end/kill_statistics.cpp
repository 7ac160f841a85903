// Runs the real program in one program folder, kills it with SIGKILL in the middle of a reset of
// all statistics, a restore, a backup or printing, and looks whether both files are whole and every
// row is either as it was or as it was to become. Arguments: the number of kills, a number to draw
// the moments from, and the command, "reset", "restore", "backup", "print" or "all" for each in
// turn. Prints its figures as "name value"; fails on any loss.

#include <QCoreApplication>
#include <QDir>
#include <cstdio>
#include <optional>
#include <random>
#include <stdexcept>

#include "store/connection.h"
#include "store/runtime_error.h"
#include "tests/end_to_end/kill_runs.h"
#include "tests/end_to_end/print_queue.h"
#include "tests/end_to_end/statistics_commands.h"
#include "tests/support/file_contents.h"
#include "tests/support/small_disk.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {

namespace {

constexpr int kRowsATable = 80;
constexpr int kDriveKibibytes = 4096;
constexpr int kExitSkipped = 77;

struct Figures {
  int runs = 0;
  int leftOld = 0;
  int leftBetween = 0;
  int leftNew = 0;
  int lostRows = 0;
  int failedOpens = 0;
  int failedChecks = 0;
  int lostSettings = 0;
  int failedStarts = 0;

  [[nodiscard]] bool Lossless() const {
    return lostRows + failedOpens + failedChecks + lostSettings + failedStarts == 0;
  }
  void Print() const {
    std::printf("kills %d\nkills that left the old state %d\n", runs, leftOld);
    std::printf("kills that left whole rows of both %d\nkills that left the new state %d\n",
                leftBetween, leftNew);
    std::printf("states that are neither %d\nfailed opens %d\n", lostRows, failedOpens);
    std::printf("failed integrity checks %d\nlost settings %d\n", failedChecks, lostSettings);
    std::printf("failed starts or begins %d\n", failedStarts);
  }
};

class KilledStatistics {
public:
  explicit KilledStatistics(unsigned seed) : random_(seed) {
    FillStatistics(installation_.bank, kRowsATable);
    // Every question was answered wrongly in this mode, so that there is always one to print.
    installation_.Store(u"StudyMode/Mode"_s, u"1"_s);
    installation_.Store(u"StudyMode/QuestionType"_s, u"2"_s);
    installation_.SetVariable(u"CUPS_SERVER"_s, queue_.Server());
  }

  // Only root can mount the drive that a backup needs.
  [[nodiscard]] bool HasDrive() const { return drive_.IsMounted(); }
  void Run(const QString& command);
  // After the last kill: does the program still come up and study?
  void Finish();
  [[nodiscard]] const Figures& Result() const { return figures_; }

private:
  [[nodiscard]] int Draw(int choices) {
    return std::uniform_int_distribution(0, choices - 1)(random_);
  }
  void KillReset();
  void KillRestore();
  void KillBackUp();
  void KillPrint();
  void Renew() { AnswerEverything(installation_.bank, ++round_); }
  void ConfirmReset() { program_.Start({u"answer"_s, u"Yes"_s}); }
  void StartCopy(const QString& command);
  void BackUp();
  void MeasureReset();
  void MeasureRestore();
  void StartPrinting();
  [[nodiscard]] std::optional<AnswerRecords> FilesAsLeft();
  [[nodiscard]] std::optional<AnswerRecords> DriveAsLeft();
  [[nodiscard]] AnswerRecords Records() {
    return ReadAnswerRecords(installation_.bank.Paths().AnswersDbPath);
  }
  void CountReset(const std::optional<AnswerRecords>& found);
  void CountCopy(const std::optional<AnswerRecords>& found, const AnswerRecords& fresh);
  void CountUnchanged(const std::optional<AnswerRecords>& found);
  void LookAtSettings();

  std::mt19937 random_;
  SmallDisk drive_{kDriveKibibytes, DiskPlace::Media};
  PrintQueue queue_;
  Installation installation_;
  ProgramDriver program_{installation_};
  int round_ = 1;
  AnswerRecords before_;  // what the file to be changed held
  // How long the program takes for what is to be cut off; 0 while nobody knows.
  qint64 resetNanoseconds_ = 0;
  qint64 restoreNanoseconds_ = 0;
  qint64 backUpNanoseconds_ = 0;
  Figures figures_;
};

void KilledStatistics::Run(const QString& command) {
  ++figures_.runs;
  // Deleting the study times takes several times as long as the rows. Most resets find none.
  constexpr int kOneIn = 4;
  const bool withTimers = resetNanoseconds_ != 0 && Draw(kOneIn) == 0;
  if (withTimers) {
    StoreTimers(installation_);
  }
  program_.StartToMainWindow();
  if (command == "reset"_L1) {
    KillReset();
  } else if (command == "restore"_L1) {
    KillRestore();
  } else if (command == "backup"_L1) {
    KillBackUp();
  } else {
    KillPrint();
  }
  LookAtSettings();
}

void KilledStatistics::Finish() {
  program_.StartToMainWindow();
  program_.Press(u"Ctrl+B"_s);
  program_.WaitForVisible(u"txtQuestion"_s);
  program_.Press(u"Ctrl+E"_s);
  program_.Close(u"frmMain"_s);
  if (program_.WaitForExit() != 0) {
    ++figures_.failedStarts;
  }
  static_cast<void>(FilesAsLeft());
}

void KilledStatistics::KillReset() {
  if (resetNanoseconds_ == 0) {
    MeasureReset();
  }
  Renew();
  before_ = Records();
  AskToResetAll(program_);
  constexpr qint64 kTimesAsLong = 8;
  const bool withTimers = CountTimers(installation_) > kTimersAfterReset;
  ConfirmReset();
  KillAtRandom(program_, random_,
               withTimers ? resetNanoseconds_ * kTimesAsLong : resetNanoseconds_);
  CountReset(FilesAsLeft());
}

void KilledStatistics::MeasureReset() {
  AskToResetAll(program_);
  const qint64 withReport = Timed([this] {
    ConfirmReset();
    program_.WaitUntil(u"the report"_s, [this] {
      return program_.HasBox() &&
             program_.WaitForBox().text == "All study statistics have been deleted."_L1;
    });
  });
  resetNanoseconds_ = withReport / 2;
  program_.AnswerBox(u"OK"_s);
}

void KilledStatistics::StartCopy(const QString& command) {
  OpenBackupDialog(program_, command, drive_.Folder());
  program_.Start({u"click"_s, u"OKButton"_s});
}

void KilledStatistics::BackUp() {
  backUpNanoseconds_ = Timed([this] {
    StartCopy(u"mnuFileExport"_s);
    WaitUntilClosed(program_, u"frmBackup"_s);
  });
}

void KilledStatistics::KillRestore() {
  BackUp();
  if (restoreNanoseconds_ == 0) {
    MeasureRestore();
    BackUp();
  }
  const AnswerRecords fresh = Records();
  Renew();
  before_ = Records();
  StartCopy(u"mnuFileImport"_s);
  // The copy is the smaller part of the work; the rest is the settings.
  constexpr int kCopyShare = 12;
  const bool early = Draw(2) == 0;
  KillAtRandom(program_, random_, early ? restoreNanoseconds_ / kCopyShare : restoreNanoseconds_);
  const std::optional<AnswerRecords> onDrive = DriveAsLeft();
  if (onDrive && !(*onDrive == fresh)) {
    ++figures_.lostRows;
  }
  CountCopy(FilesAsLeft(), fresh);
}

void KilledStatistics::MeasureRestore() {
  restoreNanoseconds_ = Timed([this] {
    StartCopy(u"mnuFileImport"_s);
    WaitUntilClosed(program_, u"frmBackup"_s);
  });
  // The next one would otherwise restore as well.
  program_.Trigger(u"mnuFileExport"_s);
  program_.WaitForWindow(u"frmBackup"_s);
  program_.Click(u"CancelButton"_s);
}

void KilledStatistics::KillBackUp() {
  BackUp();
  before_ = Records();
  Renew();
  const AnswerRecords fresh = Records();
  StartCopy(u"mnuFileExport"_s);
  KillAtRandom(program_, random_, backUpNanoseconds_);
  const std::optional<AnswerRecords> found = FilesAsLeft();
  if (found && !(*found == fresh)) {
    ++figures_.lostRows;
  }
  CountCopy(DriveAsLeft(), fresh);
}

void KilledStatistics::KillPrint() {
  constexpr qint64 kPrintNanoseconds = 2'000'000'000;  // a wait of a second and a half included
  before_ = Records();
  StartPrinting();
  KillAtRandom(program_, random_, kPrintNanoseconds);
  CountUnchanged(FilesAsLeft());
}

void KilledStatistics::StartPrinting() {
  if (Draw(2) == 0) {
    program_.Press(u"Ctrl+A"_s);
    program_.WaitForVisible(u"frmStats"_s);
    program_.Start({u"click"_s, u"cmdPrintStats"_s});
    return;
  }
  program_.Press(u"Ctrl+B"_s);
  program_.WaitForVisible(u"txtQuestion"_s);
  program_.Start({u"press"_s, u"Ctrl+P"_s});
}

std::optional<AnswerRecords> KilledStatistics::FilesAsLeft() {
  const FoundFiles files = LookAtFiles(installation_.bank.Paths());
  figures_.failedChecks += files.failedChecks;
  if (!files.failure.empty()) {
    ++figures_.failedOpens;
    std::fprintf(stderr, "kill %d: %s\n", figures_.runs, files.failure.c_str());
    return std::nullopt;
  }
  return files.answers;
}

std::optional<AnswerRecords> KilledStatistics::DriveAsLeft() {
  const QString path = QDir(drive_.Folder()).filePath(kAnswersFileName);
  try {
    if (!Connection(path, kPassword, Connection::Access::OpenExisting).IsIntact()) {
      ++figures_.failedChecks;
    }
    return ReadAnswerRecords(path);
  } catch (const RuntimeError& error) {
    ++figures_.failedOpens;
    std::fprintf(stderr, "kill %d, drive: %s\n", figures_.runs, error.what());
    return std::nullopt;
  }
}

void KilledStatistics::CountReset(const std::optional<AnswerRecords>& found) {
  if (!found) {
    return;
  }
  const std::optional<int> steps = ResetStepsBetween(before_, *found);
  if (!steps) {
    ++figures_.lostRows;
    std::fprintf(stderr, "kill %d: a reset left a state that it never passes\n", figures_.runs);
  } else if (*steps == 0) {
    ++figures_.leftOld;
  } else if (CountTimers(installation_) > kTimersAfterReset) {
    ++figures_.lostSettings;
    std::fprintf(stderr, "kill %d: rows were reset before the study times\n", figures_.runs);
  } else {
    ++(*steps == kResetSteps ? figures_.leftNew : figures_.leftBetween);
  }
}

void KilledStatistics::CountCopy(const std::optional<AnswerRecords>& found,
                                 const AnswerRecords& fresh) {
  if (!found) {
    return;
  }
  if (*found == before_) {
    ++figures_.leftOld;
  } else if (*found == fresh) {
    ++figures_.leftNew;
  } else {
    ++figures_.lostRows;
    std::fprintf(stderr, "kill %d: a copy left neither file\n", figures_.runs);
  }
}

void KilledStatistics::CountUnchanged(const std::optional<AnswerRecords>& found) {
  CountCopy(found, before_);
}

void KilledStatistics::LookAtSettings() {
  if (installation_.Stored(u"Options/Suppress2587Msg"_s) != "1"_L1) {
    ++figures_.lostSettings;
  }
}

}  // namespace

}  // namespace tessaly::test

int main(int argc, char* argv[]) {
  using tessaly::test::kExitSkipped;
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  const int runs = arguments.value(1).toInt();
  const QStringList all{u"reset"_s, u"restore"_s, u"backup"_s, u"print"_s};
  const QString command = arguments.value(3, u"all"_s);
  const QStringList commands = command == "all"_L1 ? all : QStringList{command};
  if (!all.contains(commands.first())) {
    std::fprintf(stderr, "no such command: %s\n", qPrintable(command));
    return 2;
  }
  tessaly::test::KilledStatistics statistics(arguments.value(2).toUInt());
  if (!statistics.HasDrive()) {
    std::fprintf(stderr, "only root can mount a drive\n");
    return kExitSkipped;
  }
  return tessaly::test::KillAndReport(
      statistics, runs, [&](int i) { statistics.Run(commands[i % commands.size()]); });
}
