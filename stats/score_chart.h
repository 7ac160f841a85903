#ifndef TESSALY_STATS_SCORE_CHART_H_
#define TESSALY_STATS_SCORE_CHART_H_

#include <QTableWidget>
#include <QWidget>
#include <vector>

#include "stats/statistics_report.h"

namespace tessaly {

// A bar chart of percentages as a table: a name, a bar, the figure. A table, so that every value
// can be reached with the keyboard and is read aloud by a screen reader. Bars are told apart by
// their length and figure, never by colour alone; the line at 70 percent is dashed. The bar keeps a
// readable width; a name that finds no room beside it is cut and has a tool tip.
class ScoreChart : public QTableWidget {
  Q_OBJECT

public:
  ScoreChart(const QString& name, const QString& heading, const std::vector<ScoreFigure>& figures,
             QWidget* parent);

protected:
  void resizeEvent(QResizeEvent* event) override;

private:
  void FillRow(int row, const ScoreFigure& figure);
  void FitColumns();
  [[nodiscard]] int WidthOfContents(int column) const;
};

// A chart with the explanation of its dashed line, or a line of text where nothing is to be drawn.
class ScoreChartPage : public QWidget {
  Q_OBJECT

public:
  // `name` and `heading` are the chart's; `emptyText` is shown where there are no figures.
  ScoreChartPage(const QString& name, const QString& heading,
                 const std::vector<ScoreFigure>& figures, const QString& emptyText);
};

}  // namespace tessaly

#endif  // TESSALY_STATS_SCORE_CHART_H_
