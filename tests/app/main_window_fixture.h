#ifndef TESSALY_TESTS_APP_MAIN_WINDOW_FIXTURE_H_
#define TESSALY_TESTS_APP_MAIN_WINDOW_FIXTURE_H_

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QTimer>
#include <QToolBar>

#include "app/main_window.h"
#include "tests/support/program_fixture.h"

namespace tessaly::test {

using namespace Qt::StringLiterals;

inline const QString kTable = u"01Part1"_s;
inline const QStringList kIdleCommands{
    u"mnuFileBegin"_s,      u"mnuUpdates"_s,         u"mnuFileExit"_s,    u"mnuFileExport"_s,
    u"mnuFileImport"_s,     u"mnuViewExamChoices"_s, u"mnuViewOptions"_s, u"mnuViewStats"_s,
    u"mnuStatsReset"_s,     u"mnuHelpAbout"_s,       u"Toolbar1.Start"_s, u"Toolbar1.Mode"_s,
    u"Toolbar1.Settings"_s, u"Toolbar1.Stats"_s};
inline const QStringList kSessionCommands{u"mnuFileClose"_s,    u"mnuFilePrint"_s,
                                          u"mnuFileResearch"_s, u"Toolbar1.Stop"_s,
                                          u"Toolbar1.Hint"_s,   u"Toolbar1.Print"_s};
inline const QStringList kCommandsAfterAnAnswer{u"mnuFileNext"_s, u"Toolbar1.Next"_s};

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

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_APP_MAIN_WINDOW_FIXTURE_H_
