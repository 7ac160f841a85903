// What a page can do in the reference browser: its window's process alone, commanded over its
// pipes.

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QSize>
#include <QTcpSocket>
#include <QThread>
#include <vector>

#include "app/error_boundary.h"
#include "reference/browser_process.h"
#include "tests/end_to_end/browser_driver.h"
#include "tests/end_to_end/end_to_end_test.h"
#include "tests/end_to_end/loopback_server.h"
#include "tests/end_to_end/process_tree.h"
#include "tests/support/fakes.h"
#include "tests/support/scoped_environment.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

constexpr auto kGreen = "#00ff00"_L1;
constexpr auto kRed = "#ff0000"_L1;

// A document of one page, red all over.
QByteArray RedDocument() {
  const QByteArrayList objects{"<</Type/Catalog/Pages 2 0 R>>",
                               "<</Type/Pages/Kids[3 0 R]/Count 1>>",
                               "<</Type/Page/Parent 2 0 R/MediaBox[0 0 2000 2000]/Contents 4 0 R>>",
                               "<</Length 28>>stream\n1 0 0 rg 0 0 2000 2000 re f \nendstream"};
  QByteArray document = "%PDF-1.4\n";
  QByteArray table = "xref\n0 5\n0000000000 65535 f \n";
  for (qsizetype i = 0; i < objects.size(); ++i) {
    table += QByteArray::number(document.size()).rightJustified(10, '0') + " 00000 n \n";
    document += QByteArray::number(i + 1) + " 0 obj" + objects[i] + "endobj\n";
  }
  const QByteArray tableStart = QByteArray::number(document.size());
  return document + table + "trailer<</Size 5/Root 1 0 R>>\nstartxref\n" + tableStart + "\n%%EOF";
}

// A green page. What is red in it must not be seen.
QByteArray GreenPage(const QByteArray& title, const QByteArray& head, const QByteArray& body) {
  return "<!DOCTYPE html><html><head><title>" + title +
         "</title><style>html { background: #00ff00 } a { position: fixed; inset: 0 }</style>" +
         head + "</head><body>" + body + "</body></html>";
}

class WindowReports : public BrowserEvents {
public:
  void cmdPubList_Click() override { ++listClicks; }
  void cmdClose_Click() override { ++closeClicks; }
  void timTimer_Timer(bool busy, const QString&) override { ticks.append(busy); }
  void NavigateComplete(const QString&) override {}
  void DocumentComplete(const QString& locationName, const QUrl& address, int status) override {
    titles.append(locationName);
    lastAddress = address;
    lastStatus = status;
  }
  void WindowGone(bool) override { gone = true; }

  int listClicks = 0;
  int closeClicks = 0;
  QList<bool> ticks;
  QStringList titles;  // of the documents, in order
  QUrl lastAddress;
  int lastStatus = -1;
  bool gone = false;
};

class BrowserPagesTest : public ::testing::Test {
protected:
  BrowserPagesTest() {
    installation.AddReferenceBrowser();
    const QProcessEnvironment environment = installation.Environment();
    for (const QString& name : environment.keys()) {
      SetVariable(name.toUtf8(), environment.value(name).toUtf8());
    }
    SetVariable("TESSALY_AGENT_SOCKET", SocketPath().toUtf8());
    SetVariable("http_proxy", {});
    window.SetEvents(reports);
  }

  void SetVariable(const QByteArray& name, const QByteArray& value) {
    names.push_back(std::make_unique<QByteArray>(name));
    variables.push_back(std::make_unique<ScopedEnvironment>(names.back()->constData(), value));
  }
  [[nodiscard]] QString SocketPath() const { return installation.WorkingFolder() + u"/agent"_s; }
  [[nodiscard]] QString PathOf(const QString& page) const {
    return installation.Folder() + u'/' + page;
  }
  [[nodiscard]] QUrl AddressOf(const QString& page) const {
    return QUrl::fromLocalFile(PathOf(page));
  }
  void WritePage(const QString& page, const QByteArray& head, const QByteArray& body = {}) const {
    WriteBytes(PathOf(page), GreenPage(page.toUtf8(), head, body));
  }
  // Outside of the program folder.
  [[nodiscard]] QString OutsidePath(const QString& name) const {
    return installation.WorkingFolder() + u'/' + name;
  }

