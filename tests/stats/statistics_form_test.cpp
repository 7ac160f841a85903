#include "stats/statistics_form.h"

#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <QTabWidget>

#include "tests/support/form_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

// Nine tenths of the smallest desktop, 640 by 400.
constexpr QSize kSmallestDesktop(576, 360);

class StatisticsFormTest : public FormTest<frmStats> {
protected:
  void OpenWithCharts(bool charts) {
    SetOption(u"GraphicStats"_s, charts ? u"1"_s : u"0"_s);
    program.Settings().LoadSettings();
    Open();
  }
  [[nodiscard]] QRect PlaceOf(const QString& name) const {
    const auto* control = Find<QWidget>(name);
    return {control->mapTo(form.get(), QPoint()), control->size()};
  }
  [[nodiscard]] QScrollBar* Sideways() const {
    return Find<QListWidget>(u"lstStats"_s)->horizontalScrollBar();
  }
};

TEST_F(StatisticsFormTest, AtFirstTheFormFitsTheScreen) {
  for (const bool charts : {false, true}) {
    OpenWithCharts(charts);
    const QSize room = form->screen()->availableSize();
    EXPECT_LE(form->frameGeometry().width(), room.width());
    EXPECT_LE(form->frameGeometry().height(), room.height());
  }
}

TEST_F(StatisticsFormTest, OnASmallDesktopEveryControlCanBeReached) {
  for (const bool charts : {false, true}) {
    OpenWithCharts(charts);
    form->resize(kSmallestDesktop);
    QTest::qWait(0);
    EXPECT_EQ(form->size(), kSmallestDesktop);
    for (const QString& name :
         {u"Frame1"_s, u"lstStats"_s, u"cmdPrintStats"_s, u"cmdResetStats"_s, u"cmdCloseStats"_s}) {
      EXPECT_TRUE(form->rect().contains(PlaceOf(name))) << name.toStdString();
    }
  }
}

TEST_F(StatisticsFormTest, OnASmallDesktopReportAndChartsStandSideBySide) {
  OpenWithCharts(true);
  form->resize(kSmallestDesktop);
  QTest::qWait(0);
  const QRect report = PlaceOf(u"lstStats"_s);
  const QRect charts = PlaceOf(u"tabCharts"_s);
  EXPECT_GE(report.width(), 200);
  EXPECT_GE(charts.width(), 240);
  EXPECT_LT(report.right(), charts.left());
  EXPECT_TRUE(form->rect().contains(charts));
}

TEST_F(StatisticsFormTest, AReportWithoutRoomScrollsSidewaysWithTheKeys) {
  OpenWithCharts(true);
  form->resize(kSmallestDesktop);
  QTest::qWait(0);
  EXPECT_GT(Sideways()->maximum(), 0);
  Find<QWidget>(u"lstStats"_s)->setFocus();
  Press(Qt::Key_Right);
  EXPECT_GT(Sideways()->value(), 0);
}

TEST_F(StatisticsFormTest, WhereThereIsRoomEveryColumnShows) {
  bank.RunOnAnswers(u"UPDATE SubjectStats SET TMAsked = 1000, TMCorrect = 1000"_s);
  program.Prepare();
  for (const bool charts : {false, true}) {
    OpenWithCharts(charts);
    form->resize(form->sizeHint());
    QTest::qWait(0);
    EXPECT_EQ(Sideways()->maximum(), 0);
  }
}

TEST_F(StatisticsFormTest, WithoutASubjectAskedTheChartSaysSo) {
  OpenWithCharts(true);
  auto* charts = Find<QTabWidget>(u"tabCharts"_s);
  charts->setCurrentIndex(1);
  const auto* line = Find<QLabel>(u"lblNothingAsked"_s);
  EXPECT_TRUE(line->isVisible());
  EXPECT_EQ(line->text(), u"No subject has been asked yet."_s);
}

}  // namespace
}  // namespace tessaly::test
