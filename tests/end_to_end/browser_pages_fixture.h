#ifndef TESSALY_TESTS_END_TO_END_BROWSER_PAGES_FIXTURE_H_
#define TESSALY_TESTS_END_TO_END_BROWSER_PAGES_FIXTURE_H_

#include <gtest/gtest.h>

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

namespace tessaly::test {

using namespace Qt::StringLiterals;

inline constexpr auto kGreen = "#00ff00"_L1;
inline constexpr auto kRed = "#ff0000"_L1;

// A document of one page, red all over, that reads "Form 23".
inline QByteArray RedDocument() {
  const QByteArray content =
      "1 0 0 rg 0 0 2000 2000 re f 0 g BT /F 40 Tf 900 999 Td (Form 23) Tj ET";
  const QByteArrayList objects{
      "<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Kids[3 0 R]/Count 1>>",
      "<</Type/Page/Parent 2 0 R/MediaBox[0 0 2000 2000]/Contents 4 0 R/Resources"
      "<</Font<</F<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>>>>>>>",
      "<</Length " + QByteArray::number(content.size()) + ">>stream\n" + content + "\nendstream"};
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
inline QByteArray GreenPage(const QByteArray& title, const QByteArray& head,
                            const QByteArray& body) {
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

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_END_TO_END_BROWSER_PAGES_FIXTURE_H_
