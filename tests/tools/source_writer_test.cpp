#include "tools/bank/source_writer.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

const QString kTable = u"01Part1"_s;

bank::QuestionRow Row(const QString& hint) {
  return {
      u"21"_s,     u"Asked?\n\nA. one\nB. two\nC. six\nD. ten"_s, u"Why."_s, 2, u"Alimony"_s, hint,
      std::nullopt};
}

// The row as it is compiled from the source that is written for it.
bank::QuestionRow ReadBack(const bank::QuestionRow& row) {
  bank::Findings findings;
  const bank::PartSource part =
      bank::ReadPartSource(kTable, bank::PartSourceText(kTable, {row}), findings);
  for (const bank::Finding& finding : findings) {
    ADD_FAILURE() << ToText(finding).toStdString();
  }
  return bank::CompilePart(part).at(0);
}

TEST(SourceWriterTest, LongTextsAreWrappedBeforeColumn100) {
  bank::QuestionRow row = Row(u"Form 8"_s);
  const QString words = u" long word and"_s.repeated(40);
  row.explanation += words;
  row.question.replace(u"A. one"_s, u"A. one"_s + words);
  qsizetype longest = 0;
  for (const QByteArray& line : bank::PartSourceText(kTable, {row}).split('\n')) {
    longest = std::max(longest, line.size());
  }
  EXPECT_LE(longest, 100);
  EXPECT_GT(longest, 90);
  EXPECT_EQ(ReadBack(row), row);
}

TEST(SourceWriterTest, AWrappedLineNeverLooksLikeAChoice) {
  for (int length = 50; length < 120; ++length) {
    bank::QuestionRow row = Row(u"Form 8"_s);
    row.question.replace(u"B. two"_s,
                         u"B. %1 B. C. Doe and D. E. Roe"_s.arg(QString(length, u'x')));
    EXPECT_EQ(ReadBack(row), row) << length;
  }
}

TEST(SourceWriterTest, TextsThatYamlWouldMisreadAreQuoted) {
  for (const QString& hint :
       {u"\"Gifts\""_s, u"Form 8: gifts"_s, u"No. 8 #2"_s, u"Ends with:"_s, u"null"_s, u"~"_s,
        u"- 5"_s, u"C:\\pubs"_s, u"a:b#c"_s, u"[551]"_s, u"True"_s, u"551"_s, u"A \"b: c\" \\ d"_s,
        u"'551'"_s, u"& more"_s, u"100%"_s, u"Publication 551, \"Gifts\""_s}) {
    EXPECT_EQ(ReadBack(Row(hint)), Row(hint)) << hint.toStdString();
  }
}

TEST(SourceWriterTest, OrdinaryTextsStandAsTheyAre) {
  const QString text =
      QString::fromUtf8(bank::PartSourceText(kTable, {Row(u"Form 8, \"Gifts\"; c230"_s)}));
  EXPECT_TRUE(text.contains(u"\n  hint: Form 8, \"Gifts\"; c230\n"_s)) << text.toStdString();
}

}  // namespace
}  // namespace tessaly::test
