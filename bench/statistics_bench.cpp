// What the statistics cost: their report, the reset of all of them and the backup of their file,
// each beside the least that the same work on the same file can cost.

#include <QFile>
#include <QTemporaryDir>

#include "bench/bench_program.h"
#include "catalogue/exam_catalogue.h"
#include "stats/statistics_report.h"
#include "stats/statistics_reset.h"
#include "store/connection.h"
#include "tests/backup/backup_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::bench {
namespace {

class NoResetView : public ResetView {
public:
  void SetBusyPointer(bool /*busy*/) override {}
  void ShowProgress() override {}
  void ShowStatistics() override {}
  void UnloadForms() override {}
};

void RunInOneTransaction(test::TestBank& bank, const QString& assignments,
                         const QString& subjectAssignments) {
  Connection answers(bank.Paths().AnswersDbPath, kPassword, Connection::Access::OpenExisting);
  answers.Execute(u"BEGIN IMMEDIATE"_s);
  for (const QLatin1StringView table : kTables) {
    answers.Execute(u"UPDATE \"%1\" SET %2"_s.arg(table, assignments));
  }
  answers.Execute(u"UPDATE SubjectStats SET "_s + subjectAssignments);
  answers.Execute(u"COMMIT"_s);
}

// Every question right in one mode and wrong in the other.
void AnswerAll(test::TestBank& bank) {
  RunInOneTransaction(bank, u"TutorialMode = 'C', EvalMode = 'I', PassFail = 'F'"_s,
                      u"TMAsked = 4, TMCorrect = 3, EMAsked = 2, EMCorrect = 1"_s);
}

BenchProgram& AnsweredProgram(const benchmark::State& state) {
  BenchProgram& program = ProgramWithRows(static_cast<int>(state.range(0)));
  AnswerAll(program.bank);
  program.program.Prepare();
  return program;
}

void StatisticsReportOf(benchmark::State& state) {
  BenchProgram& program = AnsweredProgram(state);
  for (auto _ : state) {
    Measure(state, [&program] {
      benchmark::DoNotOptimize(
          BuildStatisticsReport(program.program.State(), program.program.Bank()));
    });
  }
}

void CountAndSum(benchmark::State& state) {
  BenchProgram& program = AnsweredProgram(state);
  for (auto _ : state) {
    Measure(state, [&program] {
      Connection answers(program.bank.Paths().AnswersDbPath, kPassword,
                         Connection::Access::OpenExisting);
      for (const QLatin1StringView table : kTables) {
        Statement select = answers.Prepare(
            u"SELECT COUNT(*), SUM(TutorialMode = 'C') FROM \"%1\" WHERE TutorialMode <> 'U'"_s.arg(
                table));
        benchmark::DoNotOptimize(select.Next());
      }
    });
  }
}

void ResetAll(benchmark::State& state) {
  BenchProgram& program = ProgramWithRows(static_cast<int>(state.range(0)));
  NoResetView view;
  StatisticsReset reset(program.program.State(), program.settings, program.program.Bank(),
                        program.boxes, view);
  for (auto _ : state) {
    AnswerAll(program.bank);
    Measure(state, [&reset] { reset.Run({.ResetAll = true}); });
  }
}

void UpdateAllRows(benchmark::State& state) {
  BenchProgram& program = ProgramWithRows(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    AnswerAll(program.bank);
    Measure(state, [&program] {
      RunInOneTransaction(program.bank, u"TutorialMode = 'U', EvalMode = 'U', PassFail = 'U'"_s,
                          u"TMAsked = 0, TMCorrect = 0, EMAsked = 0, EMCorrect = 0"_s);
    });
  }
}

void BackUp(benchmark::State& state) {
  BenchProgram& program = AnsweredProgram(state);
  const QTemporaryDir drive;
  program.drives.removable = {{u"Drive"_s, drive.path()}};
  program.program.State().Backup = {kBackUp, drive.path()};
  test::FakeWindow window;
  test::FakeBackupView view;
  StatisticsBackup backup(program.program, window, view);
  for (auto _ : state) {
    Measure(state, [&backup] { backup.Run(); });
  }
}

void CopyWithSync(benchmark::State& state) {
  BenchProgram& program = AnsweredProgram(state);
  const QTemporaryDir drive;
  const QString copy = drive.filePath(u"copy"_s);
  for (auto _ : state) {
    Measure(state, [&program, &copy] {
      test::WriteBytes(copy, test::ReadBytes(program.bank.Paths().AnswersDbPath));
      FlushToDisk(copy);
    });
  }
}

void Sized(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(kExaminationRows)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(30);
}

void Grown(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(kGrownRows)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(3);
}

BENCHMARK(CountAndSum)->Apply(Sized);
BENCHMARK(StatisticsReportOf)->Apply(Sized);
BENCHMARK(UpdateAllRows)->Apply(Sized);
BENCHMARK(ResetAll)->Apply(Sized);
BENCHMARK(CopyWithSync)->Apply(Sized);
BENCHMARK(BackUp)->Apply(Sized);
BENCHMARK(CountAndSum)->Apply(Grown);
BENCHMARK(StatisticsReportOf)->Apply(Grown);
BENCHMARK(UpdateAllRows)->Apply(Grown);
BENCHMARK(ResetAll)->Apply(Grown);
BENCHMARK(CopyWithSync)->Apply(Grown);
BENCHMARK(BackUp)->Apply(Grown);

}  // namespace
}  // namespace tessaly::bench
