#include "tests/end_to_end/kill_runs.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <chrono>
#include <thread>

#include "store/connection.h"
#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {

qint64 Timed(const std::function<void()>& act) {
  QElapsedTimer timer;
  timer.start();
  act();
  return timer.nsecsElapsed();
}

void KillAtRandom(ProgramDriver& program, std::mt19937& random, qint64 nanoseconds) {
  const qint64 moment = std::uniform_int_distribution<qint64>(0, nanoseconds * 5 / 4)(random);
  std::this_thread::sleep_for(std::chrono::nanoseconds(moment));
  program.Kill();
}

FoundFiles LookAtFiles(const BankPaths& paths) {
  const QTemporaryDir copies;
  const QString questions = copies.filePath(u"questions"_s);
  const QString answers = copies.filePath(u"answers"_s);
  for (const QString& ending : {u""_s, u"-journal"_s}) {
    QFile::copy(paths.QuestionsDbPath + ending, questions + ending);
    QFile::copy(paths.AnswersDbPath + ending, answers + ending);
  }
  FoundFiles found;
  try {
    for (const QString& path : {questions, answers}) {
      if (!Connection(path, kPassword, Connection::Access::OpenExisting).IsIntact()) {
        ++found.failedChecks;
      }
    }
    found.answers = ReadAnswerRecords(answers);
  } catch (const RuntimeError& error) {
    found.failure = error.what();
  }
  return found;
}

}  // namespace tessaly::test
