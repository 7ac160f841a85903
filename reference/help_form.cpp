#include "reference/help_form.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/first_size.h"
#include "reference/help_page.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

// Wide enough for the book's pictures.
constexpr QSize kFirstSize(1140, 740);
constexpr int kFindersWidth = 290;
constexpr int kPageRole = Qt::UserRole;

void AddItem(QListWidget& list, const QString& title, const QString& page) {
  auto* item = new QListWidgetItem(title, &list);
  item->setData(kPageRole, page);
}

QListWidget* NewList(const QString& name, const QString& accessibleName, frmHelp* form) {
  auto* list = new QListWidget;
  list->setObjectName(name);
  list->setAccessibleName(accessibleName);
  const auto open = [form](const QListWidgetItem* item) {
    if (item != nullptr) {
      form->ShowPage(item->data(kPageRole).toString());
    }
  };
  QObject::connect(list, &QListWidget::currentItemChanged, form, open);
  QObject::connect(list, &QListWidget::itemClicked, form, open);
  return list;
}

QLineEdit* NewInput(const QString& name, const QString& placeholder) {
  auto* input = new QLineEdit;
  input->setObjectName(name);
  input->setPlaceholderText(placeholder);
  input->setAccessibleName(placeholder);
  input->setClearButtonEnabled(true);
  return input;
}

QWidget* Stack(QWidget* above, QWidget* below) {
  auto* panel = new QWidget;
  auto* column = new QVBoxLayout(panel);
  column->setContentsMargins(6, 6, 6, 6);
  column->addWidget(above);
  column->addWidget(below, 1);
  return panel;
}

}  // namespace

frmHelp::frmHelp(const QString& path, QWidget* parent) : QDialog(parent), book_(path) {
  setObjectName(u"frmHelp"_s);
  setWindowTitle(book_.Title());
  setWindowFlag(Qt::WindowMinMaxButtonsHint);
  auto* halves = new QSplitter;
  QWidget* reader = BuildReader();
  halves->addWidget(BuildFinders());
  halves->addWidget(reader);
  halves->setStretchFactor(1, 1);
  halves->setSizes({kFindersWidth, kFirstSize.width() - kFindersWidth});
  halves->setChildrenCollapsible(false);
  auto* row = new QHBoxLayout(this);
  row->addWidget(halves);
  resize(FirstSizeOn(*screen(), kFirstSize));
  ShowPage(book_.DefaultPage());
  contents_->setFocus();
}

QWidget* frmHelp::BuildFinders() {
  finders_ = new QTabWidget;
  finders_->setObjectName(u"tabFinders"_s);
  finders_->addTab(BuildContents(), u"&Contents"_s);
  finders_->addTab(BuildIndex(), u"I&ndex"_s);
  finders_->addTab(BuildSearch(), u"&Search"_s);
  return finders_;
}

QWidget* frmHelp::BuildContents() {
  contents_ = new QTreeWidget;
  contents_->setObjectName(u"treContents"_s);
  contents_->setAccessibleName(u"Contents"_s);
  contents_->setHeaderHidden(true);
  AddToContents(book_.Contents(), contents_->invisibleRootItem());
  contents_->expandAll();
  connect(contents_, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
    if (item != nullptr && !item->data(0, kPageRole).toString().isEmpty()) {
      ShowPage(item->data(0, kPageRole).toString());
    }
  });
  return contents_;
}

void frmHelp::AddToContents(const std::vector<HelpEntry>& entries, QTreeWidgetItem* parent) {
  for (const HelpEntry& entry : entries) {
    auto* item = new QTreeWidgetItem(parent, {entry.Title});
    item->setData(0, kPageRole, entry.Page);
    AddToContents(entry.Children, item);
  }
}

QWidget* frmHelp::BuildIndex() {
  QLineEdit* input = NewInput(u"txtIndex"_s, u"Find in the index"_s);
  index_ = NewList(u"lstIndex"_s, u"Index"_s, this);
  FilterIndex({});
  connect(input, &QLineEdit::textChanged, this, &frmHelp::FilterIndex);
  return Stack(input, index_);
}

void frmHelp::FilterIndex(const QString& part) {
  const QSignalBlocker quiet(index_);
  index_->clear();
  for (const HelpEntry& entry : book_.Index()) {
    if (entry.Title.contains(part, Qt::CaseInsensitive)) {
      AddItem(*index_, entry.Title, entry.Page);
    }
  }
}

QWidget* frmHelp::BuildSearch() {
  QLineEdit* input = NewInput(u"txtSearch"_s, u"Words to look for"_s);
  found_ = NewList(u"lstFound"_s, u"Pages found"_s, this);
  connect(input, &QLineEdit::textChanged, this, &frmHelp::Search);
  return Stack(input, found_);
}

void frmHelp::Search(const QString& query) {
  const QSignalBlocker quiet(found_);
  found_->clear();
  for (const HelpHit& hit : book_.Search(query)) {
    AddItem(*found_, hit.Title, hit.Page);
  }
  if (found_->count() == 0 && !query.trimmed().isEmpty()) {
    auto* none = new QListWidgetItem(u"No page has all these words."_s, found_);
    none->setFlags(Qt::NoItemFlags);
  }
}

QWidget* frmHelp::BuildReader() {
  page_ = new HelpPage(book_, this);
  page_->setObjectName(u"txtPage"_s);
  connect(page_, &QTextBrowser::sourceChanged, this,
          [this](const QUrl& source) { MarkInContents(source.path()); });
  auto* buttons = new QHBoxLayout;
  const auto add = [&](const QString& name, const QString& caption, auto clicked) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, clicked);
    buttons->addWidget(button);
    return button;
  };
  QPushButton* back = add(u"cmdBack"_s, u"&Back"_s, [this] { page_->backward(); });
  QPushButton* forward = add(u"cmdForward"_s, u"&Forward"_s, [this] { page_->forward(); });
  buttons->addStretch();
  add(u"cmdClose"_s, u"Close"_s, [this] { close(); });
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(page_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
  auto* reader = new QWidget;
  auto* column = new QVBoxLayout(reader);
  column->setContentsMargins(6, 0, 0, 0);
  column->addWidget(page_, 1);
  column->addLayout(buttons);
  return reader;
}

void frmHelp::ShowPage(const QString& link) {
  page_->setSource(QUrl(link));
}

void frmHelp::MarkInContents(const QString& page) {
  const QSignalBlocker quiet(contents_);
  for (QTreeWidgetItemIterator at(contents_); *at != nullptr; ++at) {
    if (PageOf((*at)->data(0, kPageRole).toString()) == page) {
      contents_->setCurrentItem(*at);
      return;
    }
  }
}

}  // namespace tessaly
