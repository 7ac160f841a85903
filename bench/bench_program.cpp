#include "bench/bench_program.h"

#include <QCoreApplication>
#include <map>
#include <memory>

namespace tessaly::bench {

BenchProgram& ProgramWithRows(int rowsATable) {
  static std::map<int, std::unique_ptr<BenchProgram>> programs;
  auto& program = programs[rowsATable];
  if (!program) {
    program = std::make_unique<BenchProgram>(rowsATable);
  }
  QDir::setCurrent(program->bank.WorkingFolder());
  return *program;
}

}  // namespace tessaly::bench

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
