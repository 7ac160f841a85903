#include "tools/bank/balance.h"

#include <gtest/gtest.h>

#include "catalogue/exam_catalogue.h"
#include "tests/support/printers.h"
#include "tests/tools/bank_folder.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

bank::QuestionSource Question(int no, const QString& answer, const QString& choices = {}) {
  bank::QuestionSource question;
  question.no = no;
  question.answer = answer;
  question.question = u"Stem.\n\n"_s + choices;
  return question;
}

const QString kEqual = u"A. one\nB. two\nC. six\nD. ten\n"_s;
const QString kLongB = u"A. one\nB. eleven\nC. six\nD. ten\n"_s;

// A part of 20 questions with four choices, so many of them with the right answers A to D.
bank::BankSource BankOf(const std::array<int, 4>& right) {
  bank::PartSource part{u"01Part1"_s, {}};
  int no = 21;
  for (std::size_t choice = 0; choice < right.size(); ++choice) {
    for (int i = 0; i < right[choice]; ++i) {
      part.questions.push_back(
          Question(no, u"ABCD"_s.mid(static_cast<qsizetype>(choice), 1), kEqual));
      ++no;
    }
  }
  return {u"Test"_s, {}, {part}};
}

QStringList FindingsOf(const bank::BankSource& bank) {
  bank::Findings findings;
  bank::CheckBalance(bank, findings);
  QStringList texts;
  for (const bank::Finding& finding : findings) {
    texts.append(ToText(finding));
  }
  return texts;
}

TEST(BalanceTest, RightAnswersAreCountedByKind) {
  const bank::PartBalance balance = bank::MeasureBalance(
      {u"01Part1"_s,
       {Question(1, u"True"_s), Question(2, u"False"_s), Question(3, u"True"_s),
        Question(4, u"A"_s), Question(21, u"B"_s, kLongB), Question(22, u"A"_s, kLongB),
        Question(23, u"B"_s, kEqual), Question(24, u"C"_s), Question(25, u"True"_s, kEqual)}});
  EXPECT_EQ(balance.trueFalse, 3);
  EXPECT_EQ(balance.rightIsTrue, 2);
  EXPECT_EQ(balance.fourChoices, 3);
  EXPECT_EQ(balance.right, (std::array{1, 2, 0, 0}));
  EXPECT_EQ(balance.rightIsLongest, 1);
}

TEST(BalanceTest, EachChoiceIsRightInTwentyToThirtyPercent) {
  EXPECT_EQ(FindingsOf(BankOf({5, 5, 5, 5})), QStringList());
  EXPECT_EQ(FindingsOf(BankOf({4, 6, 4, 6})), QStringList());
  EXPECT_EQ(FindingsOf(BankOf({3, 7, 4, 6})),
            QStringList({u"01Part1.yaml: balance: A 15.0 percent is not 20 to 30"_s,
                         u"01Part1.yaml: balance: B 35.0 percent is not 20 to 30"_s}));
}

TEST(BalanceTest, TrueIsRightInFortyToSixtyPercent) {
  for (int right = 0; right <= 20; ++right) {
    bank::BankSource bank{u"Test"_s, {}, {{u"01Part1"_s, {}}}};
    for (int no = 1; no <= 20; ++no) {
      bank.parts[0].questions.push_back(Question(no, no <= right ? u"True"_s : u"False"_s));
    }
    EXPECT_EQ(FindingsOf(bank).isEmpty(), right >= 8 && right <= 12) << right;
  }
}

TEST(BalanceTest, TheRightChoiceIsTheLongestInThirtyFivePercentAtMost) {
  for (std::size_t longest = 0; longest <= 5; ++longest) {
    bank::BankSource bank = BankOf({5, 5, 5, 5});
    for (std::size_t ofB = 5; ofB < 5 + longest; ++ofB) {
      bank.parts[0].questions[ofB].question = u"Stem.\n\n"_s + kLongB;
    }
    EXPECT_EQ(FindingsOf(bank), QStringList());
  }
  bank::BankSource bank = BankOf({5, 5, 5, 5});
  for (std::size_t i = 0; i < 8; ++i) {
    const QString answer = bank.parts[0].questions[i].answer;
    bank.parts[0].questions[i].question =
        u"Stem.\n\n"_s + QString(kEqual).replace(answer + u". "_s, answer + u". longest "_s);
  }
  EXPECT_EQ(FindingsOf(bank),
            QStringList(u"01Part1.yaml: balance: longest 40.0 percent is not 0 to 35"_s));
}

TEST(BalanceTest, TheFiguresArePrintedByPartAndBySubject) {
  BankFolder sources;
  sources.WritePart(u"01Part1"_s);
  const QString out = RunTool({u"check"_s, sources.Path()}).out;
  EXPECT_TRUE(
      out.startsWith(u"Percent of right answers by part\n"
                     u"01Part1  A  25.0  B  25.0  C  25.0  D  25.0  True  50.0  longest   0.0\n"
                     u"Questions by subject\n"
                     u"   80  Basis of Assets\n"
                     u"    0  Subject 01\n"_s))
      << out.toStdString();
}

TEST(BalanceTest, RareSubjectsBringAWarningOnceTheBankIsWhole) {
  BankFolder sources;
  for (const QLatin1StringView table : kTables) {
    sources.WritePart(table);
  }
  for (int no = 1; no <= 6; ++no) {
    sources.Replace(u"01Part1.yaml"_s, u"Basis of Assets"_s, u"Subject 01"_s);
    sources.Replace(u"96Part4.yaml"_s, u"Basis of Assets"_s,
                    no <= 5 ? u"Subject 02"_s : u"Subject 03"_s);
  }
  const ToolRun run = RunTool({u"check"_s, sources.Path()});
  EXPECT_EQ(run.status, 0) << run.err.join(u'\n').toStdString();
  EXPECT_TRUE(
      run.out.contains(u"    6  Subject 01\n    5  Subject 02  (warning: fewer than 6)\n"
                       u"    1  Subject 03  (warning: fewer than 6)\n"_s))
      << run.out.toStdString();
}

}  // namespace
}  // namespace tessaly::test
