#ifndef TESSALY_TESTS_END_TO_END_KILL_RUNS_H_
#define TESSALY_TESTS_END_TO_END_KILL_RUNS_H_

#include <cstdio>
#include <exception>
#include <functional>
#include <random>
#include <string>

#include "tests/end_to_end/answer_records.h"
#include "tests/end_to_end/program_driver.h"

namespace tessaly::test {

// What the programs share that kill the real one at random moments.

// In nanoseconds.
[[nodiscard]] qint64 Timed(const std::function<void()>& act);

// Kills the program at any moment of what takes that long, or shortly after it.
void KillAtRandom(ProgramDriver& program, std::mt19937& random, qint64 nanoseconds);

// The two database files as another program would find them.
struct FoundFiles {
  AnswerRecords answers;
  int failedChecks = 0;  // of their integrity
  std::string failure;   // why one of them cannot be opened or read; empty when both can
};

// Looks at copies, journals included, so that the program itself meets what the kill has left.
[[nodiscard]] FoundFiles LookAtFiles(const BankPaths& paths);

// Kills as often as asked for, by `kill`, which is told how often it was before. Prints the figures
// and returns the exit code: 0 when every kill was made and nothing was lost. An exception ends the
// kills and counts as a failed start.
template <typename Kills>
int KillAndReport(Kills& kills, int runs, const std::function<void(int)>& kill) {
  auto figures = kills.Result();
  try {
    for (int i = 0; i < runs; ++i) {
      kill(i);
    }
    kills.Finish();
    figures = kills.Result();
  } catch (const std::exception& error) {
    figures = kills.Result();
    ++figures.failedStarts;
    std::fprintf(stderr, "kill %d: %s\n", figures.runs, error.what());
  }
  figures.Print();
  return figures.Lossless() && figures.runs == runs ? 0 : 1;
}

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_END_TO_END_KILL_RUNS_H_
