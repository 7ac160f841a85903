// A session in the main window, and the commands that stand beside it.

#include <QImage>
#include <QPushButton>

#include "reference/hint_form.h"
#include "tests/app/main_window_fixture.h"

namespace tessaly::test {
namespace {

TEST_F(MainWindowTest, BeforeABeginOnlyWhatNeedsNoSessionCanBeUsed) {
  Open();
  ExpectIdle();
  EXPECT_TRUE(IsShown(u"Toolbar1"_s));
  EXPECT_TRUE(IsShown(u"sbrStatusBar"_s));
}

TEST_F(MainWindowTest, ABeginShowsTheFirstQuestionAndTurnsTheCommandsOver) {
  OpenAndBegin();
  EXPECT_EQ(EnabledOf(kIdleCommands), QStringList());
  EXPECT_EQ(EnabledOf(kSessionCommands), kSessionCommands);
  EXPECT_EQ(EnabledOf(kCommandsAfterAnAnswer), QStringList());
  EXPECT_EQ(Pane(u"txtQuestion"_s), u"Question 1"_s);
  EXPECT_EQ(Line(u"txtRightWrong"_s), u"     Question #1"_s);
  EXPECT_EQ(Panel(2), u"2001 Examination - Part I (Subject 05)"_s);
  EXPECT_FALSE(IsShown(u"txtAnswer"_s));
  EXPECT_TRUE(IsShown(u"cmdB"_s));
  EXPECT_FALSE(IsShown(u"cmdC"_s));
  EXPECT_TRUE(HasFocus(u"txtQuestion"_s));
}

TEST_F(MainWindowTest, AFailedBeginIsReportedAndCanBeTriedAgain) {
  Open();
  bank.RunOnQuestions(u"ALTER TABLE \"01Part1\" RENAME TO Away"_s);
  Trigger(u"mnuFileBegin"_s);
  ASSERT_EQ(boxes.shown.size(), 1);
  EXPECT_TRUE(boxes.shown.first().contains(u"Run-time error '3078'"_s));
  EXPECT_TRUE(boxes.shown.first().contains(u"While beginning a study session."_s));
  ExpectIdle();
  bank.RunOnQuestions(u"ALTER TABLE Away RENAME TO \"01Part1\""_s);
  Trigger(u"mnuFileBegin"_s);
  EXPECT_TRUE(IsShown(u"txtQuestion"_s));
}

TEST_F(MainWindowTest, ARightAnswerIsPraisedAndExplained) {
  OpenAndBegin();
  Click(u"cmdA"_s);
  EXPECT_EQ(Line(u"txtRightWrong"_s),
            u"     Nice Job!  'True' is the correct answer for Question #1!"_s);
  EXPECT_EQ(FeedbackColour(), u"#00ff00"_s);
  EXPECT_EQ(Pane(u"txtAnswer"_s), u"Explanation 1"_s);
  EXPECT_TRUE(HasFocus(u"txtAnswer"_s));
  EXPECT_FALSE(IsShown(u"cmdA"_s));
  EXPECT_FALSE(IsShown(u"cmdSkip"_s));
  EXPECT_EQ(EnabledOf(kCommandsAfterAnAnswer), kCommandsAfterAnAnswer);
}

TEST_F(MainWindowTest, AWrongAnswerIsCorrectedAndExplained) {
  OpenAndBegin();
  Click(u"cmdB"_s);
  EXPECT_EQ(Line(u"txtRightWrong"_s),
            u"     'False' is an incorrect answer for Question #1.  The correct answer is "
            u"'True'."_s);
  EXPECT_EQ(FeedbackColour(), u"#ff0000"_s);
  EXPECT_TRUE(IsShown(u"txtAnswer"_s));
}

TEST_F(MainWindowTest, NextHidesTheExplanationAndShowsTheNextQuestion) {
  OpenAndBegin();
  Click(u"cmdA"_s);
  Trigger(u"mnuFileNext"_s);
  EXPECT_EQ(Pane(u"txtQuestion"_s), u"Question 2"_s);
  EXPECT_EQ(FeedbackColour(), u"#ffffc0"_s);
  EXPECT_FALSE(IsShown(u"txtAnswer"_s));
  EXPECT_TRUE(IsShown(u"cmdA"_s));
  EXPECT_EQ(EnabledOf(kCommandsAfterAnAnswer), QStringList());
}

TEST_F(MainWindowTest, SkipLeavesTheQuestionUnansweredAndFourAnswersHaveFourButtons) {
  OpenAndBegin();
  for (int i = 0; i < 3; ++i) {
    Click(u"cmdSkip"_s);
  }
  EXPECT_EQ(Pane(u"txtQuestion"_s), u"Question 30"_s);
  EXPECT_TRUE(IsShown(u"cmdC"_s));
  EXPECT_TRUE(IsShown(u"cmdD"_s));
  Click(u"cmdD"_s);
  EXPECT_EQ(Line(u"txtRightWrong"_s),
            u"     'D' is an incorrect answer for Question #30.  The correct answer is 'A'."_s);
  Trigger(u"mnuFileClose"_s);
  EXPECT_EQ(bank.StatusRow(kTable, 1), u"U U U 0 0"_s);
  EXPECT_EQ(bank.StatusRow(kTable, 30), u"I U F 1 0"_s);
}

TEST_F(MainWindowTest, EndPutsTheAnswersAwayAndTheWindowBackToIdle) {
  OpenAndBegin();
  Click(u"cmdA"_s);
  Trigger(u"mnuFileClose"_s);
  ExpectIdle();
  EXPECT_FALSE(IsShown(u"txtAnswer"_s));
  EXPECT_EQ(bank.StatusRow(kTable, 1), u"C U P 1 1"_s);
  EXPECT_EQ(bank.SubjectRow(TestBank::SubjectName(5)), u"1 1 0 0"_s);
}

TEST_F(MainWindowTest, ASessionEndedAfterAnAnswerLeavesTheReadyPaneWhole) {
  Open();
  const QRect whole = Find(u"fraWelcome"_s)->geometry();
  Trigger(u"mnuFileBegin"_s);
  Click(u"cmdA"_s);
  ASSERT_LT(Find(u"txtQuestion"_s)->height(), whole.height());
  Trigger(u"mnuFileClose"_s);
  ASSERT_TRUE(IsShown(u"fraWelcome"_s));
  EXPECT_EQ(Find(u"fraWelcome"_s)->geometry(), whole);
}

TEST_F(MainWindowTest, AfterTheWizardsDefaultTheReadyPaneShowsTheSelectionAndTheStatusBarStays) {
  Choose(u"Exam"_s, u"2"_s);
  Choose(u"ExamString"_s, u"1999 Examination"_s);
  Open();
  const QString earlier = u"1999 Examination - Part I"_s;
  auto* ready = Find<QLabel>(u"lblWelcomeSelection"_s);
  ASSERT_EQ(ready->text(), earlier);
  for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Yes}) {
    boxes.answers = {answer};
    QTimer::singleShot(0, &mainWindow, [] {
      auto* wizard = QApplication::activeModalWidget();
      ASSERT_NE(wizard, nullptr);
      wizard->findChild<QPushButton*>(u"cmdDefaultMode"_s)->click();
    });
    Trigger(u"mnuViewExamChoices"_s);
    EXPECT_EQ(ready->text(),
              answer == BoxAnswer::Yes ? u"2001 Examination - Part I (Individual)"_s : earlier);
    EXPECT_EQ(Panel(2), earlier);
  }
}

