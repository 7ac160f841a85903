#ifndef TESSALY_CATALOGUE_STUDY_MODE_WIZARD_H_
#define TESSALY_CATALOGUE_STUDY_MODE_WIZARD_H_

#include <QDialog>
#include <array>

#include "catalogue/wizard_pages.h"

class QButtonGroup;
class QComboBox;
class QGroupBox;
class QLabel;
class QLayout;
class QPushButton;
class QRadioButton;

namespace tessaly {

class ErrorBoundary;
class Program;

// The Study Mode wizard: one frame with option buttons and lists that are captioned, shown and
// hidden page by page. Accepted when the study selection was finished, rejected when it was
// cancelled or reset to its defaults.
class frmStudyMode : public QDialog {
  Q_OBJECT

public:
  frmStudyMode(Program& program, ErrorBoundary& errors, QWidget* parent);

private:
  [[nodiscard]] QLayout* BuildFrame();
  [[nodiscard]] QWidget* BuildLists();
  [[nodiscard]] QLayout* BuildButtons();
  [[nodiscard]] QComboBox* NewList(const QString& name, const QString& accessibleName);
  [[nodiscard]] QPushButton* NewButton(const QString& name, const QString& caption,
                                       void (frmStudyMode::*clicked)());
  void ShowPage();
  void ShowOptions();
  void ShowLists();
  void FocusChoice();
  [[nodiscard]] WizardChoice Choice() const;

  void cmdBack_Click();
  void cmdNext_Click();
  void cmdCancel_Click() { reject(); }
  void cmdDefaultMode_Click();

  WizardPages pages_;
  ErrorBoundary& errors_;
  QLabel* step_ = nullptr;
  QGroupBox* frame_ = nullptr;
  QButtonGroup* optionGroup_ = nullptr;
  std::array<QRadioButton*, kWizardOptionCount> options_{};
  QLabel* examLabel_ = nullptr;
  QLabel* sectionLabel_ = nullptr;
  QComboBox* exam_ = nullptr;
  QComboBox* section_ = nullptr;
  QComboBox* subject_ = nullptr;
  QPushButton* back_ = nullptr;
  QPushButton* next_ = nullptr;
};

}  // namespace tessaly

#endif  // TESSALY_CATALOGUE_STUDY_MODE_WIZARD_H_
