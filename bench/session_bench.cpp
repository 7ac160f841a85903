// What a study session costs, beside the least that the same work on the files can cost. Each pair
// runs on the same files.

#include <QFile>

#include "bench/bench_program.h"
#include "store/connection.h"

using namespace Qt::StringLiterals;

namespace tessaly::bench {
namespace {

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
