// What a study session costs, beside the least that the same work on the files can cost. Each pair
// runs on the same files; times are manual, so that preparing an iteration does not count.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <chrono>
#include <map>
#include <memory>

#include "app/program.h"
#include "bench/bench_bank.h"
#include "platform/file_operations.h"
#include "store/connection.h"
#include "tests/support/fake_browser_window.h"
#include "tests/support/fake_printer.h"
#include "tests/support/fakes.h"

using namespace Qt::StringLiterals;

namespace tessaly::bench {
namespace {

// The program without windows on a bank of its own.
struct BenchProgram {
  explicit BenchProgram(int rowsATable) {
    QDir::setCurrent(bank.WorkingFolder());
    FillBank(bank, rowsATable);
    program.Prepare();
  }

  StudySession& Session() { return program.Session(); }

  test::TestBank bank;
  test::FakeSettings settings;
  test::FakeClock clock;
  test::FakeBoxes boxes;
  test::FakeView view;
  DiskFileOperations files;
  test::FakeDrives drives;
  test::FakePrinter printer;
  test::FakeDesktop desktop;
  test::FakeBrowserWindow browserWindow;
  Program program{{settings, clock, boxes, files, drives, printer, desktop, browserWindow},
                  bank.Folder(),
                  view};
};

// A bank of 768,000 rows takes its time to make, so each size is made once.
BenchProgram& ProgramWithRows(int rowsATable) {
  static std::map<int, std::unique_ptr<BenchProgram>> programs;
  auto& program = programs[rowsATable];
  if (!program) {
    program = std::make_unique<BenchProgram>(rowsATable);
  }
  QDir::setCurrent(program->bank.WorkingFolder());
  return *program;
}

template <typename Work>
void Measure(benchmark::State& state, const Work& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  state.SetIterationTime(seconds.count());
}

void BeginUnlessRunning(BenchProgram& program) {
  if (!program.Session().IsRunning()) {
    program.bank.RunOnAnswers(
        u"UPDATE \"01Part1\" SET TutorialMode = 'U', TimesAsked = 0, "
        u"TimesCorrect = 0"_s);
    program.bank.RunOnAnswers(u"UPDATE SubjectStats SET TMAsked = 0, TMCorrect = 0"_s);
    program.program.Prepare();
    program.Session().BeginSession();
  }
}

void GradeAnswer(benchmark::State& state) {
  BenchProgram& program = ProgramWithRows(kExaminationRows);
  for (auto _ : state) {
    BeginUnlessRunning(program);
    Measure(state, [&program] { program.Session().GradeAnswer(0); });
    program.Session().NextQuestion();
  }
  program.Session().EndSession();
}

void BareUpdate(benchmark::State& state) {
  BenchProgram& program = ProgramWithRows(kExaminationRows);
  Connection answers(program.bank.Paths().AnswersDbPath, kPassword,
                     Connection::Access::OpenExisting);
  Statement update = answers.Prepare(
      u"UPDATE \"01Part1\" SET TutorialMode = 'C', TimesAsked = TimesAsked + 1, "
      u"TimesCorrect = TimesCorrect + 1, PassFail = 'P' WHERE QuestionNo = ?"_s);
  int no = 0;
  for (auto _ : state) {
    no = no % kExaminationRows + 1;
    Measure(state, [&] {
      update.Bind({no});
      update.Run();
    });
  }
}

void BeginSession(benchmark::State& state) {
  BenchProgram& program = ProgramWithRows(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    Measure(state, [&program] { program.Session().BeginSession(); });
    program.Session().EndSession();
  }
}

void ExportOf(const QString& source, const QString& target) {
  Connection connection(source, kPassword, Connection::Access::OpenExisting);
  Statement attach = connection.Prepare(u"ATTACH ? AS floor KEY ?"_s);
  attach.Bind({target, QString(kPassword)});
  attach.Run();
  connection.Execute(u"SELECT sqlcipher_export('floor')"_s);
  connection.Execute(u"DETACH floor"_s);
}

void ExportBothFiles(benchmark::State& state) {
  BenchProgram& program = ProgramWithRows(static_cast<int>(state.range(0)));
  const QString questions = program.bank.WorkingFolder() + u"/floor-q.mdb"_s;
  const QString answers = program.bank.WorkingFolder() + u"/floor-a.mdb"_s;
  for (auto _ : state) {
    Measure(state, [&] {
      ExportOf(program.bank.Paths().QuestionsDbPath, questions);
      ExportOf(program.bank.Paths().AnswersDbPath, answers);
    });
    QFile::remove(questions);
    QFile::remove(answers);
  }
}

// The last row is left out: going on from there ends the session.
void NextQuestion(benchmark::State& state) {
  BenchProgram& program = ProgramWithRows(static_cast<int>(state.range(0)));
  int shown = 0;
  for (auto _ : state) {
    if (++shown % kExaminationRows == 0) {
      program.Session().EndSession();
    }
    BeginUnlessRunning(program);
    Measure(state, [&program] { program.Session().NextQuestion(); });
  }
  program.Session().EndSession();
}

BENCHMARK(BareUpdate)->UseManualTime()->Unit(benchmark::kMicrosecond)->MinTime(2);
BENCHMARK(GradeAnswer)->UseManualTime()->Unit(benchmark::kMicrosecond)->MinTime(2);
BENCHMARK(ExportBothFiles)
    ->Arg(kExaminationRows)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond)
    ->Iterations(20);
BENCHMARK(BeginSession)
    ->Arg(kExaminationRows)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond)
    ->Iterations(20);
BENCHMARK(NextQuestion)
    ->Arg(kExaminationRows)
    ->Arg(kGrownRows)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond)
    ->Iterations(300);
BENCHMARK(ExportBothFiles)
    ->Arg(kGrownRows)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond)
    ->Iterations(1);
BENCHMARK(BeginSession)
    ->Arg(kGrownRows)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond)
    ->Iterations(1);

}  // namespace
}  // namespace tessaly::bench

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
