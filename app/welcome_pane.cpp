#include "app/welcome_pane.h"

#include <QIcon>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kMarkSize = 96;

QLabel* AddLine(QVBoxLayout* lines, const QString& name, const QString& text, int extraPoints) {
  auto* label = new QLabel(text);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignCenter);
  label->setWordWrap(true);
  QFont font = label->font();
  font.setPointSize(font.pointSize() + extraPoints);
  font.setBold(extraPoints > 2);
  label->setFont(font);
  lines->addWidget(label);
  return label;
}

}  // namespace

WelcomePane::WelcomePane(QWidget* parent) : QFrame(parent) {
  setObjectName(u"fraWelcome"_s);
  auto* lines = new QVBoxLayout(this);
  lines->addStretch();
  auto* mark = new QLabel;
  mark->setPixmap(QIcon(u":/pictures/tessaly.png"_s).pixmap(kMarkSize, kMarkSize));
  mark->setAlignment(Qt::AlignCenter);
  lines->addWidget(mark);
  lines->addSpacing(12);
  AddLine(lines, u"lblWelcome"_s, u"Ready to study"_s, 9);
  selection_ = AddLine(lines, u"lblWelcomeSelection"_s, {}, 2);
  lines->addSpacing(12);
  AddLine(lines, u"lblWelcomeHint"_s, u"Choose Begin, or press Ctrl+B, to start a session."_s, 0);
  lines->addStretch();
}

void WelcomePane::SetSelection(const QString& text) {
  selection_->setText(text);
}

}  // namespace tessaly
