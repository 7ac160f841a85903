#include "stats/score_chart.h"

#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

enum Column { kNameColumn, kBarColumn, kScoreColumn, kColumnCount };

constexpr int kFullScore = 100;
constexpr int kGoodScore = 70;
constexpr int kSmallestBarWidth = 140;
constexpr int kSmallestNameWidth = 90;

// Paints the cell's percentage as a bar on a scale from 0 to 100.
class BarDelegate : public QStyledItemDelegate {
public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    constexpr int kMargin = 4;
    const QRectF scale = QRectF(option.rect).adjusted(2, kMargin, -2, -kMargin);
    const qreal score = qBound(0, index.data(Qt::UserRole).toInt(), kFullScore);
    QRectF bar = scale;
    bar.setWidth(scale.width() * score / kFullScore);
    painter->save();
    painter->fillRect(scale, option.palette.color(QPalette::AlternateBase));
    // A dark blue keeps its contrast for every kind of colour vision, and on a grey print.
    painter->fillRect(bar, QColor(0x1f, 0x4e, 0x8c));
    painter->setPen(QPen(option.palette.color(QPalette::Text), 1, Qt::DashLine));
    const qreal goodAt = scale.left() + scale.width() * kGoodScore / kFullScore;
    painter->drawLine(QPointF(goodAt, scale.top()), QPointF(goodAt, scale.bottom()));
    painter->restore();
  }
};

QTableWidgetItem* NewCell(const QString& text, Qt::Alignment alignment) {
  auto* cell = new QTableWidgetItem(text);
  cell->setTextAlignment(alignment | Qt::AlignVCenter);
  cell->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  return cell;
}

}  // namespace

ScoreChart::ScoreChart(const QString& name, const QString& heading,
                       const std::vector<ScoreFigure>& figures, QWidget* parent)
    : QTableWidget(static_cast<int>(figures.size()), kColumnCount, parent) {
  setObjectName(name);
  setAccessibleName(heading);
  setHorizontalHeaderLabels({heading, u"0 to 100%"_s, u"Score"_s});
  setItemDelegateForColumn(kBarColumn, new BarDelegate(this));
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  for (int row = 0; row < rowCount(); ++row) {
    FillRow(row, figures[static_cast<std::size_t>(row)]);
  }
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setHighlightSections(false);
}

void ScoreChart::FillRow(int row, const ScoreFigure& figure) {
  // A part never asked has no score, which is not the same as a score of nothing.
  const QString score = figure.Asked < 1 ? u"not asked"_s : QString::number(figure.Score) + u'%';
  QTableWidgetItem* name = NewCell(figure.Name, Qt::AlignLeft);
  name->setToolTip(figure.Name);
  setItem(row, kNameColumn, name);
  QTableWidgetItem* bar = NewCell({}, Qt::AlignLeft);
  bar->setData(Qt::UserRole, figure.Score);
  bar->setData(Qt::AccessibleTextRole, figure.Name + u": "_s + score);
  setItem(row, kBarColumn, bar);
  setItem(row, kScoreColumn, NewCell(score, Qt::AlignRight));
}

void ScoreChart::resizeEvent(QResizeEvent* event) {
  FitColumns();
  QTableWidget::resizeEvent(event);
}

// The names get what they need as long as the bars keep a length that can be compared.
void ScoreChart::FitColumns() {
  const int score = WidthOfContents(kScoreColumn);
  const int room = viewport()->width() - score;
  const int name =
      qMax(kSmallestNameWidth, qMin(WidthOfContents(kNameColumn), room - kSmallestBarWidth));
  setColumnWidth(kNameColumn, name);
  setColumnWidth(kBarColumn, qMax(kSmallestBarWidth, room - name));
  setColumnWidth(kScoreColumn, score);
}

int ScoreChart::WidthOfContents(int column) const {
  return qMax(sizeHintForColumn(column), horizontalHeader()->sectionSizeHint(column));
}

ScoreChartPage::ScoreChartPage(const QString& name, const QString& heading,
                               const std::vector<ScoreFigure>& figures, const QString& emptyText) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  if (figures.empty()) {
    auto* empty = new QLabel(emptyText);
    empty->setObjectName(u"lblNothingAsked"_s);
    empty->setAlignment(Qt::AlignCenter);
    empty->setWordWrap(true);
    column->addWidget(empty);
    return;
  }
  auto* chart = new ScoreChart(name, heading, figures, this);
  auto* legend = new QLabel(u"Dashed line: %1 percent"_s.arg(kGoodScore));
  legend->setObjectName(u"lblGoodScore"_s);
  legend->setMargin(4);
  chart->setAccessibleDescription(legend->text());
  column->addWidget(chart, 1);
  column->addWidget(legend);
}

}  // namespace tessaly
