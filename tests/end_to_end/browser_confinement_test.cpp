// What a page in the reference browser cannot do.

#include "tests/end_to_end/browser_pages_fixture.h"

namespace tessaly::test {
namespace {

class BrowserConfinementTest : public BrowserPagesTest {};

TEST_F(BrowserConfinementTest, PagesFromTheDiskRunNoScript) {
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

TEST_F(BrowserConfinementTest, AfterAPageOfTheWebScriptsAreOffAgain) {
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

TEST_F(BrowserConfinementTest, PagesFromTheDiskLoadNothingFromTheNetwork) {
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

TEST_F(BrowserConfinementTest, PagesFromTheDiskReadOnlyTheProgramFolder) {
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

TEST_F(BrowserConfinementTest, LinksOutOfTheProgramFolderAreNotFollowed) {
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

TEST_F(BrowserConfinementTest, ACommandOutOfTheProgramFolderIsNotFollowedEither) {
  OpenPage(u"pubmenu.html"_s);
  window.Navigate(QUrl(u"file:///etc/passwd"_s));
  WaitUntil(u"the refusal"_s, [this] {
    return browser.Get(u"lblPlace"_s, u"text"_s) ==
           u"That link leads out of the reference pages."_s;
  });
  EXPECT_EQ(QUrl(browser.Address()), AddressOf(u"pubmenu.html"_s));
}

TEST_F(BrowserConfinementTest, PagesOfTheWebDoNotSeeTheDisk) {
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

TEST_F(BrowserConfinementTest, TheEnvironmentOpensNoOtherWayIn) {
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
