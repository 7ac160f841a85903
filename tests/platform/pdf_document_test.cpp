#include "platform/pdf_document.h"

#include <gtest/gtest.h>

#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

constexpr QSizeF kLetter{612, 792};  // points
constexpr QMarginsF kMargins{18, 18, 18, 36};

class PdfDocumentTest : public ::testing::Test {
protected:
  // The number of pages is what the page tree says.
  [[nodiscard]] int PagesInPdf() const {
    const qsizetype at = pdf.indexOf("/Count ");
    return at < 0 ? 0 : pdf.mid(at + 7, 3).simplified().split(' ').first().toInt();
  }

  QByteArray pdf;
  PdfDocument document{
      u"A title"_s, {kLetter, kMargins}, [this](const QByteArray& done) { pdf = done; }};
};

TEST_F(PdfDocumentTest, ThePrintableAreaIsMeasuredInTwips) {
  EXPECT_EQ(document.Width(), (612 - 36) * 20);
  EXPECT_EQ(document.Height(), (792 - 54) * 20);
}

TEST_F(PdfDocumentTest, TheFontIsOfFixedPitchAndMeasuredInTwips) {
  document.SetFont({u"Courier New"_s, 10});
  EXPECT_EQ(document.TextWidth(u"iiiiiiiiii"_s), document.TextWidth(u"MMMMMMMMMM"_s));
  EXPECT_NEAR(document.TextWidth(QString(91, u'-')), 91 * 120, 91);
  EXPECT_EQ(document.TextWidth(u"short\r\nthe longest\nline"_s),
            document.TextWidth(u"the longest"_s));
}

TEST_F(PdfDocumentTest, EachLineOfATextGoesDownALineAndBackToTheLeft) {
  document.SetFont({u"Courier New"_s, 8});
  document.MoveTo(100, 1300);
  document.Print(u"one\r\ntwo"_s);
  EXPECT_EQ(document.CurrentY(), 1300 + 2 * document.LineHeight());
}

TEST_F(PdfDocumentTest, ALineThatNoLongerFitsGoesToANewPage) {
  document.SetFont({u"Courier New"_s, 8});
  document.MoveTo(0, document.Height() - document.LineHeight());
  document.Print(u"the last of the page"_s);
  document.Print(u"the first of the next"_s);
  EXPECT_EQ(document.CurrentY(), document.LineHeight());
  document.End();
  EXPECT_EQ(PagesInPdf(), 2);
}

TEST_F(PdfDocumentTest, ADocumentIsDeliveredAtItsEnd) {
  document.Print(u"text"_s);
  EXPECT_EQ(pdf, QByteArray());
  document.End();
  EXPECT_TRUE(pdf.startsWith("%PDF-"));
  EXPECT_EQ(PagesInPdf(), 1);
}

}  // namespace
}  // namespace tessaly::test
