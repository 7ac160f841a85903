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
#include <QWebEngineLoadingInfo>
#include <QWebEngineView>
#include <algorithm>

#include "app/elided_label.h"
#include "app/twips.h"
#include "reference/browser/command_channel.h"
#include "reference/browser_layout.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kPollMilliseconds = 100;
constexpr QSize kFirstSize(960, 760);
constexpr QSize kSmallestSize(480, 320);
constexpr double kPartOfScreen = 0.9;
constexpr double kZoomStep = 1.1;

// Every other failure has an error, and a page that shows it.
bool EndedWithItsProcess(const QWebEngineLoadingInfo& loading) {
  return loading.status() == QWebEngineLoadingInfo::LoadFailedStatus &&
         loading.errorDomain() == QWebEngineLoadingInfo::NoErrorDomain;
}

}  // namespace

frmBrowser::frmBrowser(const QString& programFolder, CommandChannel& channel)
    : channel_(channel), rules_(programFolder), guard_(rules_), page_(rules_, &profile_, nullptr) {
  setObjectName(u"frmBrowser"_s);
  setWindowTitle(u"Tessaly"_s);
  BuildPage();
  BuildBar();
  BuildButtons();
  timer_ = new QTimer(this);
  timer_->setObjectName(u"timTimer"_s);
  timer_->setInterval(kPollMilliseconds);
  connect(timer_, &QTimer::timeout, this, &frmBrowser::timTimer_Timer);
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
  const auto newArrow = [this](const QString& name, QStyle::StandardPixmap icon,
                               QWebEnginePage::WebAction action) {
    auto* arrow = new QToolButton(this);
    arrow->setObjectName(name);
    arrow->setDefaultAction(browser_->pageAction(action));
    arrow->defaultAction()->setIcon(style()->standardIcon(icon));
    arrow->setAutoRaise(true);
    return arrow;
  };
  back_ = newArrow(u"cmdBack"_s, QStyle::SP_ArrowBack, QWebEnginePage::Back);
  forward_ = newArrow(u"cmdForward"_s, QStyle::SP_ArrowForward, QWebEnginePage::Forward);
  place_ = new ElidedLabel(this);
  place_->setObjectName(u"lblPlace"_s);
  place_->setAccessibleName(u"Place of this page"_s);
  place_->setTextFormat(Qt::PlainText);
  place_->setForegroundRole(QPalette::PlaceholderText);
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
  add(Qt::Key_Escape, [this] { cmdClose_Click(); });
  add(QKeySequence::Back, [this] { browser_->back(); });
  add(QKeySequence::Forward, [this] { browser_->forward(); });
  add(QKeySequence::Refresh, [this] { browser_->reload(); });
  add(QKeySequence::ZoomIn, [this] { Zoom(kZoomStep); });
  add(QKeySequence::ZoomOut, [this] { Zoom(1 / kZoomStep); });
  add(Qt::CTRL | Qt::Key_0, [this] { browser_->setZoomFactor(1); });
}

void frmBrowser::ChooseSize() {
  setMinimumSize(kSmallestSize);
  const QSize room = screen()->availableSize() * kPartOfScreen;
  resize(kFirstSize.boundedTo(room));
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
  if (isMinimized()) {
    return;
  }
  const BrowserLayout layout = ArrangeBrowser(ToTwips(width()), ToTwips(height()));
  browser_->setGeometry(ToPixels(layout.page));
  progress_->setGeometry(ToPixels(layout.progress));
  back_->setGeometry(ToPixels(layout.back));
  forward_->setGeometry(ToPixels(layout.forward));
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
    ShowPlace();
    return;
  }
  // What ended here may have made room for the next.
  if (EndedWithItsProcess(loading) || page_.isLoading()) {
    return;
  }
  processGone_ = false;
  const bool http = loading.errorDomain() == QWebEngineLoadingInfo::HttpStatusCodeDomain;
  ReportDocument(loading.url(), http ? loading.errorCode() : 0);
}

void frmBrowser::ReportDocument(const QUrl& address, int httpStatus) {
  channel_.Report({browser_report::kDocumentShown, LocationName(),
                   QString::fromLatin1(address.toEncoded()), QString::number(httpStatus)});
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
