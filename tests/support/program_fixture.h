#ifndef TESSALY_TESTS_SUPPORT_PROGRAM_FIXTURE_H_
#define TESSALY_TESTS_SUPPORT_PROGRAM_FIXTURE_H_

#include <gtest/gtest.h>

#include <QDir>

#include "app/program.h"
#include "platform/file_operations.h"
#include "tests/support/fake_browser_window.h"
#include "tests/support/fake_printer.h"
#include "tests/support/fakes.h"
#include "tests/support/printers.h"
#include "tests/support/test_bank.h"

namespace tessaly::test {

// The whole program without windows, on real database files, with fakes for the rest of the
// machine. The working directory is a temporary one while a test runs.
class ProgramTest : public ::testing::Test {
protected:
  ProgramTest() { QDir::setCurrent(bank.WorkingFolder()); }
  ~ProgramTest() override { QDir::setCurrent(QDir::rootPath()); }

  // Stores a value for the next LoadSettings.
  void Choose(const QString& key, const QString& value) {
    settings.values[QStringLiteral("StudyMode/") + key] = value;
  }
  void SetOption(const QString& key, const QString& value) {
    settings.values[QStringLiteral("Options/") + key] = value;
  }
  void Begin() {
    program.Prepare();
    program.Session().BeginSession();
  }
  StudySession& Session() { return program.Session(); }
  ProgramState& State() { return program.State(); }
  [[nodiscard]] QString Feedback() const { return view.BoxText(Box::txtRightWrong); }
  [[nodiscard]] QString Question() const { return view.BoxText(Box::txtQuestion); }
  [[nodiscard]] QString PanelText(Panel panel) const { return view.panels.at(panel); }

  TestBank bank;
  FakeSettings settings;
  FakeClock clock;
  FakeBoxes boxes;
  FakeView view;
  DiskFileOperations files;
  FakeDrives drives;
  FakePrinter printer;
  FakeDesktop desktop;
  FakeBrowserWindow browserWindow;
  Program program{{settings, clock, boxes, files, drives, printer, desktop, browserWindow},
                  bank.Folder(),
                  view};
};

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_SUPPORT_PROGRAM_FIXTURE_H_
