#include "stats/statistics_printing.h"

#include "platform/printer.h"
#include "stats/statistics_report.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kHeadingPoints = 12;
constexpr int kRowPoints = 8;

PrintFont Bold(int points) {
  return {u"Courier New"_s, points, true};
}

PrintFont Regular() {
  return {u"Courier New"_s, kRowPoints, false};
}

QString Heading(const QString& text) {
  return QString(kHeadingIndent, u' ') + text;
}

}  // namespace

void PrintStatistics(const PrintBlocks& blocks, Printer& printer) {
  const auto page = printer.BeginDocument(kPrintingStatistics);
  page->MoveTo(0, 0);
  page->SetFont(Regular());
  page->Print(blocks.PrintTitle);
  page->SetFont(Bold(kHeadingPoints));
  page->Print(blocks.PrintModeHeading);
  page->Print(Heading(kSectionHeading));
  page->Print({});
  page->SetFont(Bold(kRowPoints));
  page->Print(blocks.PrintSectionHeader);
  page->SetFont(Regular());
  page->Print(blocks.PrintSectionRows);
  page->SetFont(Bold(kHeadingPoints));
  page->Print({});
  page->Print(Heading(kSubjectHeading));
  page->Print({});
  page->SetFont(Bold(kRowPoints));
  page->Print(blocks.PrintSubjectHeader);
  page->SetFont(Regular());
  page->Print(blocks.PrintSubjectRows);
  page->End();
}

}  // namespace tessaly
