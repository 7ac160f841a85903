#include "session/wrapped_text.h"

#include <gtest/gtest.h>

#include "tests/support/fake_printer.h"
#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

// Lines of ten characters: the printer's font is 120 twips wide and 240 high.
class WrappedTextTest : public ::testing::Test {
protected:
  QStringList Wrap(const QString& text, const TextBlock& block = {5, 1000, 1200, 15000}) {
    printer.done.clear();
    PrintWrapped(*page, block, text);
    return printer.done;
  }

  FakePrinter printer;
  std::unique_ptr<PrintDocument> page = printer.BeginDocument({});
};

TEST_F(WrappedTextTest, ATextThatFitsIsPrintedAtItsPlace) {
  EXPECT_EQ(Wrap(u"ten chars."_s), QStringList{u"5,1000 ten chars."_s});
}

TEST_F(WrappedTextTest, ItBreaksAtTheLastBlankThatFitsAndGoesDownALine) {
  EXPECT_EQ(Wrap(u"one two three four five"_s),
            (QStringList{u"5,1000 one two"_s, u"5,1240 three four"_s, u"5,1480 five"_s}));
}

TEST_F(WrappedTextTest, ALineMayFillTheWidthExactly) {
  EXPECT_EQ(Wrap(u"abcd efghi jklmn"_s), (QStringList{u"5,1000 abcd efghi"_s, u"5,1240 jklmn"_s}));
}

TEST_F(WrappedTextTest, AWordLongerThanTheLineStandsOnALineOfItsOwnUncut) {
  EXPECT_EQ(Wrap(u"a incomprehensibilities b"_s),
            (QStringList{u"5,1000 a"_s, u"5,1240 incomprehensibilities"_s, u"5,1480 b"_s}));
  EXPECT_EQ(Wrap(QString(91, u'-')), QStringList{u"5,1000 "_s + QString(91, u'-')});
}

TEST_F(WrappedTextTest, BlanksAtABreakAreDropped) {
  EXPECT_EQ(Wrap(u"abcdefghij    klm"_s), (QStringList{u"5,1000 abcdefghij"_s, u"5,1240 klm"_s}));
}

TEST_F(WrappedTextTest, AnEmptyTextPrintsNothing) {
  EXPECT_EQ(Wrap({}), QStringList());
}

TEST_F(WrappedTextTest, LineBreaksStayAndEachLineIsMeasuredForItself) {
  EXPECT_EQ(Wrap(u"Stem.\n\nA. One.\nB. Two."_s),
            QStringList{u"5,1000 Stem.\n\nA. One.\nB. Two."_s});
  EXPECT_EQ(Wrap(u"Stem.\n\nA. One of them.\nB. Two."_s),
            (QStringList{u"5,1000 Stem.\n\nA. One of"_s, u"5,1720 them.\nB. Two."_s}));
}

TEST_F(WrappedTextTest, ALineBelowTheLowerLimitGoesToANewPage) {
  EXPECT_EQ(Wrap(u"one two three four five"_s, {5, 1000, 1200, 1480}),
            (QStringList{u"5,1000 one two"_s, u"5,1240 three four"_s, u"page"_s, u"5,0 five"_s}));
}

}  // namespace
}  // namespace tessaly::test
