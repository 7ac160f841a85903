#include "tests/end_to_end/end_to_end_test.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

constexpr auto kGreen = "#00ff00"_L1;
constexpr auto kRed = "#ff0000"_L1;
constexpr auto kLightYellow = "#ffffc0"_L1;

class WholeSessionTest : public EndToEndTest {
protected:
  void ExpectIdle() {
    EXPECT_FALSE(program.IsVisible(u"txtQuestion"_s));
    EXPECT_FALSE(program.IsVisible(u"txtRightWrong"_s));
    EXPECT_FALSE(program.IsVisible(u"cmdA"_s));
    EXPECT_TRUE(program.IsEnabled(u"mnuFileBegin"_s));
    EXPECT_FALSE(program.IsEnabled(u"mnuFileClose"_s));
  }
  void ExpectInformation(const QString& title, const QString& text) {
    const BoxContent box = program.WaitForBox();
    EXPECT_EQ(box.title, title);
    EXPECT_EQ(box.text, text);
    EXPECT_EQ(box.icon, u"Information"_s);
    EXPECT_EQ(box.buttons, QStringList{u"OK"_s});
    program.AnswerBox(u"OK"_s);
  }
};

TEST_F(WholeSessionTest, TutorialModeExplainsEveryAnswerAndCountsIt) {
  Begin();
  EXPECT_EQ(program.Text(u"txtRightWrong"_s), u"     Question #1"_s);
  EXPECT_EQ(program.Background(u"txtRightWrong"_s), kLightYellow);
  EXPECT_EQ(program.PaneText(u"txtQuestion"_s), u"Question 1"_s);
  EXPECT_EQ(program.Panel(2), u"2001 Examination - Part I (Subject 05)"_s);
  EXPECT_FALSE(program.IsVisible(u"txtAnswer"_s));
  EXPECT_FALSE(program.IsEnabled(u"mnuFileNext"_s));
  program.Press(u"Alt+T"_s);
  program.WaitForVisible(u"txtAnswer"_s);
  EXPECT_EQ(program.Text(u"txtRightWrong"_s),
            u"     Nice Job!  'True' is the correct answer for Question #1!"_s);
  EXPECT_EQ(program.Background(u"txtRightWrong"_s), kGreen);
  EXPECT_EQ(program.PaneText(u"txtAnswer"_s), u"Explanation 1"_s);
  EXPECT_FALSE(program.IsVisible(u"cmdA"_s));

  program.Press(u"Ctrl+N"_s);
  EXPECT_EQ(program.Text(u"txtRightWrong"_s), u"     Question #2"_s);
  EXPECT_EQ(program.Background(u"txtRightWrong"_s), kLightYellow);
  EXPECT_FALSE(program.IsVisible(u"txtAnswer"_s));
  program.Click(u"cmdB"_s);
  EXPECT_EQ(program.Text(u"txtRightWrong"_s),
            u"     'False' is an incorrect answer for Question #2.  "
            u"The correct answer is 'True'."_s);
  EXPECT_EQ(program.Background(u"txtRightWrong"_s), kRed);

  program.Press(u"Ctrl+N"_s);
  program.Click(u"cmdSkip"_s);
  program.Press(u"Ctrl+E"_s);
  ExpectIdle();
  EXPECT_EQ(Bank().StatusRow(u"01Part1"_s, 1), u"C U P 1 1"_s);
  EXPECT_EQ(Bank().StatusRow(u"01Part1"_s, 2), u"I U F 1 0"_s);
  EXPECT_EQ(Bank().StatusRow(u"01Part1"_s, 3), u"U U U 0 0"_s);
  EXPECT_EQ(Bank().SubjectRow(TestBank::SubjectName(5)), u"2 1 0 0"_s);
}

TEST_F(WholeSessionTest, FourAnswersAreOfferedFromQuestion21On) {
  Bank().AddQuestion(u"01Part2"_s,
                     {21, TestBank::SubjectName(6), 3, u"Which?"_s, u"D is."_s, {}, {}});
  installation.Store(u"StudyMode/Section"_s, u"1"_s);
  Begin();
  EXPECT_EQ(program.Text(u"cmdA"_s), u"&A"_s);
  EXPECT_TRUE(program.IsVisible(u"cmdD"_s));
  program.Press(u"Alt+C"_s);
  program.WaitForVisible(u"txtAnswer"_s);
  EXPECT_EQ(program.Text(u"txtRightWrong"_s),
            u"     'C' is an incorrect answer for Question #21.  The correct answer is 'D'."_s);
}

