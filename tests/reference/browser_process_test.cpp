#include "reference/browser_process.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <functional>

#include "app/error_boundary.h"
#include "tests/support/fakes.h"
#include "tests/support/file_contents.h"
#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

// Remembers the reports, as text.
class RecordingEvents : public BrowserEvents {
public:
  void cmdPubList_Click() override {
    reports.append(u"list"_s);
    if (onListClick) {
      onListClick();
    }
  }
  void cmdClose_Click() override { reports.append(u"close"_s); }
  void timTimer_Timer(bool busy, const QString& locationName) override {
    reports.append((busy ? u"busy "_s : u"idle "_s) + locationName);
  }
  void NavigateComplete(const QString& locationName) override {
    reports.append(u"navigated "_s + locationName);
  }
  void DocumentComplete(const QString& locationName, const QUrl& address, int status) override {
    reports.append(u"document %1 %2 %3"_s.arg(locationName, address.toString()).arg(status));
  }
  void WindowGone(bool pageLost) override { reports.append(pageLost ? u"page lost"_s : u"gone"_s); }

  QStringList reports;
  std::function<void()> onListClick;
};

// A shell script stands in for the window's program.
class BrowserProcessTest : public ::testing::Test {
protected:
  BrowserProcessTest() { process.SetEvents(events); }

  void WriteProgram(const QByteArray& script) {
    WriteBytes(Path(), "#!/bin/sh\n" + script);
    QFile::setPermissions(Path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }
  [[nodiscard]] QString Path() const { return folder.filePath(u"tessaly-browser"_s); }
  [[nodiscard]] QString Output() const { return folder.filePath(u"output"_s); }
  void WaitUntil(const std::function<bool()>& holds) {
    const QDeadlineTimer deadline(10'000);
    while (!holds() && !deadline.hasExpired()) {
      QCoreApplication::processEvents();
      QThread::msleep(1);
    }
    EXPECT_TRUE(holds()) << events.reports.join(u", "_s).toStdString();
  }
  void WaitForReports(qsizetype count) {
    WaitUntil([&] { return events.reports.size() >= count; });
  }

  QTemporaryDir folder;
  FakeBoxes boxes;
  ErrorBoundary errors{boxes};
  RecordingEvents events;
  BrowserProcess process{Path(), errors};
};

TEST_F(BrowserProcessTest, AMissingProgramIsAnError) {
  EXPECT_RUNTIME_ERROR(process.Load(), ErrorNumber::FileNotFound);
  EXPECT_FALSE(process.IsLoaded());
}

TEST_F(BrowserProcessTest, AProgramThatMayNotBeRunIsAnError) {
  WriteBytes(Path(), "#!/bin/sh\n");
  EXPECT_RUNTIME_ERROR(process.Load(), ErrorNumber::PermissionDenied);
}

TEST_F(BrowserProcessTest, AProgramThatCannotBeRunIsAnError) {
  WriteBytes(Path(), "#!/nowhere/interpreter\n");
  QFile::setPermissions(Path(), QFile::ReadOwner | QFile::ExeOwner);
  EXPECT_RUNTIME_ERROR(process.Load(), ErrorNumber::CannotCreateObject);
  EXPECT_FALSE(process.IsLoaded());
}

TEST_F(BrowserProcessTest, CommandsReachTheWindowInTheirOrder) {
  WriteProgram("exec cat >" + Output().toUtf8());
  process.Load();
  process.EnableTimer(true);
  process.Navigate(QUrl(u"file:///a b/p.html#x y"_s));
  process.ShowListButton(false);
  process.SetListCaption(u"Pub List"_s);
  process.SetCaption(u"Working..."_s);
  process.Show();
  process.Unload();
  EXPECT_FALSE(process.IsLoaded());
  WaitUntil([this] { return process.children().isEmpty(); });
  MessageReader reader;
  EXPECT_EQ(reader.Add(ReadBytes(Output())),
            (QList<QStringList>{{u"timer"_s, u"1"_s},
                                {u"navigate"_s, u"file:///a%20b/p.html#x%20y"_s},
                                {u"list-visible"_s, u"0"_s},
                                {u"list-caption"_s, u"Pub List"_s},
                                {u"caption"_s, u"Working..."_s},
                                {u"show"_s}}));
  EXPECT_TRUE(events.reports.isEmpty());
}

TEST_F(BrowserProcessTest, ReportsBecomeEvents) {
  WriteProgram(
      "echo list-clicked; echo close-clicked; echo tick A%20title 1; echo tick Title 0\n"
      "echo navigated Title; echo document-shown Title https%3A%2F%2Fwww.irs.gov%2Fx 404\n"
      "echo nonsense; echo; cat");
  process.Load();
  WaitForReports(6);
  EXPECT_EQ(events.reports,
            (QStringList{u"list"_s, u"close"_s, u"busy A title"_s, u"idle Title"_s,
                         u"navigated Title"_s, u"document Title https://www.irs.gov/x 404"_s}));
}

TEST_F(BrowserProcessTest, AnEndOfItsOwnIsReportedAndItCanBeLoadedAgain) {
  WriteProgram("exit 0");
  process.Load();
  WaitForReports(1);
  EXPECT_EQ(events.reports, QStringList{u"gone"_s});
  EXPECT_FALSE(process.IsLoaded());
  WriteProgram("exit 3");
  process.Load();
  WaitForReports(2);
  EXPECT_EQ(events.reports.last(), u"page lost"_s);
  WriteProgram("kill -9 $$");
  process.Load();
  WaitForReports(3);
  EXPECT_EQ(events.reports.last(), u"gone"_s);
}

TEST_F(BrowserProcessTest, AfterUnloadNothingIsReportedAndItCanBeLoadedAgain) {
  WriteProgram("echo list-clicked; echo list-clicked; cat; echo list-clicked");
  events.onListClick = [this] { process.Unload(); };
  process.Load();
  WaitForReports(1);
  WaitUntil([this] { return process.children().isEmpty(); });
  EXPECT_EQ(events.reports, QStringList{u"list"_s});
  WriteProgram("echo close-clicked; cat");
  process.Load();
  WaitForReports(2);
  EXPECT_EQ(events.reports.last(), u"close"_s);
}

TEST_F(BrowserProcessTest, AWindowThatDoesNotEndIsEnded) {
  WriteProgram("echo navigated up; exec sleep 1000");
  process.Load();
  WaitForReports(1);
  process.Unload();
  WaitUntil([this] { return process.children().isEmpty(); });
}

TEST_F(BrowserProcessTest, AFailureInAnEventIsShownToTheUser) {
  WriteProgram("echo list-clicked; cat");
  events.onListClick = [] { throw RuntimeError(ErrorNumber::TypeMismatch, u"x"_s); };
  process.Load();
  WaitUntil([this] { return !boxes.shown.isEmpty(); });
  EXPECT_TRUE(boxes.shown.first().contains(u"Run-time error '13'"_s));
  EXPECT_TRUE(process.IsLoaded());
}

}  // namespace
}  // namespace tessaly::test
