#include "session/question_printing.h"

#include "tests/support/program_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class QuestionPrintingTest : public ProgramTest {
protected:
  QuestionPrintingTest() {
    view.boxes = {{Box::txtQNo, u"46"_s},
                  {Box::txtQuestion, u"Which one?\n\nA. This.\nB. That."_s},
                  {Box::txtAnswer, u"That one."_s},
                  {Box::txtHintLink, u"Publication 17, \"What's New\""_s},
                  {Box::txtAnswerNumber, u"1"_s}};
    State().Selection.Exam = 1;
    State().Selection.Section = 2;
  }
  QStringList Print() {
    PrintQuestion(QuestionOnScreen(State(), view), printer, clock);
    return printer.done;
  }
};

TEST_F(QuestionPrintingTest, ItsBlocksStandAtFixedHeightsOfThePage) {
  EXPECT_EQ(
      Print(),
      (QStringList{
          u"font Courier New 8"_s,
          u"0,0     Tessaly by Tessaly Press"_s + QString(36, u' ') +
              u"Study Software for the Special Enrollment Exam"_s,
          u"0,192 "_s,
          u"0,384 "_s,
          u"font Courier New 10"_s,
          u"0,576     2000 Exam     Part III - Corporations, Fiduciaries, Trusts and Estate and "
          "Gift Tax"_s,
          u"0,816 "_s,
          u"0,1056 Question #46"_s,
          u"0,1296 "_s,
          u"5,1300 Which one?\n\nA. This.\nB. That."_s,
          u"5,7400 "_s + QString(91, u'-'),
          u"5,7900 Explanation: That one."_s,
          u"5,14000 Hint: Publication 17, \"What's New\""_s,
          u"5,14500 Answer: B"_s,
          u"end"_s,
      }));
}

TEST_F(QuestionPrintingTest, TheHeadingsSecondTextBeginsAtColumn65) {
  EXPECT_EQ(Print().at(1).mid(4).indexOf(u"Study Software"), 64);
}

TEST_F(QuestionPrintingTest, TheJobIsNamedAfterTheQuestionAndItsPart) {
  Print();
  EXPECT_EQ(printer.titles,
            QStringList{u"Printing Question #46 from Part III - Corporations, Fiduciaries, Trusts "
                        "and Estate and Gift Tax"_s});
}

TEST_F(QuestionPrintingTest, EveryExamAndPartHasItsCaption) {
  const QStringList exams{u"2001 Exam"_s, u"2000 Exam"_s, u"1999 Exam"_s,
                          u"1998 Exam"_s, u"1997 Exam"_s, u"1996 Exam"_s};
  for (int exam = 0; exam < exams.size(); ++exam) {
    State().Selection.Exam = static_cast<std::uint8_t>(exam);
    EXPECT_EQ(QuestionOnScreen(State(), view).Exam, exams[exam]);
  }
  const QStringList parts{u"Part I - Individuals"_s,
                          u"Part II - Sole Proprietorships and Partnerships"_s,
                          u"Part III - Corporations, Fiduciaries, Trusts and Estate and Gift Tax"_s,
                          u"Part IV - Ethics, Recordkeeping Procedures, Appeal Procedures, etc."_s};
  for (int part = 0; part < parts.size(); ++part) {
    State().Selection.Section = static_cast<std::int16_t>(part);
    EXPECT_EQ(QuestionOnScreen(State(), view).Part, parts[part]);
  }
}

TEST_F(QuestionPrintingTest, ASectionThatIsNoneHasAnEmptyCaption) {
  for (const int section : {-1, 4}) {
    State().Selection.Section = static_cast<std::int16_t>(section);
    EXPECT_EQ(QuestionOnScreen(State(), view).Part, QString());
    EXPECT_TRUE(Print().contains(u"0,576     2000 Exam     "_s));
    printer.done.clear();
  }
}

TEST_F(QuestionPrintingTest, TheAnswerIsALetterOrATruth) {
  const QStringList letters{u"A"_s, u"B"_s, u"C"_s, u"D"_s};
  for (int number = 0; number < letters.size(); ++number) {
    view.boxes[Box::txtAnswerNumber] = QString::number(number);
    EXPECT_EQ(QuestionOnScreen(State(), view).Answer, letters[number]);
  }
  State().TrueFalse = true;
  view.boxes[Box::txtAnswerNumber] = u"0"_s;
  EXPECT_EQ(QuestionOnScreen(State(), view).Answer, u"True"_s);
  view.boxes[Box::txtAnswerNumber] = u"1"_s;
  EXPECT_TRUE(Print().contains(u"5,14500 Answer: False"_s));
}

TEST_F(QuestionPrintingTest, ALongExplanationRunsOverTheHint) {
  view.boxes[Box::txtAnswer] = QStringList(205, u"explanation"_s).join(u' ');
  const QStringList done = Print();
  EXPECT_FALSE(done.contains(u"page"_s));
  EXPECT_TRUE(done.filter(u"explanation"_s).last().startsWith(u"5,1"_s));
  EXPECT_GT(done.filter(u"explanation"_s).last().section(u' ', 0, 0).section(u',', 1).toInt(),
            14000);
  EXPECT_TRUE(done.contains(u"5,14500 Answer: B"_s));
}

TEST_F(QuestionPrintingTest, ItTakesTheTimeToReadTheProgressForm) {
  const QDateTime before = clock.now;
  Print();
  EXPECT_EQ(before.msecsTo(clock.now), 1500);
}

TEST_F(QuestionPrintingTest, WhatIsPrintedIsTheQuestionThatWasOnScreenWhenItBegan) {
  const PrintedQuestion question = QuestionOnScreen(State(), view);
  view.boxes[Box::txtQuestion] = u"Another question"_s;
  PrintQuestion(question, printer, clock);
  EXPECT_FALSE(printer.Texts().contains(u"Another question"_s));
}

TEST_F(QuestionPrintingTest, AMissingPrinterIsAPrinterError) {
  printer.missing = true;
  EXPECT_RUNTIME_ERROR(Print(), ErrorNumber::Printer);
  EXPECT_EQ(printer.done, QStringList());
}

}  // namespace
}  // namespace tessaly::test
