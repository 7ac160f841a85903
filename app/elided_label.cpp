#include "app/elided_label.h"

#include <QPainter>

namespace tessaly {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QSize ElidedLabel::minimumSizeHint() const {
  return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent* event) {
  Q_UNUSED(event);
  QPainter painter(this);
  drawFrame(&painter);
  const QRect area = contentsRect().adjusted(margin(), 0, -margin(), 0);
  painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter,
                   fontMetrics().elidedText(text(), Qt::ElideRight, area.width()));
}

}  // namespace tessaly