TEST_F(WholeSessionTest, EvaluationModeGoesOnAtOnceAndEndsAfterTheLastQuestion) {
  installation.Store(u"StudyMode/Mode"_s, u"1"_s);
  Begin();
  EXPECT_EQ(program.Panel(1), u"Evaluation Mode"_s);
  program.Click(u"cmdB"_s);
  EXPECT_EQ(program.Panel(2), u"Question #1 was answered INCORRECTLY"_s);
  EXPECT_EQ(program.Text(u"txtRightWrong"_s), u"     Question #2"_s);
  EXPECT_FALSE(program.IsVisible(u"txtAnswer"_s));
  program.Click(u"cmdA"_s);
  EXPECT_EQ(program.Panel(2), u"Question #2 was answered CORRECTLY"_s);
  program.Click(u"cmdA"_s);
  ExpectInformation(kApplicationTitle, u"All questions in this section have been answered."_s);
  ExpectIdle();
  // A failure stays with the answers that follow it, and only correct answers count in the rows.
  EXPECT_EQ(Bank().StatusRow(u"01Part1"_s, 1), u"U I F 0 0"_s);
  EXPECT_EQ(Bank().StatusRow(u"01Part1"_s, 2), u"U C F 0 1"_s);
  EXPECT_EQ(Bank().StatusRow(u"01Part1"_s, 3), u"U C F 0 1"_s);
  EXPECT_EQ(Bank().SubjectRow(TestBank::SubjectName(5)), u"0 0 3 2"_s);
}

TEST_F(WholeSessionTest, ASectionWithNothingLeftSaysSo) {
  installation.Store(u"StudyMode/Section"_s, u"3"_s);
  program.StartToMainWindow();
  program.Press(u"Ctrl+B"_s);
  ExpectInformation(u"Tessaly Section Information"_s,
                    u"All questions in this section have been answered."_s);
  ExpectIdle();
}

TEST_F(WholeSessionTest, StudyBySubjectWalksTheTablesAndSaysWhenItIsOver) {
  const QString subject = TestBank::SubjectName(5);
  Bank().AddQuestions(u"99Part4"_s, 41, 41, subject);
  installation.Store(u"StudyMode/Method"_s, u"1"_s);
  installation.Store(u"StudyMode/Subject"_s, subject);
  Begin();
  EXPECT_EQ(program.Panel(2), u"Study by Subject - Subject 05"_s);
  EXPECT_EQ(program.Panel(3), u"Timer N/A"_s);
  for (int question = 1; question <= 4; ++question) {
    program.Click(u"cmdA"_s);
    program.WaitForVisible(u"txtAnswer"_s);
    program.Press(u"Ctrl+N"_s);
  }
  ExpectInformation(kApplicationTitle,
                    u"There are no unanswered questions concerning Subject 05."_s);
  ExpectIdle();
  EXPECT_EQ(Bank().StatusRow(u"99Part4"_s, 41), u"C U P 1 1"_s);
  EXPECT_EQ(Bank().SubjectRow(subject), u"4 4 0 0"_s);
}

TEST_F(WholeSessionTest, ShortcutsGoToTheWindowWhileATextPaneHasTheFocus) {
  Begin();
  program.Click(u"txtQuestion"_s);
  ASSERT_EQ(program.Get(u"txtQuestion"_s, u"focus"_s), u"true"_s);
  for (const QString& keys : {u"Ctrl+A"_s, u"Ctrl+X"_s}) {
    program.Press(keys);
    EXPECT_EQ(program.Get(u"txtQuestion"_s, u"selectedText"_s), u""_s) << keys.toStdString();
    EXPECT_EQ(program.PaneText(u"txtQuestion"_s), u"Question 1"_s);
  }
  program.Press(u"Ctrl+E"_s);
  ExpectIdle();
}

TEST_F(WholeSessionTest, ClosingTheWindowDuringASessionKeepsEveryAnswer) {
  Begin();
  program.Click(u"cmdA"_s);
  program.Close(u"frmMain"_s);
  EXPECT_EQ(program.WaitForExit(), 0);
  EXPECT_EQ(Bank().StatusRow(u"01Part1"_s, 1), u"C U P 1 1"_s);
  EXPECT_EQ(Bank().SubjectRow(TestBank::SubjectName(5)), u"1 1 0 0"_s);
}

}  // namespace
}  // namespace tessaly::test
