// The reference browser as the program opens it: two programs, as they are built.

#include <unistd.h>

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QThread>
#include <QUrl>
#include <algorithm>
#include <array>

#include "tests/end_to_end/browser_driver.h"
#include "tests/end_to_end/end_to_end_test.h"
#include "tests/end_to_end/process_tree.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class ReferenceBrowserProgramTest : public EndToEndTest {
protected:
  ReferenceBrowserProgramTest() {
    installation.AddReferenceBrowser();
    installation.Store(u"Options/PubSource"_s, u"1"_s);
    // Whatever the machine is connected to, the web cannot be reached.
    installation.SetVariable(u"http_proxy"_s, u"http://127.0.0.1:9"_s);
    installation.SetVariable(u"https_proxy"_s, u"http://127.0.0.1:9"_s);
  }

  void Open(const QString& command) {
    program.Trigger(command);
    browser.Connect();
  }
  [[nodiscard]] QList<qint64> BrowserProcesses() const {
    return DescendantsOf(program.ProcessId());
  }
  void WaitUntilGone(const QList<qint64>& processes) {
    ASSERT_FALSE(processes.isEmpty());
    const QDeadlineTimer deadline(kPatienceMilliseconds);
    while (std::any_of(processes.begin(), processes.end(), IsAlive)) {
      ASSERT_FALSE(deadline.hasExpired()) << "processes are left behind";
      QThread::msleep(kPollMilliseconds);
    }
  }
  void WaitUntilClosed() {
    program.WaitUntil(u"the browser's end"_s, [this] { return BrowserProcesses().isEmpty(); });
  }
  [[nodiscard]] QString LocalAddress(const QString& page) const {
    return QUrl::fromLocalFile(QFileInfo(installation.Folder()).canonicalFilePath() + u'/' + page)
        .toString();
  }

  BrowserDriver browser{program.SocketPath()};
};

TEST_F(ReferenceBrowserProgramTest, BeforeItIsOpenedTheProgramHasNothingOfIt) {
  program.StartToMainWindow();
  EXPECT_TRUE(BrowserProcesses().isEmpty());
  EXPECT_FALSE(ProcFile(program.ProcessId(), "maps").contains("WebEngine"));
  EXPECT_TRUE(ProcFile(program.ProcessId(), "maps").contains("Qt6Widgets"));
  Open(u"mnuHelpPubs"_s);
  EXPECT_FALSE(ProcFile(program.ProcessId(), "maps").contains("WebEngine"));
  EXPECT_EQ(NameOf(BrowserProcesses().value(0)), "tessaly-browser");
}

TEST_F(ReferenceBrowserProgramTest, EachCommandHasItsPageAndItsListButton) {
  program.StartToMainWindow();
  Open(u"mnuHelpPubs"_s);
  browser.WaitForCaption(u"Page pubmenu.html"_s);
  EXPECT_EQ(browser.Get(u"cmdPubList"_s, u"text"_s), u"Pub List"_s);
  EXPECT_EQ(browser.Get(u"cmdClose"_s, u"text"_s), u"Close"_s);
  program.Trigger(u"mnuHelpKovrins"_s);
  browser.WaitForCaption(u"Page kovrins/kovrin.html"_s);
  EXPECT_EQ(browser.Get(u"cmdPubList"_s, u"text"_s), u"Kovrin List"_s);
  program.Trigger(u"mnuHelpGlossary"_s);
  browser.WaitForCaption(u"Page glossary/glossary.html"_s);
  EXPECT_EQ(browser.Get(u"cmdPubList"_s, u"text"_s), u"Definition List"_s);
  EXPECT_FALSE(browser.IsVisible(u"cmdPubList"_s));
  program.Trigger(u"mnuHelpKovrins"_s);
  browser.WaitForCaption(u"Page kovrins/kovrin.html"_s);
  EXPECT_TRUE(browser.IsVisible(u"cmdPubList"_s));
  EXPECT_EQ(BrowserProcesses().count(BrowserProcesses().value(0)), 1);
}

