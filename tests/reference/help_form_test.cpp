#include "reference/help_form.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>

#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class HelpFormTest : public ::testing::Test {
protected:
  HelpFormTest() {
    form.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
  }
  template <typename Widget>
  Widget& Find(const QString& name) {
    auto* widget = form.findChild<Widget*>(name);
    EXPECT_NE(widget, nullptr) << name.toStdString();
    return *widget;
  }
  QTextBrowser& Page() { return Find<QTextBrowser>(u"txtPage"_s); }
  void Click(const QString& name) { QTest::mouseClick(&Find<QPushButton>(name), Qt::LeftButton); }

  frmHelp form{QStringLiteral(TESSALY_HELP_FILE), nullptr};
};

TEST_F(HelpFormTest, ItOpensOnTheDefaultPageWithItsPlaceMarkedInTheContents) {
  EXPECT_EQ(form.windowTitle(), u"Tessaly Help"_s);
  EXPECT_EQ(Page().source().path(), u"welcome.html"_s);
  EXPECT_TRUE(Page().toPlainText().contains(u"Tessaly"_s));
  EXPECT_EQ(Find<QTreeWidget>(u"treContents"_s).currentItem()->text(0), u"Welcome to Tessaly"_s);
}

TEST_F(HelpFormTest, ASmallScreenHasRoomForItsFrameToo) {
  const QSize room = form.screen()->availableSize();
  ASSERT_LE(room.width(), 1140);
  EXPECT_EQ(form.width(), qRound(room.width() * 0.9));
  EXPECT_LE(form.height(), qRound(room.height() * 0.9));
}

TEST_F(HelpFormTest, TheArrowKeysGoThroughTheContents) {
  QTest::keyClick(&Find<QTreeWidget>(u"treContents"_s), Qt::Key_Down);
  EXPECT_EQ(Page().source().path(), u"getting-started.html"_s);
}

TEST_F(HelpFormTest, BackAndForwardGoWhereOneHasBeen) {
  EXPECT_FALSE(Find<QPushButton>(u"cmdBack"_s).isEnabled());
  form.ShowPage(u"printing.html"_s);
  Click(u"cmdBack"_s);
  EXPECT_EQ(Page().source().path(), u"welcome.html"_s);
  Click(u"cmdForward"_s);
  EXPECT_EQ(Page().source().path(), u"printing.html"_s);
}

TEST_F(HelpFormTest, TheIndexIsFilteredByWhatIsTyped) {
  Find<QTabWidget>(u"tabFinders"_s).setCurrentIndex(1);
  auto& list = Find<QListWidget>(u"lstIndex"_s);
  const int all = list.count();
  QTest::keyClicks(&Find<QLineEdit>(u"txtIndex"_s), u"alarm"_s);
  EXPECT_GT(list.count(), 0);
  EXPECT_LT(list.count(), all);
  list.setCurrentRow(0);
  EXPECT_EQ(Page().source().path(), u"timer.html"_s);
}

TEST_F(HelpFormTest, ASearchListsThePagesThatItFinds) {
  Find<QTabWidget>(u"tabFinders"_s).setCurrentIndex(2);
  QTest::keyClicks(&Find<QLineEdit>(u"txtSearch"_s), u"default printer"_s);
  auto& list = Find<QListWidget>(u"lstFound"_s);
  ASSERT_GT(list.count(), 0);
  list.setCurrentRow(0);
  EXPECT_TRUE(Page().toPlainText().contains(u"printer"_s));
}

TEST_F(HelpFormTest, ASearchThatFindsNothingSaysSo) {
  Find<QTabWidget>(u"tabFinders"_s).setCurrentIndex(2);
  QTest::keyClicks(&Find<QLineEdit>(u"txtSearch"_s), u"zebra"_s);
  EXPECT_EQ(Find<QListWidget>(u"lstFound"_s).item(0)->text(), u"No page has all these words."_s);
}

TEST_F(HelpFormTest, APageThatIsMissingSaysSoAndNothingOutsideTheBookIsShown) {
  form.ShowPage(u"no-such-page.html"_s);
  EXPECT_TRUE(Page().toPlainText().contains(u"This page is missing in the help file."_s));
  form.ShowPage(u"file:///etc/passwd"_s);
  EXPECT_FALSE(Page().toPlainText().contains(u"root:"_s));
}

TEST_F(HelpFormTest, APictureIsNeverWiderThanThePage) {
  for (const int width : {700, 1000}) {
    form.resize(width, 600);
    QTest::qWait(50);
    EXPECT_EQ(Page().horizontalScrollBar()->maximum(), 0) << width;
  }
}

TEST_F(HelpFormTest, EscapeClosesIt) {
  QTest::keyClick(&form, Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
}

}  // namespace
}  // namespace tessaly::test
