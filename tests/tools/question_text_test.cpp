#include "tools/bank/question_text.h"

#include <gtest/gtest.h>

#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

struct Joining {
  QString source;
  QString joined;
};

TEST(QuestionTextTest, TheLinesOfAParagraphAreJoinedWithSingleBlanks) {
  const std::vector<Joining> table{
      {QString(), QString()},
      {u"\n \n"_s, QString()},
      {u"One\n"_s, u"One"_s},
      {u"One\ntwo\n  three  \n"_s, u"One two three"_s},
      {u"One\n\nTwo\ntwo\n\n\nThree"_s, u"One\n\nTwo two\n\nThree"_s},
  };
  for (const Joining& entry : table) {
    EXPECT_EQ(bank::JoinedParagraphs(entry.source), entry.joined);
  }
}

TEST(QuestionTextTest, TheChoicesFollowTheStemALineEach) {
  const std::vector<Joining> table{
      {u"Stem\nmore.\n\nAsked?\n\nA. one\ntwo\nB. $1\nC. x\nD. last\nline\n"_s,
       u"Stem more.\n\nAsked?\n\nA. one two\nB. $1\nC. x\nD. last line"_s},
      {u"Asked?\n\nA.\none\nB. $1\n"_s, u"Asked?\n\nA. one\nB. $1"_s},
      {u"Only a stem\nof two lines.\n"_s, u"Only a stem of two lines."_s},
      // Letters within a stem are no choices.
      {u"A. Mason sold\nB. Lee a car.\n\nWho is it?\n"_s,
       u"A. Mason sold B. Lee a car.\n\nWho is it?"_s},
  };
  for (const Joining& entry : table) {
    EXPECT_EQ(bank::JoinedQuestion(bank::SplitQuestion(entry.source)), entry.joined);
  }
}

TEST(QuestionTextTest, AnAnswerHasTheNumberOfItsChoice) {
  EXPECT_EQ(bank::AnswerNumberOf(u"A"_s, false), 0);
  EXPECT_EQ(bank::AnswerNumberOf(u"D"_s, false), 3);
  EXPECT_EQ(bank::AnswerNumberOf(u"True"_s, true), 0);
  EXPECT_EQ(bank::AnswerNumberOf(u"False"_s, true), 1);
  for (const QString& none : {u""_s, u"E"_s, u"a"_s, u"True"_s, u"AB"_s}) {
    EXPECT_FALSE(bank::AnswerNumberOf(none, false));
  }
  for (const QString& none : {u""_s, u"A"_s, u"true"_s, u"yes"_s}) {
    EXPECT_FALSE(bank::AnswerNumberOf(none, true));
  }
}

}  // namespace
}  // namespace tessaly::test
