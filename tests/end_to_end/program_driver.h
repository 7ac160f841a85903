#ifndef TESSALY_TESTS_END_TO_END_PROGRAM_DRIVER_H_
#define TESSALY_TESTS_END_TO_END_PROGRAM_DRIVER_H_

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <functional>

#include "tests/end_to_end/agent_client.h"
#include "tests/end_to_end/installation.h"

namespace tessaly::test {

struct BoxContent {
  QString title;
  QString text;
  QString icon;  // of QMessageBox::Icon
  QStringList buttons;
};

// Runs the program as a process, without a display, and uses it as a person does: by clicks, keys
// and what can be seen. Every act returns when the program has come to rest after it. What the
// program refuses or does not come to within 30 seconds raises std::runtime_error.
class ProgramDriver {
public:
  explicit ProgramDriver(const Installation& installation);
  ProgramDriver(const ProgramDriver&) = delete;
  ProgramDriver& operator=(const ProgramDriver&) = delete;
  // Kills the program if it still runs.
  ~ProgramDriver();

  // Starts the process; it has no window to speak of yet.
  void Start();
  // Starts it and waits through the splash screen.
  void StartToMainWindow();
  // SIGKILL: the program has no chance to do anything.
  void Kill();
  [[nodiscard]] bool IsRunning();
  // Waits for the end and returns the exit code, -1 where it was no orderly one.
  int WaitForExit();
  [[nodiscard]] qint64 ProcessId() const { return process_.processId(); }
  // Where the program's agent listens.
  [[nodiscard]] QString SocketPath() const;
  // What the process has written to its standard error.
  [[nodiscard]] QString Errors() const;

  void Click(const QString& name) { Ask({QStringLiteral("click"), name}); }
  void ClickItem(const QString& list, int row);
  void Press(const QString& keys) { Ask({QStringLiteral("press"), keys}); }
  void Trigger(const QString& action) { Ask({QStringLiteral("trigger"), action}); }
  void Close(const QString& window) { Ask({QStringLiteral("close"), window}); }
  void Resize(int width, int height);
  void Move(int left, int top);
  void Minimize() { Ask({QStringLiteral("minimize"), QStringLiteral("frmMain")}); }
  void Maximize() { Ask({QStringLiteral("maximize"), QStringLiteral("frmMain")}); }
  // Starts an act, and leaves the program to it: what is asked meanwhile is answered when the work
  // lets the windows have their turn.
  void Start(const QStringList& act) { Ask(QStringList{QStringLiteral("later")} + act); }
  // Sends an act and does not wait for anything.
  void Send(const QStringList& request) { agent_.Send(request); }

  [[nodiscard]] QString Get(const QString& name, const QString& property);
  [[nodiscard]] QString Text(const QString& name) { return Get(name, QStringLiteral("text")); }
  [[nodiscard]] QString PaneText(const QString& name);
  [[nodiscard]] QString Panel(int number);
  [[nodiscard]] bool IsVisible(const QString& name);
  [[nodiscard]] bool IsEnabled(const QString& name);
  // The colour that a control is painted with, as "#rrggbb".
  [[nodiscard]] QString Background(const QString& name);
  // "left,top,width,height" in pixels from the control's parent.
  [[nodiscard]] QString Geometry(const QString& name);
  // The same of the main window on the screen, the size without its frame.
  [[nodiscard]] QString Placement();
  [[nodiscard]] QStringList Windows() { return Ask({QStringLiteral("windows")}); }
  [[nodiscard]] QStringList Menus() { return Ask({QStringLiteral("menus")}); }
  [[nodiscard]] QStringList Actions(const QString& name);
  [[nodiscard]] QStringList Items(const QString& list);
  void SavePicture(const QString& name, const QString& path);

  [[nodiscard]] bool HasBox();
  [[nodiscard]] BoxContent WaitForBox();
  void AnswerBox(const QString& button) { Ask({QStringLiteral("answer"), button}); }
  void WaitFor(const QString& name, const QString& property, const QString& value);
  void WaitForVisible(const QString& name);
  void WaitForWindow(const QString& name);
  // Polls until the condition holds; `what` says in the failure what was waited for.
  void WaitUntil(const QString& what, const std::function<bool()>& holds);

private:
  QStringList Ask(const QStringList& request) { return agent_.Ask(request); }

  const Installation& installation_;
  QTemporaryDir folder_;
  QProcess process_;
  AgentClient agent_;
};

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_END_TO_END_PROGRAM_DRIVER_H_
