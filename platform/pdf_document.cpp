#include "platform/pdf_document.h"

#include <QFontMetrics>
#include <algorithm>
#include <utility>

#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kTwipsPerInch = 1440;

QStringList LinesOf(QString text) {
  return text.remove(u'\r').split(u'\n');
}

QPageLayout LayoutOf(const Paper& paper) {
  // The size is taken exactly: a matching standard size could be a little off.
  const QPageSize size(paper.Size, QPageSize::Point, {}, QPageSize::ExactMatch);
  return {size, QPageLayout::Portrait, paper.Margins, QPageLayout::Point};
}

}  // namespace

PdfDocument::PdfDocument(const QString& title, const Paper& paper, Delivery deliver)
    : writer_(&pdf_), deliver_(std::move(deliver)) {
  pdf_.open(QIODevice::WriteOnly);
  writer_.setTitle(title);
  writer_.setResolution(kTwipsPerInch);
  if (!writer_.setPageLayout(LayoutOf(paper)) || !painter_.begin(&writer_)) {
    throw RuntimeError(ErrorNumber::Printer, u"The page cannot be drawn."_s);
  }
}

void PdfDocument::SetFont(const PrintFont& font) {
  QFont wanted(font.Name, font.Points);
  wanted.setStyleHint(QFont::TypeWriter);
  wanted.setFixedPitch(true);
  wanted.setBold(font.Bold);
  painter_.setFont(wanted);
}

int PdfDocument::TextWidth(const QString& text) const {
  const QFontMetrics metrics = painter_.fontMetrics();
  int width = 0;
  for (const QString& line : LinesOf(text)) {
    width = std::max(width, metrics.horizontalAdvance(line));
  }
  return width;
}

void PdfDocument::Print(const QString& text) {
  const QFontMetrics metrics = painter_.fontMetrics();
  const int left = position_.x();
  for (const QString& line : LinesOf(text)) {
    if (position_.y() + metrics.height() > Height()) {
      NewPage();
    }
    painter_.drawText(left, position_.y() + metrics.ascent(), line);
    position_.ry() += metrics.height();
  }
  position_.setX(0);
}

void PdfDocument::NewPage() {
  writer_.newPage();
  position_.setY(0);
}

void PdfDocument::End() {
  if (!painter_.end()) {
    throw RuntimeError(ErrorNumber::Printer, u"The page cannot be drawn."_s);
  }
  deliver_(pdf_.data());
}

}  // namespace tessaly