  void Navigate(const QUrl& address) {
    const qsizetype before = reports.titles.size();
    window.Navigate(address);
    WaitUntil(u"a document"_s, [&] { return reports.titles.size() > before; });
  }
  void Open(const QUrl& address) {
    window.Load();
    window.Navigate(address);
    window.Show();
    WaitUntil(u"a document"_s, [this] { return !reports.titles.isEmpty(); });
    browser.Connect();
  }
  void OpenPage(const QString& page) {
    Open(AddressOf(page));
    EXPECT_TRUE(reports.titles.last().endsWith(page));
  }
  void WaitUntil(const QString& what, const std::function<bool()>& holds) {
    const QDeadlineTimer deadline(kPatienceMilliseconds);
    while (!holds()) {
      if (deadline.hasExpired()) {
        Fail(u"waited in vain for %1; documents: %2"_s.arg(what, reports.titles.join(u", "_s)));
      }
      LetTimePass(1);
    }
  }
  // For what must not happen.
  static void LetTimePass(int milliseconds) {
    const QDeadlineTimer deadline(milliseconds);
    do {
      QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
      QThread::msleep(1);
    } while (!deadline.hasExpired());
  }
  void ExpectStaysGreen() {
    browser.WaitForPageColour(kGreen);
    LetTimePass(500);
    EXPECT_EQ(browser.PageColour(), kGreen);
  }
  void ClickIntoPage() { browser.Click(u"brwWebBrowser"_s); }
  void ExpectClickIsRefused(const QString& page) {
    ClickIntoPage();
    WaitUntil(u"the refusal"_s, [this] {
      return browser.Get(u"lblPlace"_s, u"text"_s) ==
             u"That link leads out of the reference pages."_s;
    });
    LetTimePass(300);
    EXPECT_EQ(reports.titles.last(), page);
    EXPECT_EQ(QUrl(browser.Address()), AddressOf(page));
  }

  Installation installation;
  std::vector<std::unique_ptr<QByteArray>> names;
  std::vector<std::unique_ptr<ScopedEnvironment>> variables;
  FakeBoxes boxes;
  ErrorBoundary errors{boxes};
  WindowReports reports;
  LoopbackServer server;
  BrowserProcess window{installation.Folder() + u'/' + kBrowserProgramName, errors};
  BrowserDriver browser{SocketPath()};
};

TEST_F(BrowserPagesTest, TheButtonsStandWhereTheyBelong) {
  OpenPage(u"pubmenu.html"_s);
  for (const QSize& size : {QSize(960, 760), QSize(700, 500)}) {
    browser.Resize(size.width(), size.height());
    const QStringList page = browser.Get(u"brwWebBrowser"_s, u"geometry"_s).split(u',');
    const QStringList list = browser.Get(u"cmdPubList"_s, u"geometry"_s).split(u',');
    const QStringList close = browser.Get(u"cmdClose"_s, u"geometry"_s).split(u',');
    const double right = page[0].toInt() + page[2].toInt();
    const double bottom = page[1].toInt() + page[3].toInt();
    EXPECT_NEAR(close[0].toInt(), right - 1300 / 15.0, 0.5);
    EXPECT_NEAR(list[0].toInt(), right - 2600 / 15.0, 0.5);
    EXPECT_NEAR(close[1].toInt(), bottom + 100 / 15.0, 0.5);
    EXPECT_NEAR(list[1].toInt(), bottom + 100 / 15.0, 0.5);
  }
}

TEST_F(BrowserPagesTest, TheWindowDoesWhatItIsTold) {
  OpenPage(u"pubmenu.html"_s);
  EXPECT_EQ(browser.Get(u"cmdPubList"_s, u"text"_s), u"Pub  List"_s);
  window.SetCaption(u"A caption"_s);
  window.SetListCaption(u"Kovrin List"_s);
  browser.WaitForCaption(u"A caption"_s);
  EXPECT_EQ(browser.Get(u"cmdPubList"_s, u"text"_s), u"Kovrin List"_s);
  browser.Click(u"cmdPubList"_s);
  WaitUntil(u"the click"_s, [this] { return reports.listClicks == 1; });
  window.ShowListButton(false);
  WaitUntil(u"the button to go"_s, [this] { return !browser.IsVisible(u"cmdPubList"_s); });
}

TEST_F(BrowserPagesTest, TheTimerReportsWhileItIsEnabled) {
  OpenPage(u"pubmenu.html"_s);
  LetTimePass(300);
  EXPECT_TRUE(reports.ticks.isEmpty());
  window.EnableTimer(true);
  WaitUntil(u"two ticks"_s, [this] { return reports.ticks.size() >= 2; });
  EXPECT_FALSE(reports.ticks.last());
  window.EnableTimer(false);
  LetTimePass(300);
  const qsizetype ticks = reports.ticks.size();
  LetTimePass(300);
  EXPECT_EQ(reports.ticks.size(), ticks);
}