TEST_F(ReferenceBrowserProgramTest, ResearchOpensThePublicationAndTheListButtonTheMenu) {
  Bank().RunOnQuestions(u"UPDATE \"01Part1\" SET Hint = 'Publication 501', Link = 'p501.html#a'"_s);
  Begin();
  program.Press(u"Ctrl+R"_s);
  program.WaitForWindow(u"frmHint"_s);
  EXPECT_EQ(program.Text(u"lblHintLink"_s), u"Publication 501"_s);
  EXPECT_FALSE(program.IsEnabled(u"Toolbar1.Hint"_s));
  EXPECT_FALSE(program.IsEnabled(u"mnuFileResearch"_s));
  program.Click(u"cmdView"_s);
  browser.Connect();
  browser.WaitForCaption(u"Page pubs/p501.html"_s);
  EXPECT_EQ(browser.Address(), LocalAddress(u"pubs/p501.html"_s) + u"#a"_s);
  EXPECT_TRUE(program.IsEnabled(u"Toolbar1.Hint"_s));
  EXPECT_FALSE(program.IsEnabled(u"mnuFileResearch"_s));
  browser.Click(u"cmdPubList"_s);
  browser.WaitForCaption(u"Page pubmenu.html"_s);
  program.Click(u"cmdA"_s);
  program.Press(u"Ctrl+N"_s);
  EXPECT_TRUE(program.IsEnabled(u"mnuFileResearch"_s));
}

TEST_F(ReferenceBrowserProgramTest, WithoutALinkOrWithOneThatLeadsOutNothingIsFound) {
  Bank().RunOnQuestions(u"UPDATE \"01Part1\" SET Link = ''"_s);
  Bank().RunOnQuestions(
      u"UPDATE \"01Part1\" SET Link = '../../../../../../etc/passwd' WHERE QuestionNo = '2'"_s);
  Begin();
  program.Click(u"Toolbar1.Hint"_s);
  program.WaitForWindow(u"frmHint"_s);
  program.Click(u"cmdView"_s);
  browser.Connect();
  browser.WaitForCaption(u"Page notfound.html"_s);
  browser.Click(u"cmdPubList"_s);
  browser.WaitForCaption(u"Page pubmenu.html"_s);
  program.Click(u"cmdSkip"_s);
  program.Click(u"Toolbar1.Hint"_s);
  program.WaitForWindow(u"frmHint"_s);
  program.Click(u"cmdView"_s);
  browser.WaitForCaption(u"Page notfound.html"_s);
}

TEST_F(ReferenceBrowserProgramTest, EveryWayOfClosingLeavesNoProcessAndItOpensAgain) {
  program.StartToMainWindow();
  const std::array<std::function<void()>, 3> ways{[this] { browser.SendClick(u"cmdClose"_s); },
                                                  [this] { browser.SendPress(u"Esc"_s); },
                                                  [this] { browser.SendClose(); }};
  for (const auto& close : ways) {
    Open(u"mnuHelpKovrins"_s);
    browser.WaitForCaption(u"Page kovrins/kovrin.html"_s);
    const QList<qint64> processes = BrowserProcesses();
    close();
    WaitUntilGone(processes);
    EXPECT_TRUE(program.IsRunning());
  }
}

TEST_F(ReferenceBrowserProgramTest, ItGoesWithTheProgram) {
  program.StartToMainWindow();
  Open(u"mnuHelpPubs"_s);
  const QList<qint64> processes = BrowserProcesses();
  program.Close(u"frmMain"_s);
  EXPECT_EQ(program.WaitForExit(), 0);
  WaitUntilGone(processes);
}

TEST_F(ReferenceBrowserProgramTest, ItGoesWithTheProgramThatIsKilled) {
  program.StartToMainWindow();
  Open(u"mnuHelpPubs"_s);
  const QList<qint64> processes = BrowserProcesses();
  program.Kill();
  WaitUntilGone(processes);
}

