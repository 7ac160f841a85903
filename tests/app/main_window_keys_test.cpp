// Which keys the main window takes, wherever the focus is.

#include <QPushButton>

#include "tests/app/main_window_fixture.h"

namespace tessaly::test {
namespace {

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
  bank.AddQuestions(kTable, 31, 31, TestBank::SubjectName(6));
  bank.RunOnAnswers(u"UPDATE \"01Part1\" SET TutorialMode = 'C' WHERE QuestionNo < 30"_s);
  OpenAndBegin();
  Press(Qt::Key_A, Qt::AltModifier);
  ASSERT_TRUE(IsShown(u"txtAnswer"_s));
  Trigger(u"mnuFileNext"_s);
  ASSERT_EQ(Pane(u"txtQuestion"_s), u"Question 31"_s);
  for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress}) {
    QKeyEvent held(type, Qt::Key_A, Qt::AltModifier, u"a"_s, true);
    // As they are delivered.
    held.setAccepted(type == QEvent::KeyPress);
    QApplication::sendEvent(&mainWindow, &held);
    EXPECT_TRUE(held.isAccepted());
  }
  EXPECT_FALSE(windowed.State().Answered);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
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

}  // namespace
}  // namespace tessaly::test
