#include "reference/browser_process.h"

#include <QFileInfo>
#include <QProcess>
#include <QTimer>

#include "app/error_boundary.h"
#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

// A process that was told to end and does not is ended.
constexpr int kPatienceMilliseconds = 2000;

ErrorNumber WhyNotStarted(const QString& program) {
  const QFileInfo file(program);
  if (!file.exists()) {
    return ErrorNumber::FileNotFound;
  }
  return file.isExecutable() ? ErrorNumber::CannotCreateObject : ErrorNumber::PermissionDenied;
}

}  // namespace

BrowserProcess::BrowserProcess(const QString& program, ErrorBoundary& errors)
    : program_(program), errors_(errors) {}

BrowserProcess::~BrowserProcess() {
  Unload();
  for (QProcess* process : findChildren<QProcess*>()) {
    process->disconnect();
    if (!process->waitForFinished(kPatienceMilliseconds)) {
      process->kill();
      process->waitForFinished();
    }
  }
}

void BrowserProcess::Load() {
  if (process_ != nullptr) {
    return;
  }
  auto* process = new QProcess(this);
  process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process->start(program_, QStringList());
  if (!process->waitForStarted()) {
    delete process;
    throw RuntimeError(WhyNotStarted(program_), program_);
  }
  process_ = process;
  reports_ = {};
  connect(process, &QProcess::readyReadStandardOutput, this, [this] { ReadReports(); });
  connect(process, &QProcess::finished, this, [this] { ReportEnd(); });
}

void BrowserProcess::Unload() {
  if (process_ == nullptr) {
    return;
  }
  QProcess* process = process_;
  process_ = nullptr;
  process->disconnect(this);
  connect(process, &QProcess::finished, process, &QObject::deleteLater);
  QTimer::singleShot(kPatienceMilliseconds, process, &QProcess::kill);
  process->closeWriteChannel();
}

void BrowserProcess::Show() {
  Send({browser_command::kShow});
}

void BrowserProcess::Navigate(const QUrl& address) {
  Send({browser_command::kNavigate, QString::fromLatin1(address.toEncoded())});
}

void BrowserProcess::SetCaption(const QString& caption) {
  Send({browser_command::kCaption, caption});
}

void BrowserProcess::SetListCaption(const QString& caption) {
  Send({browser_command::kListCaption, caption});
}

void BrowserProcess::ShowListButton(bool visible) {
  Send({browser_command::kListVisible, FlagText(visible)});
}

void BrowserProcess::EnableTimer(bool enabled) {
  Send({browser_command::kTimer, FlagText(enabled)});
}

void BrowserProcess::Send(const QStringList& message) {
  if (process_ != nullptr) {
    process_->write(EncodeMessage(message));
  }
}

void BrowserProcess::ReadReports() {
  const QProcess* reporting = process_;
  for (const QStringList& message : reports_.Add(process_->readAllStandardOutput())) {
    // An earlier report may have closed the window.
    if (process_ == reporting) {
      Report(message);
    }
  }
}

void BrowserProcess::Report(const QStringList& message) {
  const QString& name = message.first();
  const QString title = message.value(1);
  errors_.Run(u"following the reference browser"_s, [&] {
    if (name == browser_report::kListClicked) {
      events_->cmdPubList_Click();
    } else if (name == browser_report::kCloseClicked) {
      events_->cmdClose_Click();
    } else if (name == browser_report::kTick) {
      events_->timTimer_Timer(IsFlagSet(message.value(2)), title);
    } else if (name == browser_report::kNavigated) {
      events_->NavigateComplete(title);
    } else if (name == browser_report::kDocumentShown) {
      events_->DocumentComplete(title, QUrl::fromEncoded(message.value(2).toLatin1()),
                                message.value(3).toInt());
    }
  });
}

void BrowserProcess::ReportEnd() {
  const bool pageLost =
      process_->exitStatus() == QProcess::NormalExit && process_->exitCode() == kPageLostExitCode;
  process_->disconnect(this);
  process_->deleteLater();
  process_ = nullptr;
  errors_.Run(u"showing the reference browser"_s, [&] { events_->WindowGone(pageLost); });
}

}  // namespace tessaly
