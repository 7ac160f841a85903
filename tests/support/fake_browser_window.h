#ifndef TESSALY_TESTS_SUPPORT_FAKE_BROWSER_WINDOW_H_
#define TESSALY_TESTS_SUPPORT_FAKE_BROWSER_WINDOW_H_

#include <QStringList>
#include <optional>

#include "reference/browser_window.h"
#include "store/runtime_error.h"

namespace tessaly::test {

// The reference browser's window as it would look, and what it was told, in order.
class FakeBrowserWindow : public BrowserWindow {
public:
  void SetEvents(BrowserEvents& browserEvents) override { events = &browserEvents; }

  bool IsLoaded() const override { return loaded; }
  void Load() override {
    if (loadError) {
      throw RuntimeError(*loadError, QStringLiteral("tessaly-browser"));
    }
    // A window that is made anew is as it was designed.
    loaded = true;
    visible = false;
    address = {};
    caption.clear();
    listCaption = QStringLiteral("Pub  List");
    listVisible = true;
    timerEnabled = false;
    told.append(QStringLiteral("load"));
  }
  void Unload() override {
    loaded = false;
    visible = false;
    told.append(QStringLiteral("unload"));
  }
  void Show() override {
    visible = true;
    told.append(QStringLiteral("show"));
  }
  void Navigate(const QUrl& target) override {
    address = target;
    told.append(QStringLiteral("navigate ") + target.toString());
  }
  void SetCaption(const QString& text) override { caption = text; }
  void SetListCaption(const QString& text) override { listCaption = text; }
  void ShowListButton(bool show) override { listVisible = show; }
  void EnableTimer(bool enabled) override { timerEnabled = enabled; }

  // The window goes without having been told to.
  void Break(bool pageLost) {
    loaded = false;
    visible = false;
    events->WindowGone(pageLost);
  }

  BrowserEvents* events = nullptr;
  bool loaded = false;
  bool visible = false;
  QUrl address;
  QString caption;
  QString listCaption;
  bool listVisible = true;
  bool timerEnabled = false;
  std::optional<ErrorNumber> loadError;
  QStringList told;
};

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_SUPPORT_FAKE_BROWSER_WINDOW_H_
