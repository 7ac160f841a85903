// Runs real study sessions in one program folder, kills each with SIGKILL and looks whether every
// answer whose verdict the program had shown is on the disk. Arguments: the number of sessions, and
// a number to draw the moments from. Prints its figures as "name value"; fails on any loss.

#include <QCoreApplication>
#include <QFile>
#include <array>
#include <cstdio>
#include <map>
#include <optional>
#include <random>
#include <stdexcept>

#include "catalogue/exam_catalogue.h"
#include "tests/end_to_end/kill_runs.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {

namespace {

constexpr int kQuestionsInATable = 40;
constexpr int kMostAnswers = 4;

enum class Phase { Begin, Answer, Verdict, Next, End, Idle };

// Compaction is where most can go wrong, so that it gets the greatest share.
constexpr std::array kPhases{Phase::Begin,  Phase::Begin,  Phase::Begin,
                             Phase::Answer, Phase::Answer, Phase::Verdict,
                             Phase::Next,   Phase::End,    Phase::Idle};

const char* NameOf(Phase phase) {
  switch (phase) {
    case Phase::Begin:
      return "kills during Begin";
    case Phase::Answer:
      return "kills around an answer";
    case Phase::Verdict:
      return "kills right after a verdict";
    case Phase::Next:
      return "kills during Next";
    case Phase::End:
      return "kills during End";
    case Phase::Idle:
      break;
  }
  return "kills while idle";
}

// All figures are printed, the zeros as well, in this order.
struct Figures {
  std::map<Phase, int> kills;
  int runs = 0;
  int answersShown = 0;
  int answersMissing = 0;
  int failedOpens = 0;
  int failedChecks = 0;
  int failedStarts = 0;
  int copiesLeft = 0;
  int compactionsCutOff = 0;

  [[nodiscard]] bool Lossless() const {
    return answersMissing == 0 && failedOpens == 0 && failedChecks == 0 && failedStarts == 0;
  }
  void Print() const {
    std::printf("runs %d\n", runs);
    for (const Phase phase :
         {Phase::Begin, Phase::Answer, Phase::Verdict, Phase::Next, Phase::End, Phase::Idle}) {
      const auto count = kills.find(phase);
      std::printf("%s %d\n", NameOf(phase), count == kills.end() ? 0 : count->second);
    }
    std::printf("answers shown %d\nanswers missing %d\nfailed opens %d\n", answersShown,
                answersMissing, failedOpens);
    std::printf("failed integrity checks %d\nfailed starts or begins %d\n", failedChecks,
                failedStarts);
    std::printf("compactions cut off while copying %d\n", copiesLeft);
    std::printf("compactions cut off while exchanging the files %d\n", compactionsCutOff);
  }
};

class KilledSessions {
public:
  explicit KilledSessions(unsigned seed);

  void Run();
  // After the last kill: does the program still come up?
  void Finish();
  [[nodiscard]] const Figures& Result() const { return figures_; }

private:
  void FillBank();
  void StartAndBegin();
  void GiveAnswers(int count);
  GivenAnswer ClickAnswer(bool wait);
  void ReadVerdict(const GivenAnswer& answer);
  void GoOn();
  void KillDuring(Phase phase);
  void KillWithin(qint64 nanoseconds) { KillAtRandom(program_, random_, nanoseconds); }
  void LookAtCompaction();
  void Verify();
  int Draw(int last) { return std::uniform_int_distribution(0, last)(random_); }

