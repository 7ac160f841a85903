#include "reference/browser/browser_form.h"

#include <QApplication>
#include <QCloseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <QWebEngineFindTextResult>
#include <QWebEngineLoadingInfo>
#include <QWebEngineView>
#include <algorithm>

#include "app/elided_label.h"
#include "app/first_size.h"
#include "app/twips.h"
#include "reference/browser/command_channel.h"
#include "reference/browser/find_bar.h"
#include "reference/browser_layout.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kPollMilliseconds = 100;
// The engine itself would wait for two minutes where the network swallows everything.
constexpr int kPatienceMilliseconds = 20'000;
constexpr QSize kFirstSize(960, 760);
constexpr QSize kSmallestSize(480, 320);
constexpr double kZoomStep = 1.1;

// Every other failure has an error, and a page that shows it.
bool EndedWithItsProcess(const QWebEngineLoadingInfo& loading) {
  return loading.status() == QWebEngineLoadingInfo::LoadFailedStatus &&
         loading.errorDomain() == QWebEngineLoadingInfo::NoErrorDomain;
}

}  // namespace

frmBrowser::frmBrowser(const QString& programFolder, CommandChannel& channel)
    : channel_(channel),
      noAnswer_(QUrl::fromLocalFile(programFolder + u"/noanswer.html"_s)),
      rules_(programFolder),
      guard_(rules_),
      page_(rules_, &profile_, nullptr),
      printing_(programFolder, page_) {
  setObjectName(u"frmBrowser"_s);
  setWindowTitle(u"Tessaly"_s);
  BuildPage();
  BuildBar();
  BuildFindBar();
  BuildButtons();
  timer_ = new QTimer(this);
  timer_->setObjectName(u"timTimer"_s);
  timer_->setInterval(kPollMilliseconds);
  connect(timer_, &QTimer::timeout, this, &frmBrowser::timTimer_Timer);
  patience_ = new QTimer(this);
  patience_->setSingleShot(true);
  patience_->setInterval(kPatienceMilliseconds);
  connect(patience_, &QTimer::timeout, this, &frmBrowser::timPatience_Timer);
  ConnectPage();
  AddShortcuts();
  ChooseSize();
}

void frmBrowser::BuildPage() {
  profile_.setUrlRequestInterceptor(&guard_);
  browser_ = new QWebEngineView(&page_, this);
  browser_->setObjectName(u"brwWebBrowser"_s);
  browser_->setContextMenuPolicy(Qt::ActionsContextMenu);
  for (const QWebEnginePage::WebAction action :
       {QWebEnginePage::Back, QWebEnginePage::Forward, QWebEnginePage::Reload, QWebEnginePage::Copy,
        QWebEnginePage::SelectAll}) {
    browser_->addAction(browser_->pageAction(action));
  }
}

void frmBrowser::BuildBar() {
  progress_ = new QProgressBar(this);
  progress_->setObjectName(u"prgLoad"_s);
  progress_->setTextVisible(false);
  progress_->setStyleSheet(
      u"QProgressBar { border: none; background: transparent; }"
      u"QProgressBar::chunk { background: palette(highlight); }"_s);
  progress_->hide();
  back_ = NewTool(u"cmdBack"_s, browser_->pageAction(QWebEnginePage::Back),
                  style()->standardIcon(QStyle::SP_ArrowBack));
  forward_ = NewTool(u"cmdForward"_s, browser_->pageAction(QWebEnginePage::Forward),
                     style()->standardIcon(QStyle::SP_ArrowForward));
  find_ = NewTool(u"cmdFind"_s, new QAction(u"Find"_s, this), QIcon(u":/pictures/find.png"_s),
                  QKeySequence::Find);
  connect(find_->defaultAction(), &QAction::triggered, this, [this] { ShowFindBar(true); });
  print_ = NewTool(u"cmdPrint"_s, new QAction(u"Print"_s, this), QIcon(u":/pictures/print.png"_s),
                   QKeySequence::Print);
  connect(print_->defaultAction(), &QAction::triggered, &printing_, &PagePrinting::Print);
  connect(&printing_, &PagePrinting::Printing, print_->defaultAction(), &QAction::setDisabled);
  place_ = new ElidedLabel(this);
  place_->setObjectName(u"lblPlace"_s);
  place_->setAccessibleName(u"Place of this page"_s);
  place_->setTextFormat(Qt::PlainText);
  place_->setForegroundRole(QPalette::PlaceholderText);
}