TEST_F(BrowserPagesTest, AnotherPlaceOnThePageCountsAsADocument) {
  OpenPage(u"pubmenu.html"_s);
  QUrl place = AddressOf(u"pubmenu.html"_s);
  place.setFragment(u"end"_s);
  Navigate(place);
  EXPECT_EQ(reports.lastAddress, place);
}

TEST_F(BrowserPagesTest, ThereIsAWayBack) {
  OpenPage(u"pubmenu.html"_s);
  EXPECT_EQ(browser.Get(u"lblPlace"_s, u"text"_s), u"pubmenu.html"_s);
  Navigate(AddressOf(u"kovrins/kovrin.html"_s));
  EXPECT_EQ(browser.Get(u"lblPlace"_s, u"text"_s), u"kovrins/kovrin.html"_s);
  browser.Press(u"Alt+Left"_s);
  WaitUntil(u"the first page"_s,
            [this] { return reports.titles.last() == u"Page pubmenu.html"_s; });
  browser.Click(u"cmdForward"_s);
  WaitUntil(u"the second page"_s,
            [this] { return reports.titles.last() == u"Page kovrins/kovrin.html"_s; });
}

TEST_F(BrowserPagesTest, ItEndsWithTheProgramsEndOfThePipe) {
  OpenPage(u"pubmenu.html"_s);
  const QList<qint64> processes = DescendantsOf(QCoreApplication::applicationPid());
  EXPECT_GE(processes.size(), 2);
  window.Unload();
  WaitUntil(u"the end"_s,
            [&] { return std::none_of(processes.begin(), processes.end(), IsAlive); });
  EXPECT_FALSE(reports.gone);
}

TEST_F(BrowserPagesTest, NothingOfThePagesIsLeftOnTheDisk) {
  OpenPage(u"pubmenu.html"_s);
  const QDir home(installation.Environment().value(u"HOME"_s));
  EXPECT_FALSE(home.exists(u".local/share"_s));
  EXPECT_FALSE(home.exists(u".cache/tessaly-browser"_s));
}

TEST_F(BrowserPagesTest, AMissingPageSaysSo) {
  Open(AddressOf(u"pubs/none.html"_s));
  EXPECT_EQ(reports.lastStatus, 0);
  // The browser's own page: a picture and a text.
  constexpr int kColoursOfText = 30;
  WaitUntil(u"a text"_s, [this] {
    return browser.Get(u"brwWebBrowser"_s, u"colours"_s).toInt() > kColoursOfText;
  });
  Navigate(AddressOf(u"pubmenu.html"_s));
  EXPECT_EQ(reports.titles.last(), u"Page pubmenu.html"_s);
}

TEST_F(BrowserPagesTest, PagesFromTheDiskRunNoScript) {
  const QByteArray toRed =
      "document.documentElement.style.background = '#ff0000'; document.title = 'X'";
  WriteBytes(PathOf(u"page.js"_s), toRed);
  WritePage(u"script.html"_s,
            "<script>" + toRed +
                "</script><script src='page.js'></script>"
                "<script type='module'>" +
                toRed + "</script>",
            "<img src='none.png' onerror=\"" + toRed + "\"><svg onload=\"" + toRed +
                "\"></svg>"
                "<iframe src=\"javascript:top." +
                toRed +
                "\"></iframe>"
                "<a href=\"javascript:" +
                toRed + "\">Click</a>");
  OpenPage(u"script.html"_s);
  ExpectStaysGreen();
  ClickIntoPage();
  ExpectStaysGreen();
  EXPECT_EQ(reports.titles.last(), u"script.html"_s);
}

TEST_F(BrowserPagesTest, AfterAPageOfTheWebScriptsAreOffAgain) {
  server.Serve(u"/web.html"_s, "text/html",
               "<title>web</title><body onload=\"document.title = 'ran'\">");
  WritePage(u"script.html"_s, "<script>document.title = 'ran'</script>");
  Open(QUrl(server.Address(u"/web.html"_s)));
  WaitUntil(u"the script of the web"_s,
            [this] { return browser.Get(u"brwWebBrowser"_s, u"title"_s) == u"ran"_s; });
  Navigate(AddressOf(u"script.html"_s));
  EXPECT_EQ(reports.titles.last(), u"script.html"_s);
  ExpectStaysGreen();
  browser.Press(u"Alt+Left"_s);
  WaitUntil(u"the web"_s, [this] { return browser.Address().startsWith(u"http:"_s); });
  browser.Press(u"Alt+Right"_s);
  WaitUntil(u"the disk"_s, [this] { return reports.titles.last() == u"script.html"_s; });
  ExpectStaysGreen();
  EXPECT_EQ(browser.Get(u"brwWebBrowser"_s, u"title"_s), u"script.html"_s);
}