  std::mt19937 random_;
  Installation installation_;
  ProgramDriver program_{installation_};
  bool evaluation_ = false;
  QString passFailBox_;  // what the program's pass/fail box holds
  AnswerRecords shown_;
  std::optional<GivenAnswer> underWay_;  // clicked, its verdict not seen
  bool verified_ = true;
  // How long the program takes, on this machine and at this moment, for what is to be cut off.
  qint64 beginNanoseconds_ = 0;
  qint64 answerNanoseconds_ = 0;
  Figures figures_;
};

KilledSessions::KilledSessions(unsigned seed) : random_(seed) {
  FillBank();
  shown_ = ReadAnswerRecords(installation_.bank.Paths().AnswersDbPath);
}

// Every question says where it stands, and is long enough for a compaction to take its time.
void KilledSessions::FillBank() {
  TestBank& bank = installation_.bank;
  const QString first = kTables.front();
  bank.AddQuestions(first, 1, kQuestionsInATable, TestBank::SubjectName(0));
  for (const QLatin1StringView table : kTables) {
    if (table != first) {
      bank.RunOnQuestions(u"INSERT INTO \"%1\" SELECT * FROM \"%2\""_s.arg(table, first));
      bank.RunOnAnswers(u"INSERT INTO \"%1\" SELECT * FROM \"%2\""_s.arg(table, first));
    }
    bank.RunOnQuestions(
        u"UPDATE \"%1\" SET AnswerText = hex(randomblob(500)), "
        u"Subject = 'Subject 0' || (QuestionNo % 10), "
        u"Question = '%1|' || QuestionNo || '|Subject 0' || (QuestionNo % 10)"_s.arg(table));
  }
}

void KilledSessions::Run() {
  ++figures_.runs;
  const Phase phase = kPhases[static_cast<std::size_t>(Draw(kPhases.size() - 1))];
  evaluation_ = phase != Phase::Next && Draw(2) == 0;
  installation_.Store(u"StudyMode/Mode"_s, evaluation_ ? u"1"_s : u"0"_s);
  installation_.Store(u"StudyMode/Section"_s, QString::number(Draw(3)));
  installation_.Store(u"StudyMode/QuestionType"_s, u"2"_s);
  StartAndBegin();
  GiveAnswers(1 + Draw(kMostAnswers - 1));
  ++figures_.kills[phase];
  KillDuring(phase);
  LookAtCompaction();
  if (verified_) {
    Verify();
  }
}

void KilledSessions::Finish() {
  StartAndBegin();
  program_.Press(u"Ctrl+E"_s);
  program_.Kill();
  Verify();
}

// A compaction that was cut off is finished by the start, so that it is looked at after it.
void KilledSessions::StartAndBegin() {
  passFailBox_.clear();
  program_.StartToMainWindow();
  if (!verified_) {
    verified_ = true;
    Verify();
  }
  beginNanoseconds_ = Timed([this] { program_.Press(u"Ctrl+B"_s); });
  program_.WaitForVisible(u"txtQuestion"_s);
}

void KilledSessions::GiveAnswers(int count) {
  for (int i = 0; i < count; ++i) {
    ReadVerdict(ClickAnswer(true));
    GoOn();
  }
}

// Odd questions are always answered wrongly, so that a section never runs out of questions.
GivenAnswer KilledSessions::ClickAnswer(bool wait) {
  const QStringList question = program_.PaneText(u"txtQuestion"_s).split(u'|');
  GivenAnswer answer{
      question.value(0), question.value(1).toInt(), question.value(2), evaluation_, false, u"F"_s};
  answer.correct = answer.questionNo % 2 == 0 && Draw(1) == 0;
  if (answer.correct && !(evaluation_ && passFailBox_ == u"F"_s)) {
    answer.passFail = u"P"_s;
  }
  underWay_ = answer;
  const QString button = answer.correct ? u"cmdA"_s : u"cmdB"_s;
  if (wait) {
    answerNanoseconds_ = Timed([&] { program_.Click(button); });
  } else {
    program_.Send({u"click"_s, button});
  }
  return answer;
}

void KilledSessions::ReadVerdict(const GivenAnswer& answer) {
  const QString verdict = evaluation_ ? program_.Panel(2) : program_.Text(u"txtRightWrong"_s);
  const QString right = evaluation_ ? u" was answered CORRECTLY"_s : u"Nice Job!"_s;
  const QString wrong =
      evaluation_ ? u" was answered INCORRECTLY"_s : u"is an incorrect answer for"_s;
  if (!verdict.contains(u"Question #%1"_s.arg(answer.questionNo)) ||
      !verdict.contains(answer.correct ? right : wrong)) {
    throw std::runtime_error("an unexpected verdict on question " +
                             std::to_string(answer.questionNo) + ": " + verdict.toStdString());
  }
  shown_.Add(answer);
  underWay_.reset();
  passFailBox_ = answer.passFail;
  ++figures_.answersShown;
}

void KilledSessions::GoOn() {
  if (!evaluation_) {
    program_.Press(u"Ctrl+N"_s);
  }
}

void KilledSessions::KillDuring(Phase phase) {
  switch (phase) {
    case Phase::Begin:
      program_.Press(u"Ctrl+E"_s);
      program_.Send({u"press"_s, u"Ctrl+B"_s});
      KillWithin(beginNanoseconds_);
      break;
    case Phase::Answer:
      static_cast<void>(ClickAnswer(false));
      KillWithin(answerNanoseconds_);
      break;
    case Phase::Verdict:
      ReadVerdict(ClickAnswer(true));
      program_.Kill();
      break;
    case Phase::Next:
      ReadVerdict(ClickAnswer(true));
      program_.Send({u"press"_s, u"Ctrl+N"_s});
      KillWithin(answerNanoseconds_);
      break;
    case Phase::End:
      program_.Send({u"press"_s, u"Ctrl+E"_s});
      KillWithin(answerNanoseconds_);
      break;
    case Phase::Idle:
      program_.Press(u"Ctrl+E"_s);
      KillWithin(answerNanoseconds_);
      break;
  }
}

void KilledSessions::LookAtCompaction() {
  const BankPaths& paths = installation_.bank.Paths();
  if (!QFile::exists(paths.QuestionsDbPath) || !QFile::exists(paths.AnswersDbPath) ||
      QFile::exists(installation_.Folder() + u"/tessaly02.compacting"_s)) {
    ++figures_.compactionsCutOff;
    verified_ = false;
  } else if (QFile::exists(installation_.WorkingFolder() + u"/tempdb.mdb"_s)) {
    ++figures_.copiesLeft;
  }
}

void KilledSessions::Verify() {
  const FoundFiles files = LookAtFiles(installation_.bank.Paths());
  figures_.failedChecks += files.failedChecks;
  if (!files.failure.empty()) {
    ++figures_.failedOpens;
    std::fprintf(stderr, "run %d: %s\n", figures_.runs, files.failure.c_str());
    return;
  }
  const AnswerRecords& found = files.answers;
  AnswerRecords withLast = shown_;
  if (underWay_) {
    withLast.Add(*underWay_);
  }
  // The answer under way counts whole or not at all.
  if (!(found == shown_) && !(found == withLast)) {
    figures_.answersMissing += CountDifferences(shown_, found);
    std::fprintf(stderr, "run %d: the files do not hold what was shown\n", figures_.runs);
  }
  shown_ = found;
  underWay_.reset();
}

}  // namespace

}  // namespace tessaly::test

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  const int runs = arguments.value(1).toInt();
  tessaly::test::KilledSessions sessions(arguments.value(2).toUInt());
  return tessaly::test::KillAndReport(sessions, runs, [&](int) { sessions.Run(); });
}
