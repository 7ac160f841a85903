#include "app/main_window.h"

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QToolBar>

#include "reference/hint_form.h"
#include "tests/support/program_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

const QString kTable = u"01Part1"_s;
const QStringList kIdleCommands{
    u"mnuFileBegin"_s,      u"mnuUpdates"_s,         u"mnuFileExit"_s,    u"mnuFileExport"_s,
    u"mnuFileImport"_s,     u"mnuViewExamChoices"_s, u"mnuViewOptions"_s, u"mnuViewStats"_s,
    u"mnuStatsReset"_s,     u"mnuHelpAbout"_s,       u"Toolbar1.Start"_s, u"Toolbar1.Mode"_s,
    u"Toolbar1.Settings"_s, u"Toolbar1.Stats"_s};
const QStringList kSessionCommands{u"mnuFileClose"_s,  u"mnuFilePrint"_s,  u"mnuFileResearch"_s,
                                   u"Toolbar1.Stop"_s, u"Toolbar1.Hint"_s, u"Toolbar1.Print"_s};
const QStringList kCommandsAfterAnAnswer{u"mnuFileNext"_s, u"Toolbar1.Next"_s};

// The main window over the whole program, as it stands when the splash screen has gone, used with
// mouse and keys. Questions 1 to 3 are True/False questions, question 30 has four answers.
class MainWindowTest : public ProgramTest {
protected:
  MainWindowTest() {
    bank.AddQuestions(kTable, 1, 3, TestBank::SubjectName(5));
    bank.AddQuestions(kTable, 30, 30, TestBank::SubjectName(6));
  }

  void Open() {
    mainWindow.Attach(windowed);
    windowed.Prepare();
    windowed.ShowStartUpState();
    mainWindow.Form_Load();
    mainWindow.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&mainWindow));
  }
  void OpenAndBegin() {
    Open();
    Trigger(u"mnuFileBegin"_s);
    ASSERT_TRUE(IsShown(u"txtQuestion"_s));
  }

  template <typename Control = QWidget>
  [[nodiscard]] Control* Find(const QString& name) const {
    auto* control = mainWindow.findChild<Control*>(name);
    EXPECT_NE(control, nullptr) << name.toStdString();
    return control;
  }
  [[nodiscard]] bool IsShown(const QString& name) const { return Find(name)->isVisible(); }
  [[nodiscard]] bool HasFocus(const QString& name) const { return Find(name)->hasFocus(); }
  [[nodiscard]] QString Line(const QString& name) const { return Find<QLineEdit>(name)->text(); }
  [[nodiscard]] QString Pane(const QString& name) const {
    return Find<QPlainTextEdit>(name)->toPlainText();
  }
  [[nodiscard]] QString Panel(int number) const {
    return Find<QLabel>(u"sbrStatusBar.%1"_s.arg(number))->text();
  }
  [[nodiscard]] QString FeedbackColour() const {
    return Find(u"txtRightWrong"_s)->palette().color(QPalette::Base).name();
  }
  // Of these commands, the ones that can be used.
  [[nodiscard]] QStringList EnabledOf(const QStringList& names) const {
    QStringList enabled;
    for (const QString& name : names) {
      if (Find<QAction>(name)->isEnabled()) {
        enabled.append(name);
      }
    }
    return enabled;
  }
  void ExpectIdle() {
    EXPECT_EQ(EnabledOf(kIdleCommands), kIdleCommands);
    EXPECT_EQ(EnabledOf(kSessionCommands + kCommandsAfterAnAnswer), QStringList());
    EXPECT_FALSE(IsShown(u"txtQuestion"_s));
    EXPECT_FALSE(IsShown(u"cmdA"_s));
  }

  void Trigger(const QString& command) { Find<QAction>(command)->trigger(); }
  void Click(const QString& button) {
    ASSERT_TRUE(IsShown(button)) << button.toStdString();
    QTest::mouseClick(Find(button), Qt::LeftButton);
  }
  void ClickTool(const QString& key) {
    auto* action = Find<QAction>(u"Toolbar1."_s + key);
    ASSERT_TRUE(action->isEnabled()) << key.toStdString();
    QTest::mouseClick(Find<QToolBar>(u"Toolbar1"_s)->widgetForAction(action), Qt::LeftButton);
  }
  // To the control that has the focus.
  static void Press(Qt::Key key, Qt::KeyboardModifier modifier = Qt::ControlModifier) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, modifier);
  }
  // The name of the dialog that the act opens, which is closed at once.
  template <typename Act>
  [[nodiscard]] static QString DialogOf(const Act& act) {
    QString name;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&name] {
      if (QWidget* dialog = QApplication::activeModalWidget()) {
        name = dialog->objectName();
        dialog->close();
      }
    });
    watch.start(5);
    act();
    return name;
  }
  // Runs the program's own event loop, which closing the window ends.
  static int RunUntilClosed(const std::function<void()>& act) {
    QTimer::singleShot(0, QCoreApplication::instance(), act);
    return QCoreApplication::exec();
  }

  frmMain mainWindow{boxes};
  Program windowed{{settings, clock, boxes, files, drives, printer, desktop, browserWindow},
                   bank.Folder(),
                   mainWindow};
};

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