TEST_F(BrowserPagesTest, PagesFromTheDiskLoadNothingFromTheNetwork) {
  const QByteArray web = server.Address({}).toUtf8();
  WritePage(u"network.html"_s,
            "<link rel='stylesheet' href='" + web + "/1.css'><link rel='icon' href='" + web +
                "/2.png'><link rel='preconnect' href='" + web +
                "'><link rel='dns-prefetch' href='" + web + "'><link rel='prefetch' href='" + web +
                "/3'><link rel='preload' as='image' "
                "href='" +
                web + "/4.png'><link rel='prerender' href='" + web +
                "/5'>"
                "<link rel='manifest' href='" +
                web + "/6'><script src='" + web +
                "/7.js'></script>"
                "<style>@import '" +
                web + "/8.css'; @font-face { font-family: f; src: url('" + web +
                "/9.woff') } body { font-family: f; background-image: url('" + web +
                "/10.png') }</style><meta http-equiv='refresh' content='0;url=" + web + "/11'>",
            "Text<img src='" + web + "/12.png' srcset='" + web + "/13.png 2x'><iframe src='" + web +
                "/14'></iframe><object data='" + web + "/15'></object><embed src='" + web +
                "/16'><video src='" + web + "/17' poster='" + web +
                "/18' autoplay></video>"
                "<audio src='" +
                web + "/19' autoplay></audio><svg><image href='" + web +
                "/20.png'/></svg><table background='" + web +
                "/21.png'></table>"
                "<a href='" +
                web + "/clicked' ping='" + web + "/22'>Click</a>");
  OpenPage(u"network.html"_s);
  LetTimePass(1500);
  EXPECT_EQ(server.Connections(), 0) << server.Requests().join(u' ').toStdString();
  EXPECT_EQ(QUrl(browser.Address()), AddressOf(u"network.html"_s));
  // A click is the way to the web.
  ClickIntoPage();
  WaitUntil(u"the click's request"_s, [this] { return server.Requests().contains(u"/clicked"_s); });
  EXPECT_FALSE(server.Requests().contains(u"/22"_s));
}

TEST_F(BrowserPagesTest, PagesFromTheDiskReadOnlyTheProgramFolder) {
  WriteBytes(OutsidePath(u"outside.css"_s), "html { background: #ff0000 !important }");
  WriteBytes(OutsidePath(u"outside.html"_s), "<body style='background: #ff0000'>");
  WriteBytes(PathOf(u"inside.css"_s), "html { background: #00ff00 }");
  ASSERT_TRUE(QFile::link(OutsidePath(u"outside.css"_s), PathOf(u"way.css"_s)));
  const QByteArray outside = QUrl::fromLocalFile(installation.WorkingFolder()).toEncoded();
  const QString up = QDir(installation.Folder()).relativeFilePath(installation.WorkingFolder());
  WriteBytes(PathOf(u"files.html"_s),
             "<!DOCTYPE html><title>files.html</title><style>html { background: #0000ff }"
             "iframe { position: fixed; inset: 0; width: 100%; height: 100%; border: 0 }</style>"
             "<link rel='stylesheet' href='inside.css'><link rel='stylesheet' href='" +
                 outside + "/outside.css'><link rel='stylesheet' href='" + up.toUtf8() +
                 "/outside.css'>"
                 "<link rel='stylesheet' href='way.css'><iframe src='" +
                 outside + "/outside.html'></iframe><object data='" + outside +
                 "/outside.html'></object>");
  OpenPage(u"files.html"_s);
  ExpectStaysGreen();
}

