#include "tools/bank/checks.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/printers.h"
#include "tests/tools/bank_folder.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

// A fault put into a sound source, and every finding that it brings.
struct Fault {
  QString source;
  QString from;
  QString to;
  QStringList findings;
};

class ChecksTest : public ::testing::Test {
protected:
  ChecksTest() { Restore(); }

  void Restore() {
    sources.Write(u"version.yaml"_s, u"version: Test release\n"_s);
    sources.WriteSubjects(BankFolder::Subjects());
    sources.WritePart(u"01Part1"_s);
    sources.WritePart(u"99Part4"_s);
  }
  [[nodiscard]] QStringList Findings() const { return RunTool({u"check"_s, sources.Path()}).err; }
  void ExpectEachFound(const std::vector<Fault>& faults) {
    for (const Fault& fault : faults) {
      SCOPED_TRACE(fault.findings.join(u' ').toStdString());
      sources.Replace(fault.source, fault.from, fault.to);
      EXPECT_EQ(Findings(), fault.findings);
      Restore();
    }
  }

  BankFolder sources;
};

const QString kPart1 = u"01Part1.yaml"_s;
const QString kPart4 = u"99Part4.yaml"_s;
const QString kHead = u"- no: %1\n  subject: Basis of Assets\n  answer: %2\n"_s;

TEST_F(ChecksTest, ASoundBankHasNoFindings) {
  EXPECT_EQ(Findings(), QStringList());
  EXPECT_EQ(RunTool({u"check"_s, sources.Path()}).status, 0);
}

TEST_F(ChecksTest, AMissingRepeatedOrMisplacedNumberIsFound) {
  ExpectEachFound({
      {kPart1,
       u"- no: 5\n"_s,
       u"- no: 4\n"_s,
       {u"01Part1.yaml:33: question 4: the number is repeated"_s,
        u"01Part1.yaml: question 5: the question is missing"_s}},
      {kPart1,
       u"- no: 5\n"_s,
       u"- no: 81\n"_s,
       {u"01Part1.yaml:33: question 81: the number is missing or not 1 to 80"_s,
        u"01Part1.yaml:33: question 81: the answer 'False' is not one of A to D"_s,
        u"01Part1.yaml:33: question 81: the last paragraph is not the choices A to D"_s,
        u"01Part1.yaml:41: question 6: the number is out of order"_s,
        u"01Part1.yaml: question 5: the question is missing"_s}},
      {kPart1,
       u"- no: 5\n"_s,
       u"- no: five\n"_s,
       {u"01Part1.yaml:33: the number is missing or not 1 to 80"_s,
        u"01Part1.yaml: question 5: the question is missing"_s}},
      {kPart1,
       u"- no: 5\n  subject"_s,
       u"- subject"_s,
       {u"01Part1.yaml:33: the number is missing or not 1 to 80"_s,
        u"01Part1.yaml: question 5: the question is missing"_s}},
      {kPart1,
       QuestionYaml(u"01Part1"_s, 80),
       QString(),
       {u"01Part1.yaml: question 80: the question is missing"_s}},
  });
}

TEST_F(ChecksTest, AnAnswerOutsideItsKindIsFound) {
  ExpectEachFound({
      {kPart1,
       kHead.arg(20).arg(u"True"_s),
       kHead.arg(20).arg(u"A"_s),
       {u"01Part1.yaml:153: question 20: the answer 'A' is not True or False"_s}},
      {kPart1,
       kHead.arg(21).arg(u"B"_s),
       kHead.arg(21).arg(u"True"_s),
       {u"01Part1.yaml:161: question 21: the answer 'True' is not one of A to D"_s}},
      {kPart1,
       kHead.arg(21).arg(u"B"_s),
       kHead.arg(21).arg(u"E"_s),
       {u"01Part1.yaml:161: question 21: the answer 'E' is not one of A to D"_s}},
      {kPart4,
       kHead.arg(40).arg(u"True"_s),
       kHead.arg(40).arg(u"D"_s),
       {u"99Part4.yaml:313: question 40: the answer 'D' is not True or False"_s}},
      {kPart4,
       kHead.arg(41).arg(u"B"_s),
       kHead.arg(41).arg(u"False"_s),
       {u"99Part4.yaml:321: question 41: the answer 'False' is not one of A to D"_s}},
      {kPart1,
       u"  answer: B\n"_s,
       QString(),
       {u"01Part1.yaml:161: question 21: the answer '' is not one of A to D"_s}},
  });
}