TEST_F(MainWindowTest, ShortcutsWinWhileAPaneHasTheFocus) {
  OpenAndBegin();
  ASSERT_TRUE(HasFocus(u"txtQuestion"_s));
  Press(Qt::Key_P);
  EXPECT_EQ(printer.done.count(u"end"_s), 1);
  // The printing form took the keys along when it went; a desktop gives them back by itself.
  mainWindow.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&mainWindow));
  Click(u"cmdA"_s);
  ASSERT_TRUE(HasFocus(u"txtAnswer"_s));
  Press(Qt::Key_N);
  EXPECT_EQ(Pane(u"txtQuestion"_s), u"Question 2"_s);
  Find<QLineEdit>(u"txtRightWrong"_s)->setFocus();
  Press(Qt::Key_E);
  ExpectIdle();
}

// The statistics are off in a session, and yet their shortcut must not select the text.
TEST_F(MainWindowTest, TheShortcutOfACommandThatIsOffDoesNothing) {
  OpenAndBegin();
  EXPECT_EQ(DialogOf([] { Press(Qt::Key_A); }), QString());
  EXPECT_FALSE(Find<QPlainTextEdit>(u"txtQuestion"_s)->textCursor().hasSelection());
  Press(Qt::Key_N);
  EXPECT_EQ(Pane(u"txtQuestion"_s), u"Question 1"_s);
  Press(Qt::Key_E);
  EXPECT_EQ(DialogOf([this] { QTest::keyClick(&mainWindow, Qt::Key_A, Qt::ControlModifier); }),
            u"frmStats"_s);
}

