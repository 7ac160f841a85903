#include "tests/end_to_end/browser_driver.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>
#include <utility>

using namespace Qt::StringLiterals;

namespace tessaly::test {

BrowserDriver::BrowserDriver(QString programSocket)
    : socketPath_(std::move(programSocket) + u".tessaly-browser"_s),
      agent_([] { return true; }, [] { return u"none known"_s; }) {}

void BrowserDriver::Connect() {
  agent_.Disconnect();
  agent_.Connect(socketPath_);
  WaitUntil(
      u"window"_s, [this] { return Get(u"frmBrowser"_s, u"visible"_s); }, u"true"_s);
}

void BrowserDriver::SendClose() {
  agent_.Send({u"close"_s, u"frmBrowser"_s});
}

void BrowserDriver::Resize(int width, int height) {
  agent_.Ask({u"resize"_s, u"frmBrowser"_s, QString::number(width), QString::number(height)});
}

QString BrowserDriver::Get(const QString& name, const QString& property) {
  return agent_.Ask({u"get"_s, name, property}).value(0);
}

QString BrowserDriver::Caption() {
  return Get(u"frmBrowser"_s, u"windowTitle"_s);
}

QString BrowserDriver::Address() {
  return Get(u"brwWebBrowser"_s, u"url"_s);
}

bool BrowserDriver::IsVisible(const QString& name) {
  return Get(name, u"visible"_s) == u"true"_s;
}

bool BrowserDriver::HasBox() {
  return agent_.Ask({u"windows"_s}).contains(u"QMessageBox"_s);
}

QString BrowserDriver::BoxText() {
  return agent_.Ask({u"box"_s}).value(1);
}

void BrowserDriver::AnswerBox(const QString& button) {
  agent_.Ask({u"answer"_s, button});
}

void BrowserDriver::SavePicture(const QString& path) {
  agent_.Ask({u"save"_s, u"frmBrowser"_s, path});
}

QString BrowserDriver::PageColour() {
  return Get(u"brwWebBrowser"_s, u"background"_s);
}

void BrowserDriver::WaitForCaption(const QString& caption) {
  WaitUntil(
      u"caption"_s, [this] { return Caption(); }, caption);
}

void BrowserDriver::WaitForPageColour(const QString& colour) {
  WaitUntil(
      u"page's colour"_s, [this] { return PageColour(); }, colour);
}

void BrowserDriver::WaitUntil(const QString& what, const std::function<QString()>& value,
                              const QString& expected) {
  const QDeadlineTimer deadline(kPatienceMilliseconds);
  for (QString last = value(); last != expected; last = value()) {
    if (deadline.hasExpired()) {
      Fail(u"the browser's %1 is \"%2\" and not \"%3\""_s.arg(what, last, expected));
    }
    // The other end may be this process.
    QCoreApplication::processEvents();
    QThread::msleep(kPollMilliseconds);
  }
}

}  // namespace tessaly::test
