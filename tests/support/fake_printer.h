#ifndef TESSALY_TESTS_SUPPORT_FAKE_PRINTER_H_
#define TESSALY_TESTS_SUPPORT_FAKE_PRINTER_H_

#include <QStringList>
#include <algorithm>
#include <functional>
#include <memory>

#include "platform/printer.h"
#include "store/runtime_error.h"

namespace tessaly::test {

// A printer with a fixed-pitch font, 12 twips a point wide and 24 high, that keeps what it is told:
// "font Courier New 8 bold", "5,1300 text", "page", "end".
class FakePrinter : public Printer {
public:
  class Document : public PrintDocument {
  public:
    explicit Document(FakePrinter& printer) : printer_(printer) {}

    int Width() const override { return printer_.width; }
    int Height() const override { return printer_.height; }
    void SetFont(const PrintFont& font) override {
      points_ = font.Points;
      printer_.done.append(QStringLiteral("font %1 %2").arg(font.Name).arg(points_) +
                           (font.Bold ? QStringLiteral(" bold") : QString()));
    }
    int TextWidth(const QString& text) const override {
      qsizetype longest = 0;
      for (const QString& line : text.split(u'\n')) {
        longest = std::max(longest, line.size());
      }
      return static_cast<int>(longest) * points_ * 12;
    }
    int LineHeight() const override { return points_ * 24; }
    void MoveTo(int x, int y) override {
      x_ = x;
      y_ = y;
    }
    int CurrentY() const override { return y_; }
    void Print(const QString& text) override {
      printer_.done.append(QStringLiteral("%1,%2 %3").arg(x_).arg(y_).arg(text));
      y_ += LineHeight() * static_cast<int>(text.count(u'\n') + 1);
      x_ = 0;
    }
    void NewPage() override {
      printer_.done.append(QStringLiteral("page"));
      y_ = 0;
    }
    void End() override {
      printer_.FailIf(printer_.failsAtEnd);
      printer_.done.append(QStringLiteral("end"));
    }

  private:
    FakePrinter& printer_;
    int points_ = 10;
    int x_ = 0;
    int y_ = 0;
  };

  std::unique_ptr<PrintDocument> BeginDocument(const QString& title) override {
    FailIf(missing);
    titles.append(title);
    return std::make_unique<Document>(*this);
  }

  // All texts that were printed, without their places.
  [[nodiscard]] QStringList Texts() const {
    QStringList texts;
    for (const QString& entry : done) {
      if (entry.at(0).isDigit()) {
        texts.append(entry.mid(entry.indexOf(u' ') + 1));
      }
    }
    return texts;
  }

  bool missing = false;
  bool failsAtEnd = false;
  int width = 11520;
  int height = 15120;
  QStringList titles;
  QStringList done;

private:
  static void FailIf(bool fails) {
    if (fails) {
      throw RuntimeError(ErrorNumber::Printer, QStringLiteral("There is no default printer."));
    }
  }
};

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_SUPPORT_FAKE_PRINTER_H_