TEST_F(MainWindowTest, AWizardThatIsCancelledLeavesTheReadyPaneAsItIs) {
  Open();
  auto* ready = Find<QLabel>(u"lblWelcomeSelection"_s);
  const QString earlier = ready->text();
  EXPECT_EQ(DialogOf([this] {
              windowed.State().Selection.ExamString = u"1999 Examination"_s;
              Trigger(u"mnuViewExamChoices"_s);
            }),
            u"frmStudyMode"_s);
  EXPECT_EQ(ready->text(), earlier);
}

TEST_F(MainWindowTest, NextAfterTheLastQuestionSaysThatAllAreAnswered) {
  bank.RunOnAnswers(u"UPDATE \"01Part1\" SET TutorialMode = 'C' WHERE QuestionNo > 1"_s);
  OpenAndBegin();
  Click(u"cmdA"_s);
  Trigger(u"mnuFileNext"_s);
  ASSERT_EQ(boxes.shown.size(), 1);
  EXPECT_TRUE(
      boxes.shown.first().endsWith(u"|All questions in this section have been answered."_s));
  EXPECT_FALSE(windowed.Session().IsRunning());
  EXPECT_FALSE(IsShown(u"txtQuestion"_s));
}

TEST_F(MainWindowTest, TheStudyTimerTicksInASessionOnly) {
  SetOption(u"TimerStatus"_s, u"1"_s);
  Open();
  auto* timer = Find<QTimer>(u"tmrTestTimer"_s);
  EXPECT_FALSE(timer->isActive());
  Trigger(u"mnuFileBegin"_s);
  EXPECT_TRUE(timer->isActive());
  EXPECT_EQ(timer->interval(), 1000);
  timer->setInterval(1);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Panel(3).startsWith(u"Time Elapsed: "_s); }))
      << Panel(3).toStdString();
  Trigger(u"mnuFileClose"_s);
  EXPECT_FALSE(timer->isActive());
}