QToolButton* frmBrowser::NewTool(const QString& name, QAction* action, const QIcon& icon,
                                 const QKeySequence& keys) {
  action->setIcon(icon);
  if (!keys.isEmpty()) {
    action->setShortcut(keys);
    action->setToolTip(u"%1 (%2)"_s.arg(action->text(), keys.toString(QKeySequence::NativeText)));
    browser_->addAction(action);
  }
  auto* tool = new QToolButton(this);
  tool->setObjectName(name);
  tool->setDefaultAction(action);
  tool->setAutoRaise(true);
  return tool;
}

void frmBrowser::BuildFindBar() {
  findBar_ = new FindBar(this);
  findBar_->hide();
  connect(findBar_, &FindBar::Asked, this, &frmBrowser::Find);
  connect(findBar_, &FindBar::Closed, this, [this] { ShowFindBar(false); });
  connect(&page_, &QWebEnginePage::findTextFinished, this,
          [this](const QWebEngineFindTextResult& found) {
            findBar_->ShowPlaces(found.activeMatch(), found.numberOfMatches());
          });
}

void frmBrowser::BuildButtons() {
  // Wide enough for the longest caption in the room that the buttons' places leave.
  QFont arial(u"Arial"_s);
  constexpr int kFontPixels = 12;
  arial.setPixelSize(kFontPixels);
  const auto newButton = [&](const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setFont(arial);
    return button;
  };
  pubList_ = newButton(u"cmdPubList"_s, u"Pub  List"_s);
  close_ = newButton(u"cmdClose"_s, u"Close"_s);
  connect(pubList_, &QPushButton::clicked, this, &frmBrowser::cmdPubList_Click);
  connect(close_, &QPushButton::clicked, this, &frmBrowser::cmdClose_Click);
}

void frmBrowser::ConnectPage() {
  connect(&page_, &QWebEnginePage::urlChanged, this, &frmBrowser::brwWebBrowser_NavigateComplete);
  connect(&page_, &QWebEnginePage::loadingChanged, this, &frmBrowser::brwWebBrowser_LoadingChanged);
  connect(&page_, &QWebEnginePage::loadProgress, progress_, &QProgressBar::setValue);
  connect(&page_, &QWebEnginePage::renderProcessTerminated, this,
          &frmBrowser::brwWebBrowser_ProcessGone);
  connect(&page_, &ReferencePage::Decided, this, [this](bool goes) {
    refused_ = !goes;
    ShowPlace();
  });
}

void frmBrowser::AddShortcuts() {
  const auto add = [this](const QKeySequence& keys, auto handler) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, handler);
  };
  add(Qt::Key_Escape, [this] { Escape(); });
  add(QKeySequence::FindNext, [this] { FindAgain(&FindBar::FindNext); });
  add(QKeySequence::FindPrevious, [this] { FindAgain(&FindBar::FindPrevious); });
  add(QKeySequence::Back, [this] { browser_->back(); });
  add(QKeySequence::Forward, [this] { browser_->forward(); });
  add(QKeySequence::Refresh, [this] { browser_->reload(); });
  add(QKeySequence::ZoomIn, [this] { Zoom(kZoomStep); });
  add(QKeySequence::ZoomOut, [this] { Zoom(1 / kZoomStep); });
  add(Qt::CTRL | Qt::Key_0, [this] { browser_->setZoomFactor(1); });
}

void frmBrowser::ChooseSize() {
  setMinimumSize(kSmallestSize);
  resize(FirstSizeOn(*screen(), kFirstSize));
}

void frmBrowser::Obey(const QStringList& command) {
  const QString& name = command.first();
  const QString value = command.value(1);
  if (name == browser_command::kNavigate) {
    Navigate(QUrl::fromEncoded(value.toLatin1()));
  } else if (name == browser_command::kCaption) {
    setWindowTitle(value);
  } else if (name == browser_command::kListCaption) {
    pubList_->setText(value);
  } else if (name == browser_command::kListVisible) {
    pubList_->setVisible(IsFlagSet(value));
  } else if (name == browser_command::kTimer) {
    IsFlagSet(value) ? timer_->start() : timer_->stop();
  } else if (name == browser_command::kShow) {
    ShowInFront();
  }
}

void frmBrowser::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (!isMinimized()) {
    Arrange();
  }
}