TEST_F(ReferenceBrowserProgramTest, KilledItLeavesTheProgramRunningAndOpensAgain) {
  program.StartToMainWindow();
  Open(u"mnuHelpPubs"_s);
  browser.WaitForCaption(u"Page pubmenu.html"_s);
  const QList<qint64> processes = BrowserProcesses();
  KillAll({processes.value(0)});
  WaitUntilGone(processes);
  WaitUntilClosed();
  Open(u"mnuHelpGlossary"_s);
  browser.WaitForCaption(u"Page glossary/glossary.html"_s);
  EXPECT_EQ(program.Windows(), QStringList{u"frmMain"_s});
}

TEST_F(ReferenceBrowserProgramTest, WithItsHelpersKilledItShowsTheNextPageAllTheSame) {
  program.StartToMainWindow();
  Open(u"mnuHelpPubs"_s);
  browser.WaitForCaption(u"Page pubmenu.html"_s);
  KillAll(BrowserProcesses().mid(1));
  program.Trigger(u"mnuHelpGlossary"_s);
  program.WaitUntil(u"a new window"_s, [this] {
    try {
      browser.Connect();
      return browser.Caption() == u"Page glossary/glossary.html"_s;
    } catch (const std::runtime_error&) {
      return false;
    }
  });
  EXPECT_EQ(program.Windows(), QStringList{u"frmMain"_s});
}

TEST_F(ReferenceBrowserProgramTest, WithThePagesProcessKilledThePageComesBack) {
  program.StartToMainWindow();
  Open(u"mnuHelpPubs"_s);
  browser.WaitForCaption(u"Page pubmenu.html"_s);
  // The one that was started last, by another helper.
  const qint64 renderer = BrowserProcesses().last();
  KillAll({renderer});
  WaitUntilGone({renderer});
  program.Trigger(u"mnuHelpKovrins"_s);
  browser.WaitForCaption(u"Page kovrins/kovrin.html"_s);
  EXPECT_TRUE(program.IsRunning());
}

TEST_F(ReferenceBrowserProgramTest, WithoutTheWebAFormEndsInTheBrowsersErrorPage) {
  program.StartToMainWindow();
  Open(u"mnu23"_s);
  EXPECT_EQ(program.Get(u"frmMain"_s, u"visible"_s), u"true"_s);
  browser.WaitForCaption(u"www.irs.gov"_s);
  EXPECT_EQ(browser.Address(), u"https://www.irs.gov/pub/irs-pdf/f23.pdf"_s);
  EXPECT_EQ(browser.Get(u"cmdPubList"_s, u"text"_s), u"Pub List"_s);
  browser.Click(u"cmdPubList"_s);
  browser.WaitForCaption(u"Page pubmenu.html"_s);
}

TEST_F(ReferenceBrowserProgramTest, AMissingBrowserIsToldAndTheProgramGoesOn) {
  ASSERT_TRUE(QFile::remove(Bank().Folder() + u"/tessaly-browser"_s));
  program.StartToMainWindow();
  program.Trigger(u"mnuHelpPubs"_s);
  ExpectErrorBox(53, u"File not found"_s);
  program.Press(u"Ctrl+B"_s);
  program.WaitForVisible(u"txtQuestion"_s);
}

TEST_F(ReferenceBrowserProgramTest, TheSandboxIsOffForRootOnly) {
  installation.SetVariable(u"QTWEBENGINE_DISABLE_SANDBOX"_s, u"1"_s);
  installation.SetVariable(u"QTWEBENGINE_CHROMIUM_FLAGS"_s, u"--no-sandbox"_s);
  program.StartToMainWindow();
  Open(u"mnuHelpPubs"_s);
  browser.WaitForCaption(u"Page pubmenu.html"_s);
  const qint64 renderer = BrowserProcesses().last();
  const bool isRoot = ::geteuid() == 0;
  EXPECT_EQ(ProcFile(renderer, "cmdline").contains("--no-sandbox"), isRoot);
  if (!isRoot) {
    EXPECT_TRUE(ProcFile(renderer, "status").contains("Seccomp:\t2"));
  }
}

}  // namespace
}  // namespace tessaly::test