TEST_F(ChecksTest, AChoiceThatIsMissingOrMisplacedIsFound) {
  const QString begin = u"01Part1.yaml:161: question 21: "_s;
  ExpectEachFound({
      {kPart1, u"    C. "_s, u"    "_s, {begin + u"the choices are ABD and not ABCD"_s}},
      {kPart1, u"    B. "_s, u"    C. "_s, {begin + u"the choices are ACCD and not ABCD"_s}},
      {kPart1, u"    D. "_s, u"    E. "_s, {begin + u"the choices are ABCE and not ABCD"_s}},
      {kPart1,
       u"    A. "_s,
       u"    "_s,
       {begin + u"the last paragraph is not the choices A to D"_s}},
      {kPart1,
       u"    D. "_s,
       u"    D.\n    E. "_s,
       {begin + u"choice D is empty"_s, begin + u"the choices are ABCDE and not ABCD"_s}},
      {kPart1,
       u"  explanation: |\n    Explanation 1."_s,
       u"\n    A. Yes\n    B. No\n  explanation: |\n    Explanation 1."_s,
       {u"01Part1.yaml:1: question 1: a True/False question has no choices"_s}},
  });
}

TEST_F(ChecksTest, AnEmptyOrMissingTextIsFound) {
  const QString begin = u"01Part1.yaml:9: question 2: the "_s;
  ExpectEachFound({
      {kPart1, u"  hint: Hint 2\n"_s, QString(), {begin + u"hint is missing or empty"_s}},
      {kPart1, u"  hint: Hint 2\n"_s, u"  hint:\n"_s, {begin + u"hint is missing or empty"_s}},
      {kPart1, u"  hint: Hint 2\n"_s, u"  hint: ' '\n"_s, {begin + u"hint is missing or empty"_s}},
      {kPart1,
       u"    Explanation 2.\n"_s,
       QString(),
       {begin + u"explanation is missing or empty"_s}},
      {kPart1,
       u"  hint: Hint 2\n"_s,
       u"  hint: Hint 2\n  link:\n"_s,
       {begin + u"link is missing or empty"_s}},
      {u"version.yaml"_s,
       u"Test release"_s,
       QString(),
       {u"version.yaml: the version is missing or empty"_s}},
  });
}

TEST_F(ChecksTest, ACharacterOutsidePrintableAsciiIsFound) {
  const QString begin = u"01Part1.yaml:9: question 2: the "_s;
  const QString end = u" has a character outside printable ASCII, U+"_s;
  ExpectEachFound({
      {kPart1, u"Hint 2\n"_s, u"Hint \u2013 2\n"_s, {begin + u"hint"_s + end + u"2013"_s}},
      {kPart1,
       u"Explanation 2."_s,
       u"The payer\u2019s return."_s,
       {begin + u"explanation"_s + end + u"2019"_s}},
      {kPart1, u"Explanation 2."_s, u"One\ttwo."_s, {begin + u"explanation"_s + end + u"0009"_s}},
      {kPart1,
       u"Hint 2\n"_s,
       u"Hint 2\n  link: caf\u00e9.html\n"_s,
       {begin + u"link"_s + end + u"00E9"_s}},
      {u"version.yaml"_s,
       u"Test"_s,
       u"T\u00e9st"_s,
       {u"version.yaml: the version has a character outside printable ASCII, U+00E9"_s}},
  });
}

TEST_F(ChecksTest, AnUnknownSubjectIsFound) {
  ExpectEachFound({
      {kPart1,
       u"Basis of Assets"_s,
       u"Basis of assets"_s,
       {u"01Part1.yaml:1: question 1: unknown subject 'Basis of assets'"_s}},
      {kPart1,
       u"  subject: Basis of Assets\n"_s,
       QString(),
       {u"01Part1.yaml:1: question 1: unknown subject ''"_s}},
  });
}

TEST_F(ChecksTest, SubjectsMustBeSortedUniqueShortAnd87) {
  const QString longSubject = u"Subject 02 "_s + QString(57, u'x');
  ASSERT_EQ(longSubject.size(), 68);
  ExpectEachFound({
      {u"subjects.yaml"_s,
       u"Subject 02"_s,
       u"Subject 01"_s,
       {u"subjects.yaml: 'Subject 01' is repeated"_s}},
      {u"subjects.yaml"_s,
       u"Subject 02"_s,
       u"Subject 04"_s,
       {u"subjects.yaml: 'Subject 03' is out of order"_s}},
      {u"subjects.yaml"_s,
       u"Subject 02"_s,
       longSubject,
       {u"subjects.yaml: '%1' is longer than 67 characters"_s.arg(longSubject)}},
      {u"subjects.yaml"_s,
       u"- Subject 02\n"_s,
       QString(),
       {u"subjects.yaml: 86 subjects and not 87"_s}},
      {u"subjects.yaml"_s,
       u"- Subject 02\n"_s,
       u"- Subject 02\n- Subject 025\n"_s,
       {u"subjects.yaml: 88 subjects and not 87"_s}},
      {u"subjects.yaml"_s, u"Subject 02"_s, u"Subject 01 and more"_s, {}},
      {u"subjects.yaml"_s, u"Subject 02"_s, longSubject.chopped(1), {}},
      {u"subjects.yaml"_s,
       u"Subject 02\n- Subject 03"_s,
       u"Subject a 02\n- Subject B 03"_s,
       {u"subjects.yaml: 'Subject 04' is out of order"_s}},
  });
}

}  // namespace
}  // namespace tessaly::test
