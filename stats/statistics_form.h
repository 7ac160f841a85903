#ifndef TESSALY_STATS_STATISTICS_FORM_H_
#define TESSALY_STATS_STATISTICS_FORM_H_

#include <QDialog>

#include "app/printing_form.h"
#include "stats/statistics_report.h"

class QListWidget;
class QPushButton;
class QVBoxLayout;

namespace tessaly {

class ErrorBoundary;
class Program;

// The statistics of the current study mode as text, and beside it as charts where the option asks
// for them. A snapshot of the moment it is made; making it raises the failures of the store. Never
// larger at first than the screen; where the parts find no room they scroll.
class frmStats : public QDialog {
  Q_OBJECT

public:
  frmStats(Program& program, ErrorBoundary& errors, QWidget* parent);

  [[nodiscard]] const StatisticsReport& Report() const { return report_; }

private:
  void BuildReport();
  [[nodiscard]] QWidget* BuildCharts();
  void BuildButtons(QVBoxLayout* column);
  void cmdPrintStats_Click();
  void cmdResetStats_Click();

  Program& program_;
  ErrorBoundary& errors_;
  StatisticsReport report_;
  QListWidget* list_;
  PrintingForm printing_;
};

}  // namespace tessaly

#endif  // TESSALY_STATS_STATISTICS_FORM_H_
