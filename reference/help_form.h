#ifndef TESSALY_REFERENCE_HELP_FORM_H_
#define TESSALY_REFERENCE_HELP_FORM_H_

#include <QDialog>

#include "reference/help_book.h"

class QLineEdit;
class QListWidget;
class QTabWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace tessaly {

class HelpPage;

// The help window: contents tree, index and full-text search on the left, the page on the right.
// Modeless. Making it raises the failures of HelpBook.
class frmHelp : public QDialog {
  Q_OBJECT

public:
  // `path` is the compiled help file's.
  frmHelp(const QString& path, QWidget* parent);

  // Goes to a page of the book, "page.html" or "page.html#anchor", and marks it in the contents.
  void ShowPage(const QString& link);

private:
  [[nodiscard]] QWidget* BuildFinders();
  [[nodiscard]] QWidget* BuildContents();
  [[nodiscard]] QWidget* BuildIndex();
  [[nodiscard]] QWidget* BuildSearch();
  [[nodiscard]] QWidget* BuildReader();
  void AddToContents(const std::vector<HelpEntry>& entries, QTreeWidgetItem* parent);
  void FilterIndex(const QString& beginning);
  void Search(const QString& query);
  void MarkInContents(const QString& page);

  HelpBook book_;
  QTabWidget* finders_ = nullptr;
  QTreeWidget* contents_ = nullptr;
  QListWidget* index_ = nullptr;
  QListWidget* found_ = nullptr;
  HelpPage* page_ = nullptr;
};

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_HELP_FORM_H_
