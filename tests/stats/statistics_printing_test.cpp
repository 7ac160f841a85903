#include "stats/statistics_printing.h"

#include "stats/statistics_report.h"
#include "tests/support/program_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

QString Indented(const QString& heading) {
  return QString(12, u' ') + heading;
}

class StatisticsPrintingTest : public ProgramTest {
protected:
  QStringList Print(const PrintBlocks& blocks) {
    printer.done.clear();
    PrintStatistics(blocks, printer);
    return printer.done;
  }
  // What was printed and in which font, without the places.
  QStringList FontsAndTexts() {
    QStringList result;
    for (const QString& entry : std::as_const(printer.done)) {
      result.append(entry.at(0).isDigit() ? entry.mid(entry.indexOf(u' ') + 1) : entry);
    }
    return result;
  }
};

TEST_F(StatisticsPrintingTest, ItPrintsTheBlocksAsTheyStandEachInItsFont) {
  Print({u"title"_s, u"mode"_s, u"sections head"_s, u"sections"_s, u"subjects head"_s,
         u"subjects"_s});
  EXPECT_EQ(FontsAndTexts(),
            (QStringList{u"font Courier New 8"_s, u"title"_s, u"font Courier New 12 bold"_s,
                         u"mode"_s, Indented(u"Statistics by Exam Section"_s), u""_s,
                         u"font Courier New 8 bold"_s, u"sections head"_s, u"font Courier New 8"_s,
                         u"sections"_s, u"font Courier New 12 bold"_s, u""_s,
                         Indented(u"Statistics by Subject"_s), u""_s, u"font Courier New 8 bold"_s,
                         u"subjects head"_s, u"font Courier New 8"_s, u"subjects"_s, u"end"_s}));
  EXPECT_EQ(printer.done.at(1), u"0,0 title"_s);
  EXPECT_EQ(printer.titles, QStringList{u"Printing Statistics..."_s});
}

TEST_F(StatisticsPrintingTest, PrintingTwicePrintsTheSameReportTwice) {
  program.Prepare();
  const PrintBlocks blocks = BuildStatisticsReport(State(), program.Bank()).Blocks;
  const QStringList first = Print(blocks);
  EXPECT_EQ(Print(blocks), first);
}

TEST_F(StatisticsPrintingTest, AReportWithoutSubjectRowsPrintsBothHeaderLinesOfTheSubjects) {
  program.Prepare();
  const PrintBlocks blocks = BuildStatisticsReport(State(), program.Bank()).Blocks;
  EXPECT_EQ(blocks.PrintSubjectRows, QString());
  Print(blocks);
  const QString printed = printer.Texts().join(u'\n');
  EXPECT_TRUE(printed.contains(u"Number    Number     Question"_s));
  EXPECT_TRUE(printed.contains(u"Asked     Correct   Percentage"_s));
}

TEST_F(StatisticsPrintingTest, AMissingPrinterIsAPrinterError) {
  printer.missing = true;
  EXPECT_RUNTIME_ERROR(Print({}), ErrorNumber::Printer);
}

}  // namespace
}  // namespace tessaly::test
