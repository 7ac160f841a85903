// How the reference browser shows pages: its window's process alone, commanded over its pipes.

#include "tests/end_to_end/browser_pages_fixture.h"

namespace tessaly::test {
namespace {

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

// The engine hears of the end before, while or after it begins to load the next page.
TEST_F(BrowserPagesTest, ThePagesProcessThatEndsAroundANavigationLosesNoDocument) {
  OpenPage(u"pubmenu.html"_s);
  for (unsigned long milliseconds = 0; milliseconds < 12; ++milliseconds) {
    const QString page = u"page%1.html"_s.arg(milliseconds);
    WritePage(page, {});
    KillAll({DescendantsOf(QCoreApplication::applicationPid()).last()});
    QThread::msleep(milliseconds);
    window.Navigate(AddressOf(page));
    WaitUntil(u"the page"_s, [&] { return reports.titles.last() == page; });
  }
  EXPECT_FALSE(reports.gone);
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

TEST_F(BrowserPagesTest, ALinkToANewWindowOpensInThisOne) {
  WritePage(u"link.html"_s, {}, "<a target='_blank' href='pubs/p501.html'>Click</a>");
  OpenPage(u"link.html"_s);
  browser.WaitForPageColour(kGreen);
  ClickIntoPage();
  WaitUntil(u"the page"_s, [this] { return reports.titles.last() == u"Page pubs/p501.html"_s; });
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

TEST_F(BrowserPagesTest, AWebThatDoesNotAnswerIsGivenUp) {
  WritePage(u"noanswer.html"_s, {});
  server.Ignore(u"/silent.pdf"_s);
  OpenPage(u"pubmenu.html"_s);
  window.Navigate(QUrl(server.Address(u"/silent.pdf"_s)));
  WaitUntil(u"a visitor"_s, [this] { return server.Requests().contains(u"/silent.pdf"_s); });
  WaitUntil(u"the end of patience"_s,
            [this] { return reports.titles.last() == u"noanswer.html"_s; });
  browser.WaitForPageColour(kGreen);
}

}  // namespace
}  // namespace tessaly::test
