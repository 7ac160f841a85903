#ifndef TESSALY_REFERENCE_REFERENCE_BROWSER_H_
#define TESSALY_REFERENCE_REFERENCE_BROWSER_H_

#include <QString>
#include <QUrl>
#include <cstdint>

#include "reference/browser_window.h"

namespace tessaly {

struct ProgramState;

// The reference browser's commands and what follows from its window's events. The shared state says
// what is to be shown, the window shows it. The commands raise 13 or 6 for a setting PubSource that
// is no number, and what BrowserWindow::Load raises.
class ReferenceBrowser : public BrowserEvents {
public:
  ReferenceBrowser(ProgramState& state, BrowserWindow& window);

  void OpenReferences();
  void OpenKovrins();
  void OpenDefinitions();
  // The publication of the research link.
  void OpenResearch();
  // An application form, kForm2587 or kForm23.
  void OpenForm(std::int16_t formCode);

  // Goes to the page of the mode; the list button shows in every mode but that of the definitions.
  void NavigateReferenceBrowser();
  // Goes to the application form of the form code.
  void NavigateApplicationForm();

  void cmdPubList_Click() override;
  void cmdClose_Click() override;
  void timTimer_Timer(bool busy, const QString& locationName) override;
  void NavigateComplete(const QString& locationName) override;
  void DocumentComplete(const QString& locationName, const QUrl& address, int httpStatus) override;
  // Brings the window up again when it went while a page was being opened, once; raises 429 when it
  // goes again.
  void WindowGone(bool pageLost) override;

private:
  // What the window shows, to be shown again should it be lost.
  struct Shown {
    QUrl address;
    QString listCaption;
    bool listVisible = true;
  };

  void Open();
  // The window's load: it begins with the page of the mode.
  void Form_Load();
  // A window that was closed is loaded anew by whoever refers to it.
  void EnsureLoaded();
  void Navigate(const QUrl& address);
  void ShowWithList(const QString& listCaption);
  void ShowAgain();
  void ResetState();

  ProgramState& state_;
  BrowserWindow& window_;
  Shown shown_;
  bool awaitingPage_ = false;  // the page that was asked for has not been shown
  bool broughtBack_ = false;   // since the last page that was shown
};

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_REFERENCE_BROWSER_H_
