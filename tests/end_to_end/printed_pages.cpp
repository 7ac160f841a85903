#include "tests/end_to_end/printed_pages.h"

#include <QProcess>
#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace tessaly::test {

namespace {

double NumberIn(const QXmlStreamReader& xml, const QString& attribute) {
  return xml.attributes().value(attribute).toDouble();
}

PrintedWord WordIn(QXmlStreamReader& xml) {
  PrintedWord word{{},
                   NumberIn(xml, u"xMin"_s),
                   NumberIn(xml, u"yMin"_s),
                   NumberIn(xml, u"xMax"_s),
                   NumberIn(xml, u"yMax"_s)};
  word.text = xml.readElementText();
  return word;
}

// In the order of the lines, not of the columns that the reader sees in a table.
bool ReadsBefore(const PrintedWord& one, const PrintedWord& other) {
  constexpr double kSameLine = 2;
  if (std::abs(one.bottom - other.bottom) > kSameLine) {
    return one.bottom < other.bottom;
  }
  return one.left < other.left;
}

}  // namespace

PrintedWord PrintedPage::Find(const QString& text) const {
  const auto found = std::find_if(words.begin(), words.end(),
                                  [&text](const PrintedWord& word) { return word.text == text; });
  return found == words.end() ? PrintedWord{} : *found;
}

QString PrintedPage::Text() const {
  QStringList texts;
  for (const PrintedWord& word : words) {
    texts.append(word.text);
  }
  return texts.join(u' ');
}

std::vector<PrintedPage> ReadPages(const QByteArray& pdf) {
  QProcess reader;
  reader.start(u"pdftotext"_s, {u"-bbox"_s, u"-"_s, u"-"_s});
  reader.write(pdf);
  reader.closeWriteChannel();
  reader.waitForFinished();
  std::vector<PrintedPage> pages;
  QXmlStreamReader xml(reader.readAllStandardOutput());
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) {
      continue;
    }
    if (xml.name() == u"page"_s) {
      pages.push_back({QSizeF(NumberIn(xml, u"width"_s), NumberIn(xml, u"height"_s)), {}});
    } else if (xml.name() == u"word"_s) {
      pages.back().words.push_back(WordIn(xml));
    }
  }
  for (PrintedPage& page : pages) {
    std::stable_sort(page.words.begin(), page.words.end(), ReadsBefore);
  }
  return pages;
}

}  // namespace tessaly::test
