#include "tests/end_to_end/program_driver.h"

#include <signal.h>
#include <sys/prctl.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>

using namespace Qt::StringLiterals;

namespace tessaly::test {

ProgramDriver::ProgramDriver(const Installation& installation)
    : installation_(installation),
      agent_([this] { return IsRunning(); }, [this] { return Errors(); }) {
  process_.setStandardOutputFile(folder_.filePath(u"output"_s));
  process_.setStandardErrorFile(folder_.filePath(u"errors"_s));
  // A test that is cut off leaves no program behind.
  process_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

ProgramDriver::~ProgramDriver() {
  if (IsRunning()) {
    Kill();
  }
}

void ProgramDriver::Start() {
  agent_.Disconnect();
  QFile::remove(SocketPath());
  QProcessEnvironment environment = installation_.Environment();
  environment.insert(u"TESSALY_AGENT_SOCKET"_s, SocketPath());
  process_.setProcessEnvironment(environment);
  process_.setWorkingDirectory(installation_.WorkingFolder());
  process_.setProgram(installation_.ProgramPath());
  process_.start();
  if (!process_.waitForStarted(kPatienceMilliseconds)) {
    Fail(u"cannot start "_s + process_.program());
  }
  agent_.Connect(SocketPath());
}

void ProgramDriver::StartToMainWindow() {
  Start();
  WaitForWindow(u"frmMain"_s);
}

void ProgramDriver::Kill() {
  process_.kill();
  process_.waitForFinished(kPatienceMilliseconds);
}

bool ProgramDriver::IsRunning() {
  return process_.state() != QProcess::NotRunning && !process_.waitForFinished(0);
}

int ProgramDriver::WaitForExit() {
  if (IsRunning() && !process_.waitForFinished(kPatienceMilliseconds)) {
    Fail(u"the program does not end"_s);
  }
  return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
}

QString ProgramDriver::Errors() const {
  QFile errors(folder_.filePath(u"errors"_s));
  return errors.open(QIODevice::ReadOnly) ? QString::fromUtf8(errors.readAll()) : QString();
}

void ProgramDriver::ClickItem(const QString& list, int row) {
  Ask({u"click-item"_s, list, QString::number(row)});
}

void ProgramDriver::Resize(int width, int height) {
  Ask({u"resize"_s, u"frmMain"_s, QString::number(width), QString::number(height)});
}

void ProgramDriver::Move(int left, int top) {
  Ask({u"move"_s, u"frmMain"_s, QString::number(left), QString::number(top)});
}

QString ProgramDriver::Get(const QString& name, const QString& property) {
  return Ask({u"get"_s, name, property}).value(0);
}

QString ProgramDriver::PaneText(const QString& name) {
  return Get(name, u"plainText"_s);
}

QString ProgramDriver::Panel(int number) {
  return Text(u"sbrStatusBar.%1"_s.arg(number));
}

bool ProgramDriver::IsVisible(const QString& name) {
  return Get(name, u"visible"_s) == u"true"_s;
}

bool ProgramDriver::IsEnabled(const QString& name) {
  return Get(name, u"enabled"_s) == u"true"_s;
}

QString ProgramDriver::Background(const QString& name) {
  return Get(name, u"background"_s);
}

QString ProgramDriver::Geometry(const QString& name) {
  return Get(name, u"geometry"_s);
}

QString ProgramDriver::Placement() {
  return Get(u"frmMain"_s, u"placement"_s);
}

QStringList ProgramDriver::Actions(const QString& name) {
  return Ask({u"actions"_s, name});
}

QStringList ProgramDriver::Items(const QString& list) {
  return Ask({u"items"_s, list});
}

void ProgramDriver::SavePicture(const QString& name, const QString& path) {
  Ask({u"save"_s, name, path});
}

bool ProgramDriver::HasBox() {
  return Windows().contains(u"QMessageBox"_s);
}

BoxContent ProgramDriver::WaitForBox() {
  WaitUntil(u"a message box"_s, [this] { return HasBox(); });
  const QStringList fields = Ask({u"box"_s});
  return {fields.value(0), fields.value(1), fields.value(2), fields.mid(3)};
}

void ProgramDriver::WaitFor(const QString& name, const QString& property, const QString& value) {
  QString last;
  WaitUntil(u"%1 %2 \"%3\""_s.arg(name, property, value), [&] {
    last = Get(name, property);
    return last == value;
  });
}

void ProgramDriver::WaitForVisible(const QString& name) {
  WaitFor(name, u"visible"_s, u"true"_s);
}

void ProgramDriver::WaitForWindow(const QString& name) {
  WaitUntil(u"the window "_s + name, [this, name] { return Windows().contains(name); });
}

void ProgramDriver::WaitUntil(const QString& what, const std::function<bool()>& holds) {
  const QDeadlineTimer deadline(kPatienceMilliseconds);
  while (!holds()) {
    if (deadline.hasExpired()) {
      Fail(u"waited in vain for %1; windows: %2; errors: %3"_s.arg(what, Windows().join(u", "_s),
                                                                   Errors()));
    }
    QThread::msleep(kPollMilliseconds);
  }
}

QString ProgramDriver::SocketPath() const {
  return folder_.filePath(u"agent"_s);
}

}  // namespace tessaly::test
