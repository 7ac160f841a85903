#ifndef TESSALY_APP_CUSTOMIZE_TOOLBAR_H_
#define TESSALY_APP_CUSTOMIZE_TOOLBAR_H_

#include <QDialog>
#include <QList>

class QAction;
class QListWidget;
class QPushButton;
class QToolBar;

namespace tessaly {

// The buttons of a toolbar from first to last; a null pointer is a separator.
using ToolbarArrangement = QList<QAction*>;

// The arrangement that the program starts with, from the actions that `owner` holds.
[[nodiscard]] ToolbarArrangement DefaultArrangement(const QObject& owner);
// Fills the toolbar anew, all buttons of one width.
void ArrangeToolbar(QToolBar& toolbar, const ToolbarArrangement& arrangement);

// The Customize Toolbar dialog: adds, removes and reorders the buttons of a toolbar, which follows
// every change at once. Buttons are listed by their descriptions.
class frmCustomize : public QDialog {
  Q_OBJECT

public:
  frmCustomize(QToolBar& toolbar, const ToolbarArrangement& defaults, QWidget* parent);

private:
  void BuildLists();
  void FillLists();
  void Apply(const ToolbarArrangement& arrangement, qsizetype selectedRow);
  void MoveSelected(int step);
  void cmdAdd_Click();
  void cmdRemove_Click();
  void EnableButtons();
  [[nodiscard]] QPushButton* AddButton(const QString& name, const QString& caption,
                                       void (frmCustomize::*clicked)());
  [[nodiscard]] ToolbarArrangement Current() const;
  [[nodiscard]] QAction* SelectedAvailable() const;
  void cmdMoveUp_Click() { MoveSelected(-1); }
  void cmdMoveDown_Click() { MoveSelected(1); }
  void cmdReset_Click() { Apply(defaults_, 0); }

  QToolBar& toolbar_;
  ToolbarArrangement defaults_;
  QListWidget* available_;
  QListWidget* current_;
  QPushButton* add_ = nullptr;
  QPushButton* remove_ = nullptr;
  QPushButton* moveUp_ = nullptr;
  QPushButton* moveDown_ = nullptr;
  QPushButton* reset_ = nullptr;
};

}  // namespace tessaly

#endif  // TESSALY_APP_CUSTOMIZE_TOOLBAR_H_