TEST_F(MainWindowTest, PrintPrintsTheQuestionOnScreen) {
  OpenAndBegin();
  Trigger(u"mnuFilePrint"_s);
  EXPECT_TRUE(printer.Texts().contains(u"Question 1"_s))
      << printer.Texts().join(u'\n').toStdString();
  EXPECT_EQ(printer.done.last(), u"end"_s);
  EXPECT_EQ(mainWindow.findChild<QWidget*>(u"frmPrinting"_s), nullptr);
  EXPECT_EQ(boxes.shown, QStringList());
}

TEST_F(MainWindowTest, WithoutAPrinterTheSessionGoesOn) {
  printer.missing = true;
  OpenAndBegin();
  Trigger(u"mnuFilePrint"_s);
  ASSERT_EQ(boxes.shown.size(), 1);
  EXPECT_TRUE(boxes.shown.first().contains(u"Run-time error '482'"_s));
  EXPECT_TRUE(IsShown(u"frmPrinting"_s));
  Click(u"cmdA"_s);
  EXPECT_TRUE(IsShown(u"txtAnswer"_s));
}

TEST_F(MainWindowTest, TheQuestionCanBeAnsweredAndTheSessionEndedWhileItIsPrinted) {
  OpenAndBegin();
  clock.whenWaiting = [this] {
    EXPECT_TRUE(IsShown(u"frmPrinting"_s));
    Click(u"cmdA"_s);
    Trigger(u"mnuFileClose"_s);
    // A second job does not begin before the first is through.
    Trigger(u"mnuFilePrint"_s);
  };
  Trigger(u"mnuFilePrint"_s);
  EXPECT_EQ(printer.titles.size(), 1);
  EXPECT_EQ(printer.done.count(u"end"_s), 1);
  EXPECT_EQ(bank.StatusRow(kTable, 1), u"C U P 1 1"_s);
  ExpectIdle();
}

TEST_F(MainWindowTest, ResearchOpensTheHint) {
  OpenAndBegin();
  Trigger(u"mnuFileResearch"_s);
  const auto* hint = mainWindow.findChild<frmHint*>();
  ASSERT_NE(hint, nullptr);
  EXPECT_TRUE(hint->isVisible());
  EXPECT_EQ(hint->findChild<QLabel*>(u"lblHintLink"_s)->text(), u"Publication 1"_s);
}

TEST_F(MainWindowTest, TheNavigationBarLeadsThroughASession) {
  Open();
  ClickTool(u"Start"_s);
  EXPECT_EQ(Pane(u"txtQuestion"_s), u"Question 1"_s);
  ClickTool(u"Print"_s);
  EXPECT_EQ(printer.done.count(u"end"_s), 1);
  ClickTool(u"Hint"_s);
  EXPECT_NE(mainWindow.findChild<frmHint*>(), nullptr);
  Click(u"cmdA"_s);
  ClickTool(u"Next"_s);
  EXPECT_EQ(Pane(u"txtQuestion"_s), u"Question 2"_s);
  ClickTool(u"Stop"_s);
  ExpectIdle();
}

TEST_F(MainWindowTest, TheNavigationBarAndTheMenusOpenTheDialogs) {
  ASSERT_TRUE(QImage(96, 160, QImage::Format_RGB32).save(bank.Folder() + u"/splash01.bmp"_s));
  Open();
  EXPECT_EQ(DialogOf([this] { ClickTool(u"Mode"_s); }), u"frmStudyMode"_s);
  EXPECT_EQ(DialogOf([this] { ClickTool(u"Settings"_s); }), u"frmOptions"_s);
  EXPECT_EQ(DialogOf([this] { ClickTool(u"Stats"_s); }), u"frmStats"_s);
  EXPECT_EQ(DialogOf([this] { Trigger(u"mnuStatsReset"_s); }), u"frmResetChoices"_s);
  EXPECT_EQ(DialogOf([this] { Trigger(u"mnuFileExport"_s); }), u"frmBackup"_s);
  EXPECT_EQ(DialogOf([this] { Trigger(u"mnuOptionsNavBar"_s); }), u"frmCustomize"_s);
  EXPECT_EQ(DialogOf([this] { Trigger(u"mnuHelpAbout"_s); }), u"frmAbout"_s);
  EXPECT_EQ(boxes.shown, QStringList());
}

}  // namespace
}  // namespace tessaly::test
