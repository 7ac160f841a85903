#ifndef TESSALY_REFERENCE_HINT_FORM_H_
#define TESSALY_REFERENCE_HINT_FORM_H_

#include <QDialog>

class QLabel;
class QLayout;

namespace tessaly {

class ErrorBoundary;
class MainWindowView;
class Program;

// Where the answer to the question can be researched; leads on to the publication in the reference
// browser. Stands beside the main window and deletes itself when it is closed, in whatever way.
class frmHint : public QDialog {
  Q_OBJECT

public:
  frmHint(Program& program, MainWindowView& view, ErrorBoundary& errors, QWidget* parent);

  void SetHint(const QString& hint);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  [[nodiscard]] QLayout* BuildHint();
  [[nodiscard]] QLayout* BuildButtons();

  void lblHintLink_Click();
  void cmdView_Click();
  void cmdClose_Click();
  void Form_Unload();

  Program& program_;
  MainWindowView& view_;
  ErrorBoundary& errors_;
  QLabel* hintLink_ = nullptr;
};

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_HINT_FORM_H_
