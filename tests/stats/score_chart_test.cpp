#include "stats/score_chart.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTest>

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

constexpr int kSmallestBarWidth = 140;
constexpr QSize kUsualSize(370, 300);
const QString kLongName = u"Depreciation and Amortization of Property Used in a Business"_s;

class ScoreChartTest : public ::testing::Test {
protected:
  void Open(const QString& name, QSize size = kUsualSize) {
    page = std::make_unique<ScoreChartPage>(u"chart"_s, u"Subject"_s,
                                            std::vector<ScoreFigure>{{name, 4, 75}}, QString());
    page->resize(size);
    page->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(page.get()));
    chart = page->findChild<ScoreChart*>();
  }

  std::unique_ptr<ScoreChartPage> page;
  ScoreChart* chart = nullptr;
};

TEST_F(ScoreChartTest, ALongNameLeavesTheBarItsRoom) {
  Open(kLongName);
  EXPECT_GE(chart->columnWidth(1), kSmallestBarWidth);
  EXPECT_EQ(chart->horizontalScrollBar()->maximum(), 0);
  EXPECT_LT(chart->columnWidth(0), chart->fontMetrics().horizontalAdvance(kLongName));
  EXPECT_EQ(chart->item(0, 0)->toolTip(), kLongName);
}

TEST_F(ScoreChartTest, AShortNameLeavesTheBarTheRest) {
  Open(u"Alimony"_s);
  EXPECT_GT(chart->columnWidth(1), kSmallestBarWidth);
  EXPECT_GE(chart->columnWidth(0), chart->fontMetrics().horizontalAdvance(u"Alimony"_s));
  EXPECT_EQ(chart->columnWidth(0) + chart->columnWidth(1) + chart->columnWidth(2),
            chart->viewport()->width());
}

TEST_F(ScoreChartTest, WithMoreRoomTheWholeNameShows) {
  Open(kLongName, {900, 300});
  EXPECT_GE(chart->columnWidth(0), chart->fontMetrics().horizontalAdvance(kLongName));
}

TEST_F(ScoreChartTest, WithLittleRoomTheChartScrollsSideways) {
  Open(kLongName, {240, 200});
  EXPECT_GE(chart->columnWidth(1), kSmallestBarWidth);
  EXPECT_GT(chart->horizontalScrollBar()->maximum(), 0);
}

TEST_F(ScoreChartTest, EveryHeadingFitsItsColumn) {
  Open(kLongName);
  EXPECT_EQ(chart->horizontalHeaderItem(1)->text(), u"0 to 100%"_s);
  for (int column = 0; column < chart->columnCount(); ++column) {
    EXPECT_GE(chart->columnWidth(column), chart->horizontalHeader()->sectionSizeHint(column));
  }
}

TEST_F(ScoreChartTest, TheDashedLineIsExplainedToTheEyeAndToAScreenReader) {
  Open(u"Alimony"_s);
  const auto* legend = page->findChild<QLabel*>(u"lblGoodScore"_s);
  ASSERT_NE(legend, nullptr);
  EXPECT_TRUE(legend->isVisible());
  EXPECT_EQ(legend->text(), u"Dashed line: 70 percent"_s);
  EXPECT_EQ(chart->accessibleDescription(), legend->text());
}

TEST_F(ScoreChartTest, TheKeysReachABarWhoseValueIsReadAloud) {
  Open(kLongName);
  chart->setFocus();
  chart->setCurrentCell(0, 0);
  QTest::keyClick(chart, Qt::Key_Right);
  EXPECT_EQ(chart->currentColumn(), 1);
  EXPECT_EQ(chart->currentItem()->data(Qt::AccessibleTextRole).toString(), kLongName + u": 75%"_s);
}

TEST(ScoreChartPageTest, WithoutFiguresALineOfTextTakesTheChartsPlace) {
  const ScoreChartPage page(u"chart"_s, u"Subject"_s, {}, u"Nothing yet."_s);
  EXPECT_EQ(page.findChild<ScoreChart*>(), nullptr);
  EXPECT_EQ(page.findChild<QLabel*>()->text(), u"Nothing yet."_s);
}

}  // namespace
}  // namespace tessaly::test
