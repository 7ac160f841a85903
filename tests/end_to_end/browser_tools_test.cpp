// What the reference browser's window does for its reader beside showing pages: finding a text and
// printing.

#include "tests/end_to_end/browser_pages_fixture.h"
#include "tests/end_to_end/print_queue.h"
#include "tests/end_to_end/printed_pages.h"

namespace tessaly::test {
namespace {

class BrowserToolsTest : public BrowserPagesTest {
protected:
  void OpenPageOfThreeRates() {
    WritePage(u"rates.html"_s, {}, "<p>One rate.</p><p>Another rate.</p><p>No third.</p>");
    OpenPage(u"rates.html"_s);
  }
  void WaitForFound(const QString& places) {
    WaitUntil(u"what was found: "_s + places,
              [&] { return browser.Get(u"lblFound"_s, u"text"_s) == places; });
  }
  void Use(const PrintQueue& queue) { SetVariable("CUPS_SERVER", queue.Server().toUtf8()); }
  // The button can be pressed again when the printer has the page.
  void WaitUntilPrinted() {
    WaitUntil(u"the end of printing"_s,
              [this] { return browser.Get(u"cmdPrint"_s, u"enabled"_s) == u"true"_s; });
  }
  void ExpectPrinterErrorAndGoOn(const QString& reason) {
    WaitUntil(u"a message"_s, [this] { return browser.HasBox(); });
    const QString message = browser.BoxText();
    EXPECT_TRUE(message.startsWith(u"Run-time error '482':\n\nPrinter error\n"_s))
        << message.toStdString();
    EXPECT_TRUE(message.contains(u"While printing the page."_s)) << message.toStdString();
    EXPECT_TRUE(message.contains(reason)) << message.toStdString();
    browser.AnswerBox(u"OK"_s);
    WaitUntilPrinted();
    Navigate(AddressOf(u"pubmenu.html"_s));
    EXPECT_EQ(reports.titles.last(), u"Page pubmenu.html"_s);
  }
};

TEST_F(BrowserToolsTest, ATextIsFoundWhileItIsTypedAndFromPlaceToPlace) {
  OpenPageOfThreeRates();
  EXPECT_FALSE(browser.IsVisible(u"fraFind"_s));
  browser.Press(u"Ctrl+F"_s);
  EXPECT_TRUE(browser.IsVisible(u"fraFind"_s));
  browser.Press(u"R, A, T, E"_s);
  EXPECT_EQ(browser.Get(u"txtFind"_s, u"text"_s), u"rate"_s);
  WaitForFound(u"1 of 2"_s);
  browser.Press(u"Return"_s);
  WaitForFound(u"2 of 2"_s);
  browser.Press(u"F3"_s);
  WaitForFound(u"1 of 2"_s);
  browser.Press(u"Shift+Return"_s);
  WaitForFound(u"2 of 2"_s);
  browser.Click(u"cmdFindPrevious"_s);
  WaitForFound(u"1 of 2"_s);
  browser.Press(u"S"_s);
  WaitForFound(u"Not found"_s);
}

TEST_F(BrowserToolsTest, TheTextIsLookedForOnTheNextPageToo) {
  WritePage(u"next.html"_s, {}, "<p>The rate.</p>");
  OpenPageOfThreeRates();
  browser.Press(u"Ctrl+F"_s);
  browser.Press(u"R, A, T, E"_s);
  WaitForFound(u"1 of 2"_s);
  Navigate(AddressOf(u"next.html"_s));
  WaitForFound(u"1 of 1"_s);
}

TEST_F(BrowserToolsTest, TheKeyToFindAgainBringsTheBarBack) {
  OpenPageOfThreeRates();
  browser.Press(u"F3"_s);
  EXPECT_TRUE(browser.IsVisible(u"fraFind"_s));
  browser.Press(u"R, A, T, E"_s);
  WaitForFound(u"1 of 2"_s);
  browser.Press(u"Esc"_s);
  EXPECT_FALSE(browser.IsVisible(u"fraFind"_s));
  browser.Press(u"F3"_s);
  EXPECT_TRUE(browser.IsVisible(u"fraFind"_s));
  EXPECT_EQ(browser.Get(u"txtFind"_s, u"text"_s), u"rate"_s);
  // It goes on from the place where it was left.
  WaitForFound(u"2 of 2"_s);
}

TEST_F(BrowserToolsTest, EscapeClosesTheFindBarFirstAndThenTheWindow) {
  OpenPageOfThreeRates();
  const QString wholePage = browser.Get(u"brwWebBrowser"_s, u"geometry"_s);
  browser.Click(u"cmdFind"_s);
  EXPECT_NE(browser.Get(u"brwWebBrowser"_s, u"geometry"_s), wholePage);
  browser.Press(u"Esc"_s);
  EXPECT_FALSE(browser.IsVisible(u"fraFind"_s));
  EXPECT_EQ(browser.Get(u"brwWebBrowser"_s, u"geometry"_s), wholePage);
  EXPECT_EQ(reports.closeClicks, 0);
  browser.SendPress(u"Esc"_s);
  WaitUntil(u"the window's end"_s, [this] { return reports.closeClicks == 1; });
}

TEST_F(BrowserToolsTest, APageIsPrintedOnThePrintersPaper) {
  PrintQueue queue(PrintQueue::PaperSize::A4);
  SKIP_WITHOUT_QUEUE(queue);
  Use(queue);
  OpenPageOfThreeRates();
  browser.Press(u"Ctrl+P"_s);
  WaitUntilPrinted();
  const std::vector<PrintedPage> pages = ReadPages(queue.TakePrinted());
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_EQ(pages.front().Text(), u"One rate. Another rate. No third."_s);
  EXPECT_NEAR(pages.front().size.width(), 595, 1);
  EXPECT_NEAR(pages.front().size.height(), 842, 1);
  EXPECT_GE(pages.front().Find(u"One"_s).left, 50);
}

TEST_F(BrowserToolsTest, ADocumentIsPrintedAsItIs) {
  PrintQueue queue;
  SKIP_WITHOUT_QUEUE(queue);
  Use(queue);
  WriteBytes(PathOf(u"pubs/red.pdf"_s), RedDocument());
  server.Serve(u"/red.pdf"_s, "application/pdf", RedDocument());
  const QList<QUrl> places{AddressOf(u"pubs/red.pdf"_s), QUrl(server.Address(u"/red.pdf"_s))};
  OpenPage(u"pubmenu.html"_s);
  for (const QUrl& place : places) {
    window.Navigate(place);
    browser.WaitForPageColour(kRed);
    browser.Press(u"Ctrl+P"_s);
    WaitUntilPrinted();
    const std::vector<PrintedPage> pages = ReadPages(queue.TakePrinted());
    ASSERT_EQ(pages.size(), 1U) << place.toString().toStdString();
    EXPECT_EQ(pages.front().Text(), u"Form 23"_s);
  }
}

TEST_F(BrowserToolsTest, ADocumentThatTheWebNoLongerHasIsNotPrinted) {
  SetVariable("CUPS_SERVER", "127.0.0.1:9");
  server.Serve(u"/red.pdf"_s, "application/pdf", RedDocument());
  Open(QUrl(server.Address(u"/red.pdf"_s)));
  browser.WaitForPageColour(kRed);
  server.Serve(u"/red.pdf"_s, "text/html", "Moved");
  browser.Press(u"Ctrl+P"_s);
  ExpectPrinterErrorAndGoOn(u"The page cannot be made into a document."_s);
}

TEST_F(BrowserToolsTest, ADocumentWhoseServerIsGoneIsNotPrinted) {
  SetVariable("CUPS_SERVER", "127.0.0.1:9");
  server.Serve(u"/red.pdf"_s, "application/pdf", RedDocument());
  Open(QUrl(server.Address(u"/red.pdf"_s)));
  browser.WaitForPageColour(kRed);
  server.Close();
  browser.Press(u"Ctrl+P"_s);
  ExpectPrinterErrorAndGoOn(u"The page cannot be made into a document."_s);
}

TEST_F(BrowserToolsTest, WithoutAPrinterTheReasonIsToldAndTheBrowserGoesOn) {
  PrintQueue queue;
  SKIP_WITHOUT_QUEUE(queue);
  Use(queue);
  queue.Remove();
  OpenPageOfThreeRates();
  browser.Click(u"cmdPrint"_s);
  ExpectPrinterErrorAndGoOn(u"There is no default printer."_s);
}

TEST_F(BrowserToolsTest, WithoutAPrintingServiceTheReasonIsToldAndTheBrowserGoesOn) {
  SetVariable("CUPS_SERVER", "127.0.0.1:9");
  OpenPageOfThreeRates();
  browser.Click(u"cmdPrint"_s);
  ExpectPrinterErrorAndGoOn({});
}

}  // namespace
}  // namespace tessaly::test
