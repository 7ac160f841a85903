#include "tests/end_to_end/end_to_end_test.h"
#include "tests/end_to_end/print_queue.h"
#include "tests/end_to_end/printed_pages.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

constexpr double kMargin = 18;  // points that the test's printer cannot print on

double PointsOf(int twips) {
  return kMargin + twips / 20.0;
}

class PrintingTest : public EndToEndTest {
protected:
  void Use(const PrintQueue& queue) { installation.SetVariable(u"CUPS_SERVER"_s, queue.Server()); }
  // Asks for the question on screen and waits for what comes of it.
  void Print() { program.Press(u"Ctrl+P"_s); }
  void WaitUntilPrinted() {
    program.WaitUntil(u"the end of printing"_s, [this] {
      return program.HasBox() || !program.Windows().contains(u"frmPrinting"_s);
    });
    ASSERT_FALSE(program.HasBox()) << program.WaitForBox().text.toStdString();
  }
  void ExpectPrinterErrorAndGoOn(const QString& reason) {
    const BoxContent box = program.WaitForBox();
    EXPECT_TRUE(box.text.startsWith(u"Run-time error '482':\n\nPrinter error\n"_s))
        << box.text.toStdString();
    EXPECT_TRUE(box.text.contains(reason)) << box.text.toStdString();
    program.AnswerBox(u"OK"_s);
    EXPECT_EQ(program.Text(u"lblPrint"_s), u"Printing Question #1 from Part I - Individuals"_s);
    EXPECT_TRUE(program.IsVisible(u"frmPrinting"_s));
    program.Click(u"cmdA"_s);
    program.WaitForVisible(u"txtAnswer"_s);
  }
};

TEST_F(PrintingTest, AQuestionIsPrintedOnOnePageWithItsBlocksAtFixedHeights) {
  PrintQueue queue;
  SKIP_WITHOUT_QUEUE(queue);
  Use(queue);
  Begin();
  Print();
  WaitUntilPrinted();
  const std::vector<PrintedPage> pages = ReadPages(queue.TakePrinted());
  ASSERT_EQ(pages.size(), 1U);
  const PrintedPage& page = pages.front();
  EXPECT_EQ(page.size, QSizeF(612, 792));
  EXPECT_EQ(page.Text(),
            u"Tessaly by Tessaly Press Study Software for the Special Enrollment Exam 2001 Exam "
            "Part I - Individuals Question #1 Question 1 "_s +
                QString(91, u'-') +
                u" Explanation: Explanation 1 Hint: Publication 1 Answer: True"_s);
  EXPECT_NEAR(page.Find(u"Explanation:"_s).top, PointsOf(7900), 2);
  EXPECT_NEAR(page.Find(u"Hint:"_s).top, PointsOf(14000), 2);
  EXPECT_NEAR(page.Find(u"Answer:"_s).top, PointsOf(14500), 2);
  EXPECT_NEAR(page.Find(QString(91, u'-')).top, PointsOf(7400), 2);
  EXPECT_LE(page.Find(QString(91, u'-')).right, 612 - kMargin);
  EXPECT_LE(page.Find(u"Exam"_s).right, 612 - kMargin);
}

TEST_F(PrintingTest, ThePageIsThePrintersOwn) {
  PrintQueue queue(PrintQueue::PaperSize::A4);
  SKIP_WITHOUT_QUEUE(queue);
  Use(queue);
  Begin();
  Print();
  WaitUntilPrinted();
  const std::vector<PrintedPage> pages = ReadPages(queue.TakePrinted());
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_NEAR(pages.front().size.width(), 595, 1);
  EXPECT_NEAR(pages.front().size.height(), 842, 1);
  EXPECT_NEAR(pages.front().Find(u"Answer:"_s).top, PointsOf(14500), 2);
  EXPECT_LE(pages.front().Find(QString(91, u'-')).right, 595);
}