TEST_F(BrowserPagesTest, LinksOutOfTheProgramFolderAreNotFollowed) {
  WriteBytes(OutsidePath(u"outside.html"_s), "<title>outside</title>");
  ASSERT_TRUE(QFile::link(OutsidePath(u"outside.html"_s), PathOf(u"way.html"_s)));
  const QString up = QDir(installation.Folder()).relativeFilePath(installation.WorkingFolder());
  OpenPage(u"pubmenu.html"_s);
  for (const QString& link :
       {QUrl::fromLocalFile(OutsidePath(u"outside.html"_s)).toString(), up + u"/outside.html"_s,
        u"way.html"_s, u"file:///etc/passwd"_s, u"%2e%2e/%2e%2e/%2e%2e/%2e%2e/etc/passwd"_s,
        u"file:///"_s, u"."_s, u"mailto:a@b.example"_s, u"ftp://127.0.0.1/"_s}) {
    WritePage(u"link.html"_s, {}, "<a href='" + link.toUtf8() + "'>Click</a>");
    Navigate(AddressOf(u"link.html"_s));
    browser.WaitForPageColour(kGreen);
    ExpectClickIsRefused(u"link.html"_s);
    WritePage(u"link.html"_s, {}, "<a target='_blank' href='" + link.toUtf8() + "'>Click</a>");
    Navigate(AddressOf(u"link.html"_s));
    ClickIntoPage();
    LetTimePass(200);
    EXPECT_EQ(QUrl(browser.Address()), AddressOf(u"link.html"_s)) << link.toStdString();
  }
}

TEST_F(BrowserPagesTest, ACommandOutOfTheProgramFolderIsNotFollowedEither) {
  OpenPage(u"pubmenu.html"_s);
  window.Navigate(QUrl(u"file:///etc/passwd"_s));
  WaitUntil(u"the refusal"_s, [this] {
    return browser.Get(u"lblPlace"_s, u"text"_s) ==
           u"That link leads out of the reference pages."_s;
  });
  EXPECT_EQ(QUrl(browser.Address()), AddressOf(u"pubmenu.html"_s));
}

TEST_F(BrowserPagesTest, ALinkToANewWindowOpensInThisOne) {
  WritePage(u"link.html"_s, {}, "<a target='_blank' href='pubs/p501.html'>Click</a>");
  OpenPage(u"link.html"_s);
  browser.WaitForPageColour(kGreen);
  ClickIntoPage();
  WaitUntil(u"the page"_s, [this] { return reports.titles.last() == u"Page pubs/p501.html"_s; });
}

TEST_F(BrowserPagesTest, PagesOfTheWebDoNotSeeTheDisk) {
  const QByteArray page = AddressOf(u"pubmenu.html"_s).toEncoded();
  server.Serve(u"/web.html"_s, "text/html",
               GreenPage("web", {},
                         "<iframe src='" + page + "'></iframe><script>location = '" + page +
                             "'</script><a href='" + page + "'>Click</a>"));
  Open(QUrl(server.Address(u"/web.html"_s)));
  browser.WaitForPageColour(kGreen);
  ClickIntoPage();
  LetTimePass(500);
  EXPECT_EQ(browser.Address(), server.Address(u"/web.html"_s));
}

TEST_F(BrowserPagesTest, ADocumentFromTheDiskIsShown) {
  WriteBytes(PathOf(u"pubs/red.pdf"_s), RedDocument());
  WritePage(u"link.html"_s, {}, "<a href='pubs/red.pdf'>Click</a>");
  OpenPage(u"link.html"_s);
  browser.WaitForPageColour(kGreen);
  ClickIntoPage();
  browser.WaitForPageColour(kRed);
}

TEST_F(BrowserPagesTest, ADocumentOfTheWebIsShown) {
  server.Serve(u"/red.pdf"_s, "application/pdf", RedDocument());
  Open(QUrl(server.Address(u"/red.pdf"_s)));
  EXPECT_EQ(reports.lastStatus, 200);
  browser.WaitForPageColour(kRed);
}

TEST_F(BrowserPagesTest, ThePageThatTheWebDoesNotHaveIsReportedAsSuch) {
  Open(QUrl(server.Address(u"/none.html"_s)));
  EXPECT_EQ(reports.lastStatus, 404);
  EXPECT_EQ(reports.lastAddress, QUrl(server.Address(u"/none.html"_s)));
}

TEST_F(BrowserPagesTest, TheEnvironmentOpensNoOtherWayIn) {
  QTcpServer free;
  ASSERT_TRUE(free.listen(QHostAddress::LocalHost));
  const quint16 port = free.serverPort();
  free.close();
  SetVariable("QTWEBENGINE_REMOTE_DEBUGGING", QByteArray::number(port));
  SetVariable("QTWEBENGINE_CHROMIUM_FLAGS", "--remote-debugging-port=" + QByteArray::number(port));
  OpenPage(u"pubmenu.html"_s);
  QTcpSocket visitor;
  visitor.connectToHost(QHostAddress::LocalHost, port);
  EXPECT_FALSE(visitor.waitForConnected(1000));
}

}  // namespace
}  // namespace tessaly::test
