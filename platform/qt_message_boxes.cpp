#include "platform/qt_message_boxes.h"

#include <QApplication>
#include <QMessageBox>

namespace tessaly {

namespace {

QMessageBox::Icon IconOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::Information:
      return QMessageBox::Information;
    case BoxIcon::Question:
      return QMessageBox::Question;
    case BoxIcon::Exclamation:
      return QMessageBox::Warning;
    case BoxIcon::Critical:
      return QMessageBox::Critical;
    case BoxIcon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::OkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case BoxButtons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case BoxButtons::Ok:
      break;
  }
  return QMessageBox::Ok;
}

}  // namespace

BoxAnswer QtMessageBoxes::Show(const QString& text, const QString& title, BoxIcon icon,
                               BoxButtons buttons) {
  QMessageBox box(IconOf(icon), title, text, ButtonsOf(buttons), QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  if (buttons == BoxButtons::YesNo) {
    box.setEscapeButton(QMessageBox::No);
  }
  switch (box.exec()) {
    case QMessageBox::Yes:
      return BoxAnswer::Yes;
    case QMessageBox::No:
      return BoxAnswer::No;
    case QMessageBox::Cancel:
      return BoxAnswer::Cancel;
    default:
      return BoxAnswer::Ok;
  }
}

}  // namespace tessaly
