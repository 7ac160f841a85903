#include "app/printing_form.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QProgressBar>
#include <QWidget>

#include "store/runtime_error.h"
#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class PrintingFormTest : public ::testing::Test {
protected:
  [[nodiscard]] bool IsShown() const {
    const auto* form = window.findChild<QWidget*>(u"frmPrinting"_s);
    return form != nullptr && form->isVisible() && !form->isModal();
  }

  QWidget window;
  PrintingForm printing;
};

TEST_F(PrintingFormTest, ItSaysWhatIsPrintedWhileItIsAndThenGoes) {
  bool printed = false;
  printing.Print(u"Printing Statistics..."_s, window, [&] {
    printed = true;
    EXPECT_TRUE(IsShown());
    EXPECT_EQ(window.findChild<QLabel*>(u"lblPrint"_s)->text(), u"Printing Statistics..."_s);
  });
  EXPECT_TRUE(printed);
  EXPECT_FALSE(IsShown());
}

TEST_F(PrintingFormTest, ItStaysWhenPrintingFailsUntilSomethingIsPrinted) {
  EXPECT_RUNTIME_ERROR(
      printing.Print(u"text"_s, window, [] { throw RuntimeError(ErrorNumber::Printer); }),
      ErrorNumber::Printer);
  EXPECT_TRUE(IsShown());
  EXPECT_FALSE(window.findChild<QProgressBar*>()->isVisible());
  printing.Print(u"text"_s, window, [] {});
  EXPECT_FALSE(IsShown());
}

TEST_F(PrintingFormTest, AskingAgainMeanwhileDoesNothing) {
  int prints = 0;
  printing.Print(u"text"_s, window, [&] {
    ++prints;
    printing.Print(u"again"_s, window, [&] { ++prints; });
    EXPECT_TRUE(IsShown());
  });
  EXPECT_EQ(prints, 1);
}

}  // namespace
}  // namespace tessaly::test
