#ifndef TESSALY_REFERENCE_BROWSER_WINDOW_H_
#define TESSALY_REFERENCE_BROWSER_WINDOW_H_

#include <QString>
#include <QUrl>

namespace tessaly {

// What the reference browser's window reports. None of it comes from within a call of
// BrowserWindow.
class BrowserEvents {
public:
  BrowserEvents() = default;
  BrowserEvents(const BrowserEvents&) = delete;
  BrowserEvents& operator=(const BrowserEvents&) = delete;
  virtual ~BrowserEvents() = default;

  virtual void cmdPubList_Click() = 0;
  // The Close button, Escape or the window's frame.
  virtual void cmdClose_Click() = 0;
  // `locationName` is the title of the page.
  virtual void timTimer_Timer(bool busy, const QString& locationName) = 0;
  virtual void NavigateComplete(const QString& locationName) = 0;
  // `httpStatus` of an answer from the web, else 0.
  virtual void DocumentComplete(const QString& locationName, const QUrl& address,
                                int httpStatus) = 0;
  // The window is gone without having been told to be. `pageLost` says that it could not show its
  // page any more, otherwise something ended it.
  virtual void WindowGone(bool pageLost) = 0;
};

// The reference browser's window as the logic sees it. It shows what it is told and reports what
// becomes of it; it decides nothing.
class BrowserWindow {
public:
  BrowserWindow() = default;
  BrowserWindow(const BrowserWindow&) = delete;
  BrowserWindow& operator=(const BrowserWindow&) = delete;
  virtual ~BrowserWindow() = default;

  virtual void SetEvents(BrowserEvents& events) = 0;

  [[nodiscard]] virtual bool IsLoaded() const = 0;
  // Makes the window; it is not to be seen yet. Raises 53, 70 or 429 when it cannot be made.
  virtual void Load() = 0;
  virtual void Unload() = 0;
  virtual void Show() = 0;

  virtual void Navigate(const QUrl& address) = 0;
  virtual void SetCaption(const QString& caption) = 0;
  virtual void SetListCaption(const QString& caption) = 0;
  virtual void ShowListButton(bool visible) = 0;
  // The busy poll: while enabled, timTimer_Timer is reported several times a second.
  virtual void EnableTimer(bool enabled) = 0;
};

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_BROWSER_WINDOW_H_
