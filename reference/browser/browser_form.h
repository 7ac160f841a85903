#ifndef TESSALY_REFERENCE_BROWSER_BROWSER_FORM_H_
#define TESSALY_REFERENCE_BROWSER_BROWSER_FORM_H_

#include <QKeySequence>
#include <QStringList>
#include <QWebEngineProfile>
#include <QWidget>

#include "reference/browser/page_printing.h"
#include "reference/browser/reference_page.h"
#include "reference/browser/request_guard.h"

class QAction;
class QIcon;
class QProgressBar;
class QPushButton;
class QTimer;
class QToolButton;
class QWebEngineLoadingInfo;
class QWebEngineView;

namespace tessaly {

class CommandChannel;
class ElidedLabel;
class FindBar;

// The reference browser's window. It does what it is commanded and reports what becomes of it;
// which page comes when, and what the caption says, is the program's to decide.
class frmBrowser : public QWidget {
  Q_OBJECT

public:
  frmBrowser(const QString& programFolder, CommandChannel& channel);

  // Carries out a message of browser_command; one that is none of them is passed over.
  void Obey(const QStringList& command);

Q_SIGNALS:
  // No page can be shown any more.
  void PageLost();

protected:
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

private:
  void BuildPage();
  void BuildBar();
  // A button of the bar; with keys its action also stands in the page's menu.
  QToolButton* NewTool(const QString& name, QAction* action, const QIcon& icon,
                       const QKeySequence& keys = {});
  void BuildFindBar();
  void BuildButtons();
  void ConnectPage();
  void AddShortcuts();
  void ChooseSize();
  void Arrange();

  void Navigate(const QUrl& address);
  void ShowInFront();
  void ShowPlace();
  void Zoom(double factor);
  void ShowFindBar(bool visible);
  void Find(const QString& text, bool backward);
  // Shows the bar first where it is hidden.
  void FindAgain(void (FindBar::*ask)());
  // The bar to find a text goes first, then the window.
  void Escape();
  // The title, or what the browser takes for one.
  [[nodiscard]] QString LocationName() const;

  void cmdPubList_Click();
  void cmdClose_Click();
  void timTimer_Timer();
  void brwWebBrowser_NavigateComplete(const QUrl& address);
  void brwWebBrowser_LoadingChanged(const QWebEngineLoadingInfo& loading);
  void brwWebBrowser_ProcessGone();
  // A page of the web has not begun to arrive.
  void timPatience_Timer();
  void ReportDocument(const QUrl& address, int httpStatus);

  CommandChannel& channel_;
  QUrl noAnswer_;  // the page that says so
  PageRules rules_;
  RequestGuard guard_;
  // Nothing of what was looked at stays on the disk.
  QWebEngineProfile profile_;
  ReferencePage page_;
  PagePrinting printing_;
  QWebEngineView* browser_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QToolButton* back_ = nullptr;
  QToolButton* forward_ = nullptr;
  QToolButton* find_ = nullptr;
  QToolButton* print_ = nullptr;
  FindBar* findBar_ = nullptr;
  ElidedLabel* place_ = nullptr;
  QPushButton* pubList_ = nullptr;
  QPushButton* close_ = nullptr;
  QTimer* timer_ = nullptr;
  QTimer* patience_ = nullptr;
  QUrl lastAddress_;          // of the load that was begun last
  bool refused_ = false;      // the link that was clicked last
  bool processGone_ = false;  // the page's process, and nothing was shown since
};

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_BROWSER_BROWSER_FORM_H_
