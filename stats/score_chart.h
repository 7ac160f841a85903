#ifndef TESSALY_STATS_SCORE_CHART_H_
#define TESSALY_STATS_SCORE_CHART_H_

#include <QTableWidget>
#include <vector>

#include "stats/statistics_report.h"

namespace tessaly {

// A bar chart of percentages as a table: a name, a bar, the figure. A table, so that every value
// can be reached with the keyboard and is read aloud by a screen reader. Bars are told apart by
// their length and figure, never by colour alone; the line at 70 percent is dashed.
class ScoreChart : public QTableWidget {
  Q_OBJECT

public:
  ScoreChart(const QString& name, const QString& heading, const std::vector<ScoreFigure>& figures,
             QWidget* parent);
};

}  // namespace tessaly

#endif  // TESSALY_STATS_SCORE_CHART_H_
