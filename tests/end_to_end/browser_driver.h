#ifndef TESSALY_TESTS_END_TO_END_BROWSER_DRIVER_H_
#define TESSALY_TESTS_END_TO_END_BROWSER_DRIVER_H_

#include <QString>
#include <QStringList>
#include <functional>

#include "tests/end_to_end/agent_client.h"

namespace tessaly::test {

// Sees and uses the reference browser's window in its own process. Failures raise
// std::runtime_error.
class BrowserDriver {
public:
  // `programSocket` of the agent of the program that starts the browser.
  explicit BrowserDriver(QString programSocket);

  // Waits for the window to be shown, in whatever process has it by now.
  void Connect();

  void Click(const QString& name) { agent_.Ask({QStringLiteral("click"), name}); }
  void Press(const QString& keys) { agent_.Ask({QStringLiteral("press"), keys}); }
  // These end the window, which may be before they are answered.
  void SendPress(const QString& keys) { agent_.Send({QStringLiteral("press"), keys}); }
  void SendClick(const QString& name) { agent_.Send({QStringLiteral("click"), name}); }
  void SendClose();
  void Resize(int width, int height);

  [[nodiscard]] QString Get(const QString& name, const QString& property);
  [[nodiscard]] QString Caption();
  [[nodiscard]] QString Address();
  [[nodiscard]] bool IsVisible(const QString& name);
  [[nodiscard]] bool HasBox();
  [[nodiscard]] QString BoxText();
  void AnswerBox(const QString& button);
  void SavePicture(const QString& path);
  // The colour of the page, near its right edge.
  [[nodiscard]] QString PageColour();

  void WaitForCaption(const QString& caption);
  void WaitForPageColour(const QString& colour);

private:
  void WaitUntil(const QString& what, const std::function<QString()>& value,
                 const QString& expected);

  QString socketPath_;
  AgentClient agent_;
};

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_END_TO_END_BROWSER_DRIVER_H_
