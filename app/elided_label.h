#ifndef TESSALY_APP_ELIDED_LABEL_H_
#define TESSALY_APP_ELIDED_LABEL_H_

#include <QLabel>

namespace tessaly {

// A one-line label that ends its text in "..." where it does not fit, and asks for no more width
// than there is. text() stays whole.
class ElidedLabel : public QLabel {
  Q_OBJECT

public:
  explicit ElidedLabel(QWidget* parent);

  [[nodiscard]] QSize minimumSizeHint() const override;

protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tessaly

#endif  // TESSALY_APP_ELIDED_LABEL_H_
