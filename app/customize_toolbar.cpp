#include "app/customize_toolbar.h"

#include <QAction>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>

#include "app/main_window_commands.h"
#include "app/pane_layout.h"
#include "app/twips.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kActionRole = Qt::UserRole;

QListWidgetItem* NewItem(QAction* action) {
  auto* item = new QListWidgetItem(action == nullptr ? u"Separator"_s : action->data().toString());
  if (action != nullptr) {
    item->setIcon(action->icon());
  }
  item->setData(kActionRole, QVariant::fromValue(action));
  return item;
}

QAction* ActionOf(const QListWidgetItem* item) {
  return item->data(kActionRole).value<QAction*>();
}

}  // namespace

ToolbarArrangement DefaultArrangement(const QObject& owner) {
  ToolbarArrangement arrangement;
  for (const ToolButtonEntry& entry : kToolButtons) {
    arrangement.append(owner.findChild<QAction*>(u"Toolbar1."_s + entry.key));
  }
  return arrangement;
}

void ArrangeToolbar(QToolBar& toolbar, const ToolbarArrangement& arrangement) {
  toolbar.clear();
  constexpr int kMargin = 6;
  for (QAction* action : arrangement) {
    if (action == nullptr) {
      toolbar.addSeparator();
      continue;
    }
    toolbar.addAction(action);
    QWidget* button = toolbar.widgetForAction(action);
    button->setFixedWidth(ToPixels(kNavigationBarWidth) - kMargin);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(action->toolTip());
  }
}

frmCustomize::frmCustomize(QToolBar& toolbar, const ToolbarArrangement& defaults, QWidget* parent)
    : QDialog(parent),
      toolbar_(toolbar),
      defaults_(defaults),
      available_(new QListWidget),
      current_(new QListWidget) {
  setObjectName(u"frmCustomize"_s);
  setWindowTitle(u"Customize Toolbar"_s);
  BuildLists();
  FillLists();
  current_->setCurrentRow(0);
  EnableButtons();
}

void frmCustomize::BuildLists() {
  available_->setObjectName(u"lstAvailable"_s);
  current_->setObjectName(u"lstCurrent"_s);
  // Room for every button, as the dialog is opened.
  const int rowHeight = toolbar_.iconSize().height() + 4;
  current_->setMinimumHeight(rowHeight * static_cast<int>(defaults_.size() + 1));
  auto* availableLabel = new QLabel(u"A&vailable toolbar buttons:"_s);
  availableLabel->setBuddy(available_);
  auto* currentLabel = new QLabel(u"C&urrent toolbar buttons:"_s);
  currentLabel->setBuddy(current_);
  add_ = AddButton(u"cmdAdd"_s, u"&Add ->"_s, &frmCustomize::cmdAdd_Click);
  remove_ = AddButton(u"cmdRemove"_s, u"<- &Remove"_s, &frmCustomize::cmdRemove_Click);
  moveUp_ = AddButton(u"cmdMoveUp"_s, u"Move &Up"_s, &frmCustomize::cmdMoveUp_Click);
  moveDown_ = AddButton(u"cmdMoveDown"_s, u"Move &Down"_s, &frmCustomize::cmdMoveDown_Click);
  reset_ = AddButton(u"cmdReset"_s, u"R&eset"_s, &frmCustomize::cmdReset_Click);
  auto* close = new QPushButton(u"&Close"_s);
  close->setObjectName(u"cmdClose"_s);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);

  auto* middle = new QVBoxLayout;
  middle->addStretch();
  middle->addWidget(add_);
  middle->addWidget(remove_);
  middle->addStretch();
  auto* right = new QVBoxLayout;
  right->addWidget(close);
  right->addWidget(reset_);
  right->addSpacing(20);
  right->addWidget(moveUp_);
  right->addWidget(moveDown_);
  right->addStretch();
  auto* grid = new QGridLayout(this);
  grid->addWidget(availableLabel, 0, 0);
  grid->addWidget(currentLabel, 0, 2);
  grid->addWidget(available_, 1, 0);
  grid->addLayout(middle, 1, 1);
  grid->addWidget(current_, 1, 2);
  grid->addLayout(right, 1, 3);
  for (QListWidget* list : {available_, current_}) {
    connect(list, &QListWidget::currentRowChanged, this, [this] { EnableButtons(); });
  }
  connect(available_, &QListWidget::itemDoubleClicked, this, [this] { cmdAdd_Click(); });
  connect(current_, &QListWidget::itemDoubleClicked, this, [this] { cmdRemove_Click(); });
}

void frmCustomize::FillLists() {
  available_->clear();
  current_->clear();
  available_->addItem(NewItem(nullptr));
  const QList<QAction*> shown = toolbar_.actions();
  for (QAction* action : std::as_const(defaults_)) {
    if (!shown.contains(action)) {
      available_->addItem(NewItem(action));
    }
  }
  for (QAction* action : shown) {
    current_->addItem(NewItem(action->isSeparator() ? nullptr : action));
  }
}

void frmCustomize::Apply(const ToolbarArrangement& arrangement, qsizetype selectedRow) {
  const int availableRow = available_->currentRow();
  ArrangeToolbar(toolbar_, arrangement);
  FillLists();
  available_->setCurrentRow(std::min(availableRow, available_->count() - 1));
  current_->setCurrentRow(std::min(static_cast<int>(selectedRow), current_->count() - 1));
  EnableButtons();
}

void frmCustomize::MoveSelected(int step) {
  const int from = current_->currentRow();
  const int to = from + step;
  ToolbarArrangement arrangement = Current();
  if (from >= 0 && to >= 0 && to < arrangement.size()) {
    arrangement.move(from, to);
    Apply(arrangement, to);
  }
}

// Before the button selected on the right, as one reads.
void frmCustomize::cmdAdd_Click() {
  if (available_->currentItem() == nullptr) {
    return;
  }
  ToolbarArrangement arrangement = Current();
  const qsizetype place = current_->currentRow() < 0 ? arrangement.size() : current_->currentRow();
  arrangement.insert(place, SelectedAvailable());
  Apply(arrangement, place + 1);
}

void frmCustomize::cmdRemove_Click() {
  const int row = current_->currentRow();
  if (row >= 0) {
    ToolbarArrangement arrangement = Current();
    arrangement.removeAt(row);
    Apply(arrangement, row);
  }
}

void frmCustomize::EnableButtons() {
  const int row = current_->currentRow();
  add_->setEnabled(available_->currentRow() >= 0);
  remove_->setEnabled(row >= 0);
  moveUp_->setEnabled(row > 0);
  moveDown_->setEnabled(row >= 0 && row + 1 < current_->count());
}

QPushButton* frmCustomize::AddButton(const QString& name, const QString& caption,
                                     void (frmCustomize::*clicked)()) {
  auto* button = new QPushButton(caption, this);
  button->setObjectName(name);
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, clicked);
  return button;
}

ToolbarArrangement frmCustomize::Current() const {
  ToolbarArrangement arrangement;
  for (int row = 0; row < current_->count(); ++row) {
    arrangement.append(ActionOf(current_->item(row)));
  }
  return arrangement;
}

QAction* frmCustomize::SelectedAvailable() const {
  return ActionOf(available_->currentItem());
}

}  // namespace tessaly
