#include "stats/statistics_form.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

#include "app/error_boundary.h"
#include "app/first_size.h"
#include "app/program.h"
#include "stats/reset_form.h"
#include "stats/score_chart.h"
#include "stats/statistics_printing.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kVisibleRows = 24;
constexpr int kChartWidth = 380;
constexpr QSize kSmallestList(200, 100);
constexpr int kSmallestChartWidth = 240;

// Shows every column and some two dozen rows where there is room, and scrolls where there is none.
class ReportList : public QListWidget {
public:
  using QListWidget::QListWidget;

  [[nodiscard]] QSize sizeHint() const override {
    const QFontMetrics metrics = fontMetrics();
    // The longest row, and one column for the splitter's handle, which takes its width from the
    // list.
    const int columns = kSubjectNameColumns + 31;
    const int margin = frameWidth() + style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
    return {columns * metrics.horizontalAdvance(u'0') + 2 * margin +
                verticalScrollBar()->sizeHint().width(),
            kVisibleRows * metrics.height()};
  }
  [[nodiscard]] QSize minimumSizeHint() const override { return kSmallestList; }

protected:
  // A list of one column has no other use for these two keys.
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right) {
      horizontalScrollBar()->triggerAction(event->key() == Qt::Key_Left
                                               ? QAbstractSlider::SliderSingleStepSub
                                               : QAbstractSlider::SliderSingleStepAdd);
      return;
    }
    QListWidget::keyPressEvent(event);
  }
};

// A page's own wish would make the charts as wide as their longest name.
class ChartTabs : public QTabWidget {
public:
  using QTabWidget::QTabWidget;

  [[nodiscard]] QSize sizeHint() const override {
    return {kChartWidth, QTabWidget::sizeHint().height()};
  }
  [[nodiscard]] QSize minimumSizeHint() const override {
    return {kSmallestChartWidth, QTabWidget::minimumSizeHint().height()};
  }
};

}  // namespace

frmStats::frmStats(Program& program, ErrorBoundary& errors, QWidget* parent)
    : QDialog(parent),
      program_(program),
      errors_(errors),
      report_(BuildStatisticsReport(program.State(), program.Bank())),
      list_(new ReportList) {
  program.State().Subjects.SubjectIndex = 0;
  setObjectName(u"frmStats"_s);
  setWindowTitle(u"Statistics"_s);
  auto* frame = new QGroupBox(report_.Caption);
  frame->setObjectName(u"Frame1"_s);
  auto* content = new QHBoxLayout(frame);
  auto* halves = new QSplitter;
  halves->setChildrenCollapsible(false);
  content->addWidget(halves);
  BuildReport();
  halves->addWidget(list_);
  if (program.State().ProgramOptions.GraphicStats == 1) {
    halves->addWidget(BuildCharts());
  }
  halves->setStretchFactor(0, 1);
  auto* column = new QVBoxLayout(this);
  column->addWidget(frame, 1);
  BuildButtons(column);
  resize(FirstSizeOn(*(parent != nullptr ? parent : this)->screen(), sizeHint()));
}

void frmStats::BuildReport() {
  list_->setObjectName(u"lstStats"_s);
  list_->setAccessibleName(report_.Caption);
  QFont fixedPitch(u"Courier New"_s);
  fixedPitch.setStyleHint(QFont::TypeWriter);
  list_->setFont(fixedPitch);
  list_->setTextElideMode(Qt::ElideNone);
  list_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  list_->addItems(report_.Lines);
}

QWidget* frmStats::BuildCharts() {
  auto* charts = new ChartTabs;
  charts->setObjectName(u"tabCharts"_s);
  charts->addTab(new ScoreChartPage(u"chtSections"_s, u"Exam part"_s, report_.Sections, {}),
                 u"By &Exam Section"_s);
  charts->addTab(new ScoreChartPage(u"chtSubjects"_s, u"Subject"_s, report_.Subjects,
                                    u"No subject has been asked yet."_s),
                 u"By &Subject"_s);
  return charts;
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
