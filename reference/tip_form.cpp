#include "reference/tip_form.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "app/error_boundary.h"
#include "app/picture.h"
#include "app/program.h"
#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kMargin = 16;
constexpr int kSpacing = 8;
constexpr QSize kTipSize(350, 128);
constexpr int kTipMargin = 12;
constexpr int kHeadingExtraPoints = 5;
constexpr int kTipExtraPoints = 1;

void EnlargeFont(QLabel* label, int extraPoints) {
  QFont font = label->font();
  font.setPointSize(font.pointSize() + extraPoints);
  label->setFont(font);
}

QLabel* NewHeading() {
  auto* heading = new QLabel(u"Did you know..."_s);
  heading->setObjectName(u"lblDidYouKnow"_s);
  QFont bold = heading->font();
  bold.setBold(true);
  heading->setFont(bold);
  EnlargeFont(heading, kHeadingExtraPoints);
  return heading;
}

QLabel* NewTipText() {
  auto* tip = new QLabel;
  tip->setObjectName(u"lblTipText"_s);
  tip->setTextFormat(Qt::PlainText);
  tip->setWordWrap(true);
  tip->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  tip->setMargin(kTipMargin);
  tip->setBackgroundRole(QPalette::Base);
  EnlargeFont(tip, kTipExtraPoints);
  return tip;
}

// A tip of any length can be read; the files are the user's to extend.
QScrollArea* NewScrollArea(QLabel* content) {
  auto* area = new QScrollArea;
  area->setWidget(content);
  area->setWidgetResizable(true);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setFixedSize(kTipSize);
  return area;
}

}  // namespace

frmTip::frmTip(Program& program, ErrorBoundary& errors, QWidget* parent)
    : QDialog(parent),
      programFolder_(program.State().Paths.ProgramFolder),
      tips_(program.Machine().settings, program.State().ProgramOptions),
      errors_(errors) {
  setObjectName(u"frmTip"_s);
  setWindowTitle(u"Tip of the Day"_s);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->setSpacing(kMargin);
  column->addLayout(BuildTip());
  column->addLayout(BuildButtons());
  column->setSizeConstraint(QLayout::SetFixedSize);
}

void frmTip::LoadAndShow(TipOccasion occasion) {
  if (!tips_.Load(programFolder_, occasion)) {
    return;
  }
  LoadTipPicture(occasion);
  loadAtStartup_->setChecked(tips_.ShowsAtStart());
  ShowTip();
  exec();
}

QLayout* frmTip::BuildTip() {
  picture_ = new QLabel;
  picture_->setObjectName(u"Picture1"_s);
  picture_->setAlignment(Qt::AlignTop);
  tipText_ = NewTipText();
  auto* right = new QVBoxLayout;
  right->setSpacing(kSpacing);
  right->addWidget(NewHeading());
  area_ = NewScrollArea(tipText_);
  right->addWidget(area_, 1);
  auto* row = new QHBoxLayout;
  row->setSpacing(kMargin);
  row->addWidget(picture_);
  row->addLayout(right);
  return row;
}

QLayout* frmTip::BuildButtons() {
  loadAtStartup_ = new QCheckBox(u"Show tips at start up"_s);
  loadAtStartup_->setObjectName(u"chkLoadTipsAtStartup"_s);
  auto* nextTip = new QPushButton(u"&Next Tip"_s);
  nextTip->setObjectName(u"cmdNextTip"_s);
  auto* ok = new QPushButton(u"OK"_s, this);
  ok->setObjectName(u"cmdOK"_s);
  ok->setDefault(true);
  ok->setFocus();
  connect(loadAtStartup_, &QCheckBox::clicked, this, [this] { chkLoadTipsAtStartup_Click(); });
  connect(nextTip, &QPushButton::clicked, this, [this] { cmdNextTip_Click(); });
  connect(ok, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
  auto* row = new QHBoxLayout;
  row->addWidget(loadAtStartup_);
  row->addStretch();
  row->addWidget(nextTip);
  row->addWidget(ok);
  return row;
}

void frmTip::LoadTipPicture(TipOccasion occasion) {
  try {
    picture_->setPixmap(LoadPicture(programFolder_, u"tips.bmp"_s));
  } catch (const RuntimeError&) {
    if (occasion == TipOccasion::Start) {
      throw;
    }
    picture_->hide();
  }
}

void frmTip::ShowTip() {
  tipText_->setText(tips_.Text());
  // The keyboard stops at a tip only where there is something to scroll.
  const QSize room = area_->maximumViewportSize();
  const bool scrolls = tipText_->heightForWidth(room.width()) > room.height();
  area_->setFocusPolicy(scrolls ? Qt::StrongFocus : Qt::NoFocus);
  area_->verticalScrollBar()->setValue(0);
}

void frmTip::chkLoadTipsAtStartup_Click() {
  errors_.Run(u"saving whether tips show at start up"_s,
              [this] { tips_.SetShowsAtStart(loadAtStartup_->isChecked()); });
}

void frmTip::cmdNextTip_Click() {
  errors_.Run(u"showing the next tip"_s, [this] {
    tips_.ShowNextTip();
    ShowTip();
  });
}

void frmTip::cmdOK_Click() {
  errors_.Run(u"saving whether tips show at start up"_s, [this] {
    tips_.Confirm();
    accept();
  });
}

}  // namespace tessaly
