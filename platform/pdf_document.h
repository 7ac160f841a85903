#ifndef TESSALY_PLATFORM_PDF_DOCUMENT_H_
#define TESSALY_PLATFORM_PDF_DOCUMENT_H_

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <functional>

#include "platform/paper.h"
#include "platform/printer.h"

namespace tessaly {

// A document drawn as PDF. Its resolution is 1,440 dots an inch, so that a dot is a twip.
class PdfDocument : public PrintDocument {
public:
  // Takes the finished PDF; raises what keeps it from being printed.
  using Delivery = std::function<void(const QByteArray& pdf)>;

  PdfDocument(const QString& title, const Paper& paper, Delivery deliver);

  [[nodiscard]] int Width() const override { return writer_.width(); }
  [[nodiscard]] int Height() const override { return writer_.height(); }
  void SetFont(const PrintFont& font) override;
  [[nodiscard]] int TextWidth(const QString& text) const override;
  [[nodiscard]] int LineHeight() const override { return painter_.fontMetrics().height(); }
  void MoveTo(int x, int y) override { position_ = {x, y}; }
  [[nodiscard]] int CurrentY() const override { return position_.y(); }
  void Print(const QString& text) override;
  void NewPage() override;
  void End() override;

private:
  QBuffer pdf_;
  QPdfWriter writer_;
  QPainter painter_;
  QPoint position_;
  Delivery deliver_;
};

}  // namespace tessaly

#endif  // TESSALY_PLATFORM_PDF_DOCUMENT_H_
