#include "reference/hint_form.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/error_boundary.h"
#include "app/program.h"
#include "reference/research_hint.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kMargin = 16;
constexpr int kSpacing = 16;
constexpr int kHintWidth = 340;
constexpr int kPictureSize = 48;

QLabel* NewPicture() {
  auto* picture = new QLabel;
  QPixmap pixmap(u":/pictures/research@3x.png"_s);
  const qreal density = picture->devicePixelRatio();
  pixmap = pixmap.scaledToHeight(qRound(kPictureSize * density), Qt::SmoothTransformation);
  pixmap.setDevicePixelRatio(density);
  picture->setPixmap(pixmap);
  picture->setAlignment(Qt::AlignTop);
  return picture;
}

// Looks like the link that it is.
QLabel* NewHintLink() {
  auto* link = new QLabel;
  link->setObjectName(u"lblHintLink"_s);
  link->setAccessibleName(u"Research reference"_s);
  link->setTextFormat(Qt::PlainText);
  link->setWordWrap(true);
  link->setFixedWidth(kHintWidth);
  link->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  link->setCursor(Qt::PointingHandCursor);
  link->setForegroundRole(QPalette::Link);
  QFont underlined = link->font();
  underlined.setUnderline(true);
  underlined.setPointSize(underlined.pointSize() + 1);
  link->setFont(underlined);
  return link;
}

}  // namespace

frmHint::frmHint(Program& program, MainWindowView& view, ErrorBoundary& errors, QWidget* parent)
    : QDialog(parent), program_(program), view_(view), errors_(errors) {
  setObjectName(u"frmHint"_s);
  setWindowTitle(u"Research"_s);
  setAttribute(Qt::WA_DeleteOnClose);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->setSpacing(kSpacing);
  column->addLayout(BuildHint());
  column->addLayout(BuildButtons());
  column->setSizeConstraint(QLayout::SetFixedSize);
  connect(this, &QDialog::finished, this, [this] { Form_Unload(); });
}

void frmHint::SetHint(const QString& hint) {
  hintLink_->setText(hint);
}

QLayout* frmHint::BuildHint() {
  hintLink_ = NewHintLink();
  hintLink_->installEventFilter(this);
  auto* row = new QHBoxLayout;
  row->setSpacing(kSpacing);
  row->addWidget(NewPicture());
  row->addWidget(hintLink_, 1);
  return row;
}

QLayout* frmHint::BuildButtons() {
  auto* view = new QPushButton(u"Open IRS Reference"_s, this);
  view->setObjectName(u"cmdView"_s);
  view->setDefault(true);
  auto* close = new QPushButton(u"Close"_s, this);
  close->setObjectName(u"cmdClose"_s);
  connect(view, &QPushButton::clicked, this, [this] { cmdView_Click(); });
  connect(close, &QPushButton::clicked, this, [this] { cmdClose_Click(); });
  auto* row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(view);
  row->addWidget(close);
  return row;
}

bool frmHint::eventFilter(QObject* watched, QEvent* event) {
  if (watched == hintLink_ && event->type() == QEvent::MouseButtonRelease) {
    const auto* release = static_cast<QMouseEvent*>(event);
    if (release->button() == Qt::LeftButton &&
        hintLink_->rect().contains(release->position().toPoint())) {
      lblHintLink_Click();
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

void frmHint::lblHintLink_Click() {
  cmdView_Click();
}

void frmHint::cmdView_Click() {
  accept();
  errors_.Run(u"opening the publication"_s, [this] { program_.Browser().OpenResearch(); });
}

void frmHint::cmdClose_Click() {
  reject();
}

void frmHint::Form_Unload() {
  EndResearch(view_, program_.Session().IsRunning());
}

}  // namespace tessaly
