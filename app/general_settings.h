#ifndef TESSALY_APP_GENERAL_SETTINGS_H_
#define TESSALY_APP_GENERAL_SETTINGS_H_

#include <QDialog>
#include <array>

#include "app/option_choices.h"

class QCheckBox;
class QLayout;

namespace tessaly {

class ErrorBoundary;
class Program;

// The general settings dialog. Accepted when they were saved. Raises the failures of reading the
// options in memory (ChoicesOf).
class frmOptions : public QDialog {
  Q_OBJECT

public:
  frmOptions(Program& program, ErrorBoundary& errors, QWidget* parent);

private:
  [[nodiscard]] QWidget* BuildCheckBoxes();
  [[nodiscard]] QLayout* BuildButtons();
  void ShowChoices(const OptionChoices& choices);
  [[nodiscard]] OptionChoices Choices() const;

  void cmdResetOptions_Click();
  void cmdCancel_Click() { reject(); }
  void cmdSaveOptions_Click();

  OptionEditor editor_;
  ErrorBoundary& errors_;
  std::array<QCheckBox*, kOptionChoiceCount> checkBoxes_{};
};

}  // namespace tessaly

#endif  // TESSALY_APP_GENERAL_SETTINGS_H_