void frmBrowser::Arrange() {
  const int findHeight = findBar_->isHidden() ? 0 : findBar_->sizeHint().height();
  const BrowserLayout layout =
      ArrangeBrowser(ToTwips(width()), ToTwips(height()), ToTwips(findHeight));
  findBar_->setGeometry(ToPixels(layout.find));
  browser_->setGeometry(ToPixels(layout.page));
  progress_->setGeometry(ToPixels(layout.progress));
  back_->setGeometry(ToPixels(layout.back));
  forward_->setGeometry(ToPixels(layout.forward));
  find_->setGeometry(ToPixels(layout.findButton));
  print_->setGeometry(ToPixels(layout.print));
  place_->setGeometry(ToPixels(layout.location));
  pubList_->setGeometry(ToPixels(layout.pubList));
  close_->setGeometry(ToPixels(layout.close));
}

// The window is out of the way at once, however long the program takes to hear of it.
void frmBrowser::closeEvent(QCloseEvent* event) {
  event->ignore();
  cmdClose_Click();
}

void frmBrowser::Navigate(const QUrl& address) {
  lastAddress_ = address;
  page_.load(address);
}

void frmBrowser::ShowInFront() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
  browser_->setFocus();
}

void frmBrowser::ShowPlace() {
  place_->setText(refused_ ? u"That link leads out of the reference pages."_s
                           : rules_.PlaceOf(page_.isLoading() ? lastAddress_ : page_.url()));
}

void frmBrowser::Zoom(double factor) {
  browser_->setZoomFactor(browser_->zoomFactor() * factor);
}

void frmBrowser::ShowFindBar(bool visible) {
  findBar_->setVisible(visible);
  Arrange();
  if (visible) {
    findBar_->Begin();
  } else {
    Find({}, false);
    browser_->setFocus();
  }
}

void frmBrowser::Find(const QString& text, bool backward) {
  QWebEnginePage::FindFlags flags;
  flags.setFlag(QWebEnginePage::FindBackward, backward);
  page_.findText(text, flags);
}

void frmBrowser::FindAgain(void (FindBar::*ask)()) {
  if (findBar_->isHidden()) {
    ShowFindBar(true);
  }
  (findBar_->*ask)();
}

void frmBrowser::Escape() {
  findBar_->isVisible() ? ShowFindBar(false) : cmdClose_Click();
}

QString frmBrowser::LocationName() const {
  return page_.title();
}

void frmBrowser::cmdPubList_Click() {
  channel_.Report({browser_report::kListClicked});
}

void frmBrowser::cmdClose_Click() {
  hide();
  channel_.Report({browser_report::kCloseClicked});
}

void frmBrowser::timTimer_Timer() {
  channel_.Report({browser_report::kTick, LocationName(), FlagText(page_.isLoading())});
}

void frmBrowser::brwWebBrowser_NavigateComplete(const QUrl& address) {
  patience_->stop();
  ShowPlace();
  channel_.Report({browser_report::kNavigated, LocationName()});
  // To another place of the same document, nothing is loaded.
  if (!page_.isLoading()) {
    ReportDocument(address, 0);
  }
}

void frmBrowser::brwWebBrowser_LoadingChanged(const QWebEngineLoadingInfo& loading) {
  progress_->setVisible(page_.isLoading());
  if (loading.status() == QWebEngineLoadingInfo::LoadStartedStatus) {
    lastAddress_ = loading.url();
    findBar_->ForgetPlaces();
    lastAddress_.isLocalFile() ? patience_->stop() : patience_->start();
    ShowPlace();
    return;
  }
  // What ended here may have made room for the next.
  if (EndedWithItsProcess(loading) || page_.isLoading()) {
    return;
  }
  patience_->stop();
  processGone_ = false;
  const bool http = loading.errorDomain() == QWebEngineLoadingInfo::HttpStatusCodeDomain;
  ReportDocument(loading.url(), http ? loading.errorCode() : 0);
  if (!findBar_->isHidden()) {
    findBar_->FindNext();
  }
}

void frmBrowser::ReportDocument(const QUrl& address, int httpStatus) {
  channel_.Report({browser_report::kDocumentShown, LocationName(),
                   QString::fromLatin1(address.toEncoded()), QString::number(httpStatus)});
}

void frmBrowser::timPatience_Timer() {
  page_.load(noAnswer_);
}

// A page is loaded once more. Where that fails as well, no process for pages can be made.
void frmBrowser::brwWebBrowser_ProcessGone() {
  if (processGone_) {
    Q_EMIT PageLost();
    return;
  }
  processGone_ = true;
  // Not from within the engine's own report of it.
  QTimer::singleShot(0, this, [this] { page_.load(lastAddress_); });
}

}  // namespace tessaly
