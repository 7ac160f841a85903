#ifndef TESSALY_REFERENCE_TIP_FORM_H_
#define TESSALY_REFERENCE_TIP_FORM_H_

#include <QDialog>

#include "reference/tip_of_the_day.h"

class QCheckBox;
class QLabel;
class QLayout;
class QScrollArea;

namespace tessaly {

class ErrorBoundary;
class Program;

// The tip of the day. Escape closes it like OK, but keeps a changed check box out of the options in
// memory.
class frmTip : public QDialog {
  Q_OBJECT

public:
  frmTip(Program& program, ErrorBoundary& errors, QWidget* parent);

  // Loads tips and picture and shows them until the dialog is closed. Does nothing at start-up when
  // tips are off. Raises the failures of TipOfTheDay::Load and, at start-up, those of the picture;
  // a tip that was asked for comes without it.
  void LoadAndShow(TipOccasion occasion);

private:
  [[nodiscard]] QLayout* BuildTip();
  [[nodiscard]] QLayout* BuildButtons();
  void LoadTipPicture(TipOccasion occasion);
  void ShowTip();

  void chkLoadTipsAtStartup_Click();
  void cmdNextTip_Click();
  void cmdOK_Click();

  QString programFolder_;
  TipOfTheDay tips_;
  ErrorBoundary& errors_;
  QLabel* picture_ = nullptr;
  QLabel* tipText_ = nullptr;
  QScrollArea* area_ = nullptr;
  QCheckBox* loadAtStartup_ = nullptr;
};

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_TIP_FORM_H_
