#include "reference/browser/find_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kMargin = 6;
constexpr int kTextWidth = 260;

}  // namespace

FindBar::FindBar(QWidget* parent) : QWidget(parent) {
  setObjectName(u"fraFind"_s);
  setAutoFillBackground(true);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  auto* caption = new QLabel(u"&Find on this page:"_s, this);
  text_ = new QLineEdit(this);
  text_->setObjectName(u"txtFind"_s);
  text_->setMaximumWidth(kTextWidth);
  text_->setClearButtonEnabled(true);
  text_->installEventFilter(this);
  caption->setBuddy(text_);
  places_ = new QLabel(this);
  places_->setObjectName(u"lblFound"_s);
  row->addWidget(caption);
  row->addWidget(text_, 1);
  QToolButton* previous = AddButton(u"cmdFindPrevious"_s, u"P&revious"_s, u"Shift+F3"_s);
  QToolButton* next = AddButton(u"cmdFindNext"_s, u"&Next"_s, u"F3"_s);
  row->addWidget(places_);
  row->addStretch();
  QToolButton* done = AddButton(u"cmdFindClose"_s, u"&Done"_s, u"Esc"_s);
  connect(text_, &QLineEdit::textChanged, this, &FindBar::txtFind_Change);
  connect(previous, &QToolButton::clicked, this, &FindBar::FindPrevious);
  connect(next, &QToolButton::clicked, this, &FindBar::FindNext);
  connect(done, &QToolButton::clicked, this, &FindBar::Closed);
}

QToolButton* FindBar::AddButton(const QString& name, const QString& caption,
                                const QString& description) {
  auto* button = new QToolButton(this);
  button->setObjectName(name);
  button->setText(caption);
  button->setToolTip(description);
  button->setAutoRaise(true);
  layout()->addWidget(button);
  return button;
}

void FindBar::Begin() {
  text_->setFocus();
  text_->selectAll();
}

void FindBar::FindNext() {
  Q_EMIT Asked(text_->text(), false);
}

void FindBar::FindPrevious() {
  Q_EMIT Asked(text_->text(), true);
}

void FindBar::ForgetPlaces() {
  places_->clear();
}

void FindBar::ShowPlaces(int active, int count) {
  if (text_->text().isEmpty()) {
    ForgetPlaces();
  } else if (count == 0) {
    places_->setText(u"Not found"_s);
  } else {
    places_->setText(u"%1 of %2"_s.arg(active).arg(count));
  }
}

// Enter goes on to the next place, with Shift back to the one before.
bool FindBar::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
      key->modifiers().testFlag(Qt::ShiftModifier) ? FindPrevious() : FindNext();
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

void FindBar::txtFind_Change(const QString& text) {
  if (text.isEmpty()) {
    ForgetPlaces();
  }
  Q_EMIT Asked(text, false);
}

}  // namespace tessaly
