#include "tools/bank/balance.h"

#include <QHash>
#include <algorithm>
#include <cstdint>
#include <vector>

#include "catalogue/exam_catalogue.h"
#include "session/feedback_texts.h"
#include "tools/bank/question_text.h"

using namespace Qt::StringLiterals;

namespace tessaly::bank {

namespace {

constexpr int kLeastQuestionsPerSubject = 6;

// A share of questions, and the percentages it has to lie between.
struct Share {
  QString name;
  int count;
  int total;
  int least;
  int most;

  [[nodiscard]] bool IsInRange() const {
    return total == 0 || (100 * count >= least * total && 100 * count <= most * total);
  }
  [[nodiscard]] QString Percent() const {
    return total == 0 ? u"-"_s : QString::number(100.0 * count / total, 'f', 1);
  }
};

std::vector<Share> SharesOf(const PartBalance& balance) {
  std::vector<Share> shares;
  std::int16_t number = 0;
  for (const int right : balance.right) {
    shares.push_back({AnswerName(number, false), right, balance.fourChoices, 20, 30});
    ++number;
  }
  shares.push_back({AnswerName(0, true), balance.rightIsTrue, balance.trueFalse, 40, 60});
  shares.push_back({u"longest"_s, balance.rightIsLongest, balance.fourChoices, 0, 35});
  return shares;
}

bool IsLongest(const std::vector<Choice>& choices, std::size_t right) {
  return std::all_of(choices.begin(), choices.end(), [&](const Choice& choice) {
    return &choice == &choices[right] || choice.text.size() < choices[right].text.size();
  });
}

QHash<QString, int> CountBySubject(const BankSource& bank) {
  QHash<QString, int> counts;
  for (const PartSource& part : bank.parts) {
    for (const QuestionSource& question : part.questions) {
      ++counts[question.subject];
    }
  }
  return counts;
}

}  // namespace

PartBalance MeasureBalance(const PartSource& part) {
  PartBalance balance;
  for (const QuestionSource& question : part.questions) {
    const bool trueFalse = IsTrueFalse(part.table, question.no);
    const auto answer = AnswerNumberOf(question.answer, trueFalse);
    if (!answer) {
      continue;
    }
    if (trueFalse) {
      ++balance.trueFalse;
      balance.rightIsTrue += *answer == 0 ? 1 : 0;
      continue;
    }
    const std::vector<Choice> choices = SplitQuestion(question.question).choices;
    if (choices.size() == balance.right.size()) {
      const auto right = static_cast<std::size_t>(*answer);
      ++balance.fourChoices;
      ++balance.right[right];
      balance.rightIsLongest += IsLongest(choices, right) ? 1 : 0;
    }
  }
  return balance;
}

void CheckBalance(const BankSource& bank, Findings& findings) {
  for (const PartSource& part : bank.parts) {
    for (const Share& share : SharesOf(MeasureBalance(part))) {
      if (!share.IsInRange()) {
        findings.push_back(
            {{SourceName(part.table), 0, 0},
             u"balance: %1 %2 percent is not %3 to %4"_s.arg(share.name, share.Percent())
                 .arg(share.least)
                 .arg(share.most)});
      }
    }
  }
}

void PrintBalance(const BankSource& bank, QTextStream& out) {
  out << "Percent of right answers by part\n";
  for (const PartSource& part : bank.parts) {
    out << part.table;
    for (const Share& share : SharesOf(MeasureBalance(part))) {
      out << "  " << share.name << ' ' << share.Percent().rightJustified(5);
    }
    out << '\n';
  }
  out << "Questions by subject\n";
  const QHash<QString, int> counts = CountBySubject(bank);
  const bool isWhole = std::ssize(bank.parts) == kTableCount;
  for (const QString& subject : bank.subjects) {
    const int count = counts.value(subject);
    out << QString::number(count).rightJustified(5) << "  " << subject;
    if (isWhole && count < kLeastQuestionsPerSubject) {
      out << "  (warning: fewer than " << kLeastQuestionsPerSubject << ')';
    }
    out << '\n';
  }
}

}  // namespace tessaly::bank
