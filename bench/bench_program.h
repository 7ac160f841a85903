#ifndef TESSALY_BENCH_BENCH_PROGRAM_H_
#define TESSALY_BENCH_BENCH_PROGRAM_H_

#include <benchmark/benchmark.h>

#include <QDir>
#include <chrono>

#include "app/program.h"
#include "bench/bench_bank.h"
#include "platform/file_operations.h"
#include "tests/support/fake_browser_window.h"
#include "tests/support/fake_printer.h"
#include "tests/support/fakes.h"

namespace tessaly::bench {

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
[[nodiscard]] BenchProgram& ProgramWithRows(int rowsATable);

// Times are taken by hand, so that preparing an iteration does not count.
template <typename Work>
void Measure(benchmark::State& state, const Work& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  state.SetIterationTime(seconds.count());
}

}  // namespace tessaly::bench

#endif  // TESSALY_BENCH_BENCH_PROGRAM_H_
