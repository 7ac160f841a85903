#ifndef TESSALY_TESTS_END_TO_END_PRINTED_PAGES_H_
#define TESSALY_TESTS_END_TO_END_PRINTED_PAGES_H_

#include <QByteArray>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <vector>

namespace tessaly::test {

// A word on a printed page; its box in points from the paper's upper left corner.
struct PrintedWord {
  QString text;
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
};

struct PrintedPage {
  QSizeF size;  // points
  std::vector<PrintedWord> words;

  // The first word that reads so; an empty one where there is none.
  [[nodiscard]] PrintedWord Find(const QString& text) const;
  // All words, a blank between them.
  [[nodiscard]] QString Text() const;
};

// Reads a PDF back, by the program `pdftotext`.
[[nodiscard]] std::vector<PrintedPage> ReadPages(const QByteArray& pdf);

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_END_TO_END_PRINTED_PAGES_H_
