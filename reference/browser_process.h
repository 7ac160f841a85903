#ifndef TESSALY_REFERENCE_BROWSER_PROCESS_H_
#define TESSALY_REFERENCE_BROWSER_PROCESS_H_

#include <QObject>
#include <QString>
#include <QStringList>

#include "reference/browser_protocol.h"
#include "reference/browser_window.h"

class QProcess;

namespace tessaly {

class ErrorBoundary;

// The reference browser's window as a process of its own, which begins with Load and ends with
// Unload. The two pipes that it is born with are the only way to it. What it reports is handled
// within the error boundary.
class BrowserProcess : public QObject, public BrowserWindow {
  Q_OBJECT

public:
  // `program` is the path of tessaly-browser.
  BrowserProcess(const QString& program, ErrorBoundary& errors);
  // Ends the window's process and waits until it is gone.
  ~BrowserProcess() override;

  void SetEvents(BrowserEvents& events) override { events_ = &events; }

  [[nodiscard]] bool IsLoaded() const override { return process_ != nullptr; }
  void Load() override;
  void Unload() override;
  void Show() override;
  void Navigate(const QUrl& address) override;
  void SetCaption(const QString& caption) override;
  void SetListCaption(const QString& caption) override;
  void ShowListButton(bool visible) override;
  void EnableTimer(bool enabled) override;

private:
  void Send(const QStringList& message);
  void ReadReports();
  void Report(const QStringList& message);
  void ReportEnd();

  QString program_;
  ErrorBoundary& errors_;
  BrowserEvents* events_ = nullptr;
  QProcess* process_ = nullptr;  // those that were told to end stay children until they have
  MessageReader reports_;
};

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_BROWSER_PROCESS_H_
