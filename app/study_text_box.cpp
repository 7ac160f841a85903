#include "app/study_text_box.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace tessaly {

StudyTextBox::StudyTextBox(const QString& name, const QString& accessibleName, QWidget* parent)
    : QPlainTextEdit(parent) {
  setObjectName(name);
  setAccessibleName(accessibleName);
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setTabChangesFocus(true);
  QFont fixedPitch(u"Courier New"_s);
  fixedPitch.setStyleHint(QFont::TypeWriter);
  setFont(fixedPitch);
}

void StudyTextBox::SetFontSize(int points) {
  QFont sized = font();
  sized.setPointSize(points);
  setFont(sized);
}

bool StudyTextBox::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    return false;
  }
  // Nor does a command that is off become one of the text box.
  if (event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->matches(QKeySequence::SelectAll)) {
    event->ignore();
    return false;
  }
  return QPlainTextEdit::event(event);
}

}  // namespace tessaly
