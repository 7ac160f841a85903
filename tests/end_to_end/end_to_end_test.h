#ifndef TESSALY_TESTS_END_TO_END_END_TO_END_TEST_H_
#define TESSALY_TESTS_END_TO_END_END_TO_END_TEST_H_

#include <gtest/gtest.h>

#include "store/settings_store.h"
#include "tests/end_to_end/program_driver.h"
#include "tests/support/file_contents.h"
#include "tests/support/printers.h"

namespace tessaly::test {

// An installation with three questions in 2001 Part I, and the program in it, not started yet.
class EndToEndTest : public ::testing::Test {
protected:
  explicit EndToEndTest(const QString& programParent = QDir::tempPath())
      : installation(programParent) {
    installation.bank.AddQuestions(QStringLiteral("01Part1"), 1, 3, TestBank::SubjectName(5));
  }

  TestBank& Bank() { return installation.bank; }
  // Starts the program and begins a session by the keyboard.
  void Begin() {
    program.StartToMainWindow();
    program.Press(QStringLiteral("Ctrl+B"));
    program.WaitForVisible(QStringLiteral("txtQuestion"));
  }
  // A run-time error's box is open: says which, and is closed.
  void ExpectErrorBox(int number, const QString& text) {
    const BoxContent box = program.WaitForBox();
    EXPECT_EQ(box.title, kApplicationTitle);
    EXPECT_TRUE(
        box.text.startsWith(QStringLiteral("Run-time error '%1':\n\n%2\n").arg(number).arg(text)))
        << box.text.toStdString();
    EXPECT_EQ(box.icon, QStringLiteral("Critical"));
    EXPECT_EQ(box.buttons, QStringList{QStringLiteral("OK")});
    program.AnswerBox(QStringLiteral("OK"));
  }
  // The same while starting: the process ends with a failure and has no other window.
  void ExpectErrorAtStart(int number, const QString& text) {
    program.Start();
    ExpectErrorBox(number, text);
    EXPECT_GT(program.WaitForExit(), 0);
  }

  Installation installation;
  ProgramDriver program{installation};
};

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_END_TO_END_END_TO_END_TEST_H_
