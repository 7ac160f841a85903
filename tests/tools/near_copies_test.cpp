#include "tools/bank/near_copies.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

#include "catalogue/exam_catalogue.h"
#include "tests/support/printers.h"
#include "tests/tools/bank_folder.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

const QString kDepreciation =
    u"On May 3, 2000, Nadia bought a printing press for $36,000 and put it to use in her shop. "
    u"She\n"
    u"elected to expense $8,000 of its cost and uses the straight line method over 12 years. What\n"
    u"may she write off altogether?\n"
    u"\n"
    u"A. $8,000\nB. $10,300\nC. $11,000\nD. $36,000\n"_s;
const QString kConference =
    u"An agent who is told that her client left an amount out of a return must advise the client\n"
    u"at once of the omission, and need not tell the Service.\n"_s;

struct Pair {
  QString name;
  QString original;
  QString copy;
  bool isNearCopy;
};

bool IsNearCopy(const QString& original, const QString& copy) {
  bank::BankSource bank{u"Test"_s, {}, {{u"01Part1"_s, {}}, {u"96Part3"_s, {}}}};
  bank::QuestionSource question;
  question.no = 30;
  question.question = original;
  bank.parts[0].questions.push_back(question);
  question.question = copy;
  bank.parts[1].questions.push_back(question);
  return !bank::FindNearCopies(bank).empty();
}

TEST(NearCopiesTest, ACopyIsToldFromAVariation) {
  const auto changed = [](QString text, const std::vector<std::pair<QString, QString>>& changes) {
    for (const auto& [from, to] : changes) {
      EXPECT_TRUE(text.contains(from)) << from.toStdString();
      text.replace(from, to);
    }
    return text;
  };
  const std::vector<Pair> table{
      {u"the same"_s, kDepreciation, kDepreciation, true},
      {u"wrapped and cased otherwise"_s, kDepreciation,
       changed(kDepreciation, {{u"her shop. She\n"_s, u"her shop, she "_s}}), true},
      {u"another year and name"_s, kDepreciation,
       changed(kDepreciation, {{u"2000"_s, u"1997"_s}, {u"Nadia"_s, u"Petra"_s}}), true},
      {u"choices turned round"_s, kDepreciation,
       changed(kDepreciation, {{u"A. $8,000\nB. $10,300\nC. $11,000\nD. $36,000"_s,
                                u"A. $36,000\nB. $11,000\nC. $10,300\nD. $8,000"_s}}),
       true},
      {u"one figure altered"_s, kDepreciation,
       changed(kDepreciation, {{u"$10,300"_s, u"$10,400"_s}}), true},
      {u"other figures"_s, kDepreciation,
       changed(kDepreciation, {{u"$36,000"_s, u"$45,000"_s},
                               {u"12 years"_s, u"9 years"_s},
                               {u"$8,000"_s, u"$5,000"_s},
                               {u"$10,300"_s, u"$9,400"_s},
                               {u"$11,000"_s, u"$10,000"_s}}),
       false},
      {u"the same figures in another case"_s, kDepreciation,
       u"A storm destroyed a barn that had cost Lars $36,000. His insurer paid $8,000 twelve "
       u"weeks\n"
       u"later, and lumber worth $10,300 was saved. How large is the loss?\n"
       u"\n"
       u"A. $8,000\nB. $10,300\nC. $11,000\nD. $36,000\n"_s,
       false},
      {u"without figures, one word changed"_s, kConference,
       changed(kConference, {{u"need not"_s, u"may not"_s}}), true},
      {u"without figures, in other words"_s, kConference,
       u"If a practitioner learns of income that a client did not report, Circular 230 makes him\n"
       u"say so to the client without delay.\n"_s,
       false},
  };
  for (const Pair& pair : table) {
    EXPECT_EQ(IsNearCopy(pair.original, pair.copy), pair.isNearCopy) << pair.name.toStdString();
  }
}

TEST(NearCopiesTest, AnAmountIsNoYear) {
  const auto amount = [](const QString& figure) {
    return u"The most that each parent may put aside for a child is %1 in any one year.\n"_s.arg(
        figure);
  };
  EXPECT_FALSE(IsNearCopy(amount(u"$2,000"_s), amount(u"$1,950"_s)));
  EXPECT_FALSE(IsNearCopy(amount(u"$2000"_s), amount(u"$1950"_s)));
  EXPECT_TRUE(IsNearCopy(amount(u"2000"_s), amount(u"1999"_s)));
}

TEST(NearCopiesTest, TheLaterQuestionIsNamedWithTheOneItRepeats) {
  BankFolder sources;
  sources.WritePart(u"01Part1"_s);
  sources.Write(u"99Part1.yaml"_s,
                QuestionYaml(u"01Part1"_s, 22).replace(u"- no: 22"_s, u"- no: 25"_s));
  bank::Findings findings;
  bank::CheckNearCopies(sources.Read(), findings);
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(ToText(findings[0]),
            u"99Part1.yaml:1: question 25: nearly repeats question 22 of "
            u"01Part1.yaml (100 percent of its wording)"_s);
}

TEST(NearCopiesTest, AWholeBankIsCheckedInLessThanTwoSeconds) {
  BankFolder sources;
  for (const QLatin1StringView table : kTables) {
    sources.WritePart(table);
  }
  QElapsedTimer timer;
  timer.start();
  EXPECT_EQ(RunTool({u"check"_s, sources.Path()}).err, QStringList());
#if !defined(__SANITIZE_ADDRESS__)
  EXPECT_LT(timer.elapsed(), 2000);
#endif
}

}  // namespace
}  // namespace tessaly::test
