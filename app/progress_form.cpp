#include "app/progress_form.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "store/settings_store.h"

using namespace Qt::StringLiterals;

namespace tessaly {

ProgressForm::ProgressForm(const QString& name, const QString& labelName, const QString& text,
                           QWidget* parent)
    : QDialog(parent), bar_(new QProgressBar) {
  setObjectName(name);
  setWindowTitle(kApplicationTitle);
  // The keys stay with the window that the user works in.
  setAttribute(Qt::WA_ShowWithoutActivating);
  auto* label = new QLabel(text);
  label->setObjectName(labelName);
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignCenter);
  bar_->setRange(0, 0);
  bar_->setTextVisible(false);
  bar_->setAccessibleName(text);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(28, 20, 28, 20);
  column->setSpacing(14);
  column->addWidget(label);
  column->addWidget(bar_);
  column->setSizeConstraint(QLayout::SetFixedSize);
}

void ProgressForm::ShowAndRepaint() {
  show();
  // A click while the work is under way must not start another command.
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void ProgressForm::Rest() {
  bar_->hide();
}

}  // namespace tessaly
