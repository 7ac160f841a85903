#include "stats/statistics_form.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "app/error_boundary.h"
#include "app/program.h"
#include "stats/reset_form.h"
#include "stats/score_chart.h"
#include "stats/statistics_printing.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kVisibleRows = 24;
constexpr int kChartWidth = 380;

}  // namespace

frmStats::frmStats(Program& program, ErrorBoundary& errors, QWidget* parent)
    : QDialog(parent),
      program_(program),
      errors_(errors),
      report_(BuildStatisticsReport(program.State(), program.Bank())),
      list_(new QListWidget) {
  program.State().Subjects.SubjectIndex = 0;
  setObjectName(u"frmStats"_s);
  setWindowTitle(u"Statistics"_s);
  auto* frame = new QGroupBox(report_.Caption);
  frame->setObjectName(u"Frame1"_s);
  auto* content = new QHBoxLayout(frame);
  BuildReport();
  content->addWidget(list_, 1);
  if (program.State().ProgramOptions.GraphicStats == 1) {
    BuildCharts(content);
  }
  auto* column = new QVBoxLayout(this);
  column->addWidget(frame, 1);
  BuildButtons(column);
}

void frmStats::BuildReport() {
  list_->setObjectName(u"lstStats"_s);
  list_->setAccessibleName(report_.Caption);
  QFont fixedPitch(u"Courier New"_s);
  fixedPitch.setStyleHint(QFont::TypeWriter);
  list_->setFont(fixedPitch);
  list_->setUniformItemSizes(true);
  list_->addItems(report_.Lines);
  const QFontMetrics metrics = list_->fontMetrics();
  const int columns = kSubjectNameColumns + 30;
  list_->setMinimumSize(
      columns * metrics.horizontalAdvance(u'0') + list_->verticalScrollBar()->sizeHint().width(),
      kVisibleRows * metrics.height());
}

void frmStats::BuildCharts(QLayout* beside) {
  auto* charts = new QTabWidget;
  charts->setObjectName(u"tabCharts"_s);
  charts->setMinimumWidth(kChartWidth);
  charts->addTab(new ScoreChart(u"chtSections"_s, u"Exam part"_s, report_.Sections, charts),
                 u"By &Exam Section"_s);
  charts->addTab(new ScoreChart(u"chtSubjects"_s, u"Subject"_s, report_.Subjects, charts),
                 u"By &Subject"_s);
  beside->addWidget(charts);
}

void frmStats::BuildButtons(QVBoxLayout* column) {
  auto* row = new QHBoxLayout;
  row->addStretch();
  const auto add = [&](const QString& name, const QString& caption, auto clicked) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, clicked);
    row->addWidget(button);
    return button;
  };
  add(u"cmdPrintStats"_s, u"Print"_s, [this] { cmdPrintStats_Click(); });
  add(u"cmdResetStats"_s, u"Reset"_s, [this] { cmdResetStats_Click(); });
  QPushButton* close = add(u"cmdCloseStats"_s, u"Close"_s, [this] { accept(); });
  close->setDefault(true);
  close->setFocus();
  column->addLayout(row);
}

void frmStats::cmdPrintStats_Click() {
  errors_.Run(u"printing the statistics"_s, [this] {
    printing_.Print(kPrintingStatistics, *this,
                    [this] { PrintStatistics(report_.Blocks, program_.Machine().printer); });
  });
}

void frmStats::cmdResetStats_Click() {
  frmResetChoices dialog(program_, errors_, *this);
  dialog.exec();
}

}  // namespace tessaly