TEST_F(PrintingTest, TheStatisticsRunOnToFurtherPages) {
  Bank().RunOnAnswers(u"UPDATE SubjectStats SET TMAsked = 2, TMCorrect = 1"_s);
  PrintQueue queue;
  SKIP_WITHOUT_QUEUE(queue);
  Use(queue);
  program.StartToMainWindow();
  program.Press(u"Ctrl+A"_s);
  program.WaitForVisible(u"frmStats"_s);
  program.Click(u"cmdPrintStats"_s);
  const std::vector<PrintedPage> pages = ReadPages(queue.TakePrinted());
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_TRUE(pages[0].Text().startsWith(
      u"Tessaly - 2002 Edition Study Software for the Special Enrollment Exam Tutorial Mode "
      "Statistics Statistics by Exam Section Exam Number Number Possible Actual Score"_s))
      << pages[0].Text().toStdString();
  EXPECT_TRUE((pages[0].Text() + pages[1].Text()).contains(u"Subject 86 2 1 50%"_s));
  EXPECT_TRUE(pages[1].Find(u"50%"_s).top < 40);
  for (const PrintedPage& page : pages) {
    for (const PrintedWord& word : page.words) {
      EXPECT_LE(word.right, 612 - kMargin) << word.text.toStdString();
      EXPECT_LE(word.bottom, 792 - kMargin) << word.text.toStdString();
    }
  }
}

TEST_F(PrintingTest, WithoutAPrinterThereIsAMessageAndTheProgressFormStays) {
  PrintQueue queue;
  SKIP_WITHOUT_QUEUE(queue);
  queue.Remove();
  Use(queue);
  Begin();
  Print();
  ExpectPrinterErrorAndGoOn(u"There is no default printer."_s);
}

TEST_F(PrintingTest, AStoppedQueueIsReported) {
  PrintQueue queue;
  SKIP_WITHOUT_QUEUE(queue);
  queue.Stop();
  Use(queue);
  Begin();
  Print();
  ExpectPrinterErrorAndGoOn(u"The printer Test is stopped."_s);
}

TEST_F(PrintingTest, AQueueThatRejectsJobsIsReported) {
  PrintQueue queue;
  SKIP_WITHOUT_QUEUE(queue);
  queue.Reject();
  Use(queue);
  Begin();
  Print();
  ExpectPrinterErrorAndGoOn(u"The printer Test does not accept jobs."_s);
}

TEST_F(PrintingTest, AJobThatFailsOnItsWayIsReported) {
  PrintQueue queue;
  SKIP_WITHOUT_QUEUE(queue);
  queue.BreakPrinter();
  Use(queue);
  Begin();
  Print();
  ExpectPrinterErrorAndGoOn(u"The printer Test gave the job up."_s);
}

TEST_F(PrintingTest, WithoutAPrintingServiceThereIsAMessage) {
  installation.SetVariable(u"CUPS_SERVER"_s, u"127.0.0.1:1"_s);
  Begin();
  Print();
  ExpectPrinterErrorAndGoOn(u"The printing system does not answer."_s);
}

TEST_F(PrintingTest, WithoutItsPrintProgramThereIsAMessage) {
  ASSERT_TRUE(QFile::remove(installation.Folder() + u"/tessaly-print"_s));
  Begin();
  Print();
  ExpectPrinterErrorAndGoOn(u"tessaly-print cannot be started."_s);
}

TEST_F(PrintingTest, AfterAFailureTheSameQuestionCanBePrintedAgain) {
  PrintQueue queue;
  SKIP_WITHOUT_QUEUE(queue);
  queue.Stop();
  Use(queue);
  Begin();
  Print();
  ExpectPrinterErrorAndGoOn(u"is stopped."_s);
  queue.Start();
  Print();
  WaitUntilPrinted();
  EXPECT_EQ(ReadPages(queue.TakePrinted()).size(), 1U);
}

TEST_F(PrintingTest, TheProgramCanEndWhileItPrints) {
  PrintQueue queue;
  SKIP_WITHOUT_QUEUE(queue);
  Use(queue);
  Begin();
  program.Send({u"press"_s, u"Ctrl+P"_s});
  program.Send({u"close"_s, u"frmMain"_s});
  EXPECT_EQ(program.WaitForExit(), 0);
  EXPECT_EQ(ReadPages(queue.TakePrinted()).size(), 1U);
}

}  // namespace
}  // namespace tessaly::test