TEST_F(MainWindowTest, AltAAnswersAWhereverTheFocusIs) {
  for (const QString& name : {u"txtQuestion"_s, u"txtHintLink"_s, u"txtRightWrong"_s, u"cmdC"_s}) {
    bank.RunOnAnswers(u"UPDATE \"01Part1\" SET TutorialMode = 'C' WHERE QuestionNo < 30"_s);
    bank.RunOnAnswers(u"UPDATE \"01Part1\" SET TutorialMode = 'U' WHERE QuestionNo = 30"_s);
    if (!mainWindow.isVisible()) {
      Open();
    }
    Trigger(u"mnuFileBegin"_s);
    ASSERT_EQ(Pane(u"txtQuestion"_s), u"Question 30"_s);
    Find(name)->setFocus();
    ASSERT_TRUE(HasFocus(name)) << name.toStdString();
    Press(Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(Line(u"txtRightWrong"_s).startsWith(u"     Nice Job!  'A' is the correct"_s))
        << name.toStdString();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    Trigger(u"mnuFileClose"_s);
  }
}

// A key that is held down must neither answer the next question nor open the menu.
TEST_F(MainWindowTest, AltAHeldDownAnswersOnce) {
  bank.RunOnAnswers(u"UPDATE \"01Part1\" SET TutorialMode = 'C' WHERE QuestionNo < 30"_s);
  OpenAndBegin();
  Press(Qt::Key_A, Qt::AltModifier);
  ASSERT_TRUE(IsShown(u"txtAnswer"_s));
  QKeyEvent held(QEvent::ShortcutOverride, Qt::Key_A, Qt::AltModifier, u"a"_s, true);
  held.ignore();
  QApplication::sendEvent(&mainWindow, &held);
  EXPECT_TRUE(held.isAccepted());
}

TEST_F(MainWindowTest, AltAOpensTheStatisticsMenuWhileNoButtonAIsThere) {
  const auto opensTheMenu = [this] {
    QTest::keyClick(
        QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : &mainWindow,
        Qt::Key_A, Qt::AltModifier);
    QWidget* menu = QApplication::activePopupWidget();
    const bool opened = menu != nullptr && menu->objectName() == u"mnuStats"_s;
    if (menu != nullptr) {
      menu->close();
    }
    return opened;
  };
  Open();
  EXPECT_TRUE(opensTheMenu());
  Trigger(u"mnuFileBegin"_s);
  ASSERT_EQ(Find<QPushButton>(u"cmdA"_s)->text(), u"&True"_s);
  EXPECT_TRUE(opensTheMenu());
  EXPECT_FALSE(windowed.State().Answered);
}

TEST_F(MainWindowTest, TheResearchReferenceHasItsWholeTextAsToolTipAndShowsItsBeginning) {
  OpenAndBegin();
  auto* hint = Find<QLineEdit>(u"txtHintLink"_s);
  EXPECT_EQ(hint->toolTip(), u"Publication 1"_s);
  hint->setFocus(Qt::TabFocusReason);
  ASSERT_NE(hint->cursorPosition(), 0);
  Find(u"txtQuestion"_s)->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(hint->cursorPosition(), 0);
  mainWindow.SetBoxText(Box::txtHintLink, u"Circular <b>230</b>"_s);
  EXPECT_TRUE(hint->toolTip().contains(u"Circular &lt;b&gt;230&lt;/b&gt;"_s))
      << hint->toolTip().toStdString();
}

TEST_F(MainWindowTest, StartedMaximizedItGoesBackToTheLastNormalPlace) {
  for (const auto& [key, value] :
       {std::pair{u"MainLeft"_s, u"300"_s}, std::pair{u"MainTop"_s, u"450"_s},
        std::pair{u"MainWidth"_s, u"9000"_s}, std::pair{u"MainHeight"_s, u"6000"_s},
        std::pair{u"Maximized"_s, u"1"_s}}) {
    settings.values[u"Settings/"_s + key] = value;
  }
  Open();
  ASSERT_TRUE(mainWindow.isMaximized());
  mainWindow.showNormal();
  ASSERT_TRUE(QTest::qWaitFor([this] { return mainWindow.size() == QSize(600, 400); }))
      << mainWindow.width() << 'x' << mainWindow.height();
  EXPECT_EQ(mainWindow.pos(), QPoint(20, 30));
  EXPECT_EQ(RunUntilClosed([this] { mainWindow.close(); }), 0);
  EXPECT_EQ(settings.values.value(u"Settings/MainWidth"_s), u"9000"_s);
  EXPECT_EQ(settings.values.value(u"Settings/Maximized"_s), u"0"_s);
}

TEST_F(MainWindowTest, APlaceOnAScreenThatIsGoneIsMovedIntoTheOneThereIs) {
  settings.values[u"Settings/MainLeft"_s] = u"45000"_s;
  settings.values[u"Settings/MainTop"_s] = u"-30000"_s;
  Open();
  const QRect area = mainWindow.screen()->availableGeometry();
  EXPECT_TRUE(area.contains(QRect(mainWindow.pos(), mainWindow.size())));
  EXPECT_EQ(mainWindow.size(), QSize(767, 467));
}

TEST_F(MainWindowTest, ClosingItSavesItsPlaceAndEndsTheProgram) {
  Open();
  mainWindow.move(40, 50);
  mainWindow.resize(800, 600);
  EXPECT_EQ(RunUntilClosed([this] { mainWindow.close(); }), 0);
  EXPECT_EQ(settings.values.value(u"Settings/MainLeft"_s), u"600"_s);
  EXPECT_EQ(settings.values.value(u"Settings/MainWidth"_s), u"12000"_s);
  EXPECT_FALSE(mainWindow.isVisible());
}

TEST_F(MainWindowTest, ClosedWhileItPrintsItFinishesTheJobFirst) {
  OpenAndBegin();
  clock.whenWaiting = [this] { mainWindow.close(); };
  EXPECT_EQ(RunUntilClosed([this] { Trigger(u"mnuFilePrint"_s); }), 0);
  EXPECT_EQ(printer.done.count(u"end"_s), 1);
  EXPECT_TRUE(settings.values.contains(u"Settings/MainWidth"_s));
  EXPECT_FALSE(mainWindow.isVisible());
}

TEST_F(MainWindowTest, ClosedBeforeTheJobBeginsItFinishesTheJobToo) {
  OpenAndBegin();
  EXPECT_EQ(RunUntilClosed([this] {
              QTimer::singleShot(0, &mainWindow, [this] { mainWindow.close(); });
              Trigger(u"mnuFilePrint"_s);
            }),
            0);
  EXPECT_EQ(printer.done.count(u"end"_s), 1);
  EXPECT_FALSE(mainWindow.isVisible());
}

}  // namespace
}  // namespace tessaly::test
