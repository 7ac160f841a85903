#ifndef TESSALY_REFERENCE_FORM_2587_NOTICE_H_
#define TESSALY_REFERENCE_FORM_2587_NOTICE_H_

#include <QDialog>

class QCheckBox;
class QLayout;

namespace tessaly {

class ErrorBoundary;
class Program;

// The notice that the examination's application form may now be had. Making it raises the failures
// of its picture.
class frmForm2587 : public QDialog {
  Q_OBJECT

public:
  frmForm2587(Program& program, ErrorBoundary& errors, QWidget* parent);

private:
  [[nodiscard]] QLayout* BuildNotice();
  [[nodiscard]] QLayout* BuildButtons();
  void cmdOK_Click();

  Program& program_;
  ErrorBoundary& errors_;
  QCheckBox* suppress_ = nullptr;
};

// Whether the notice is to be shown at this start: it is due and was not dismissed for good.
[[nodiscard]] bool IsForm2587NoticeWanted(Program& program);

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_FORM_2587_NOTICE_H_
