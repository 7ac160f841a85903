#ifndef TESSALY_APP_PROGRESS_FORM_H_
#define TESSALY_APP_PROGRESS_FORM_H_

#include <QDialog>

class QProgressBar;

namespace tessaly {

// A small form with one line that says what the program is busy with. Modeless; goes away when it
// is destroyed.
class ProgressForm : public QDialog {
  Q_OBJECT

public:
  // `name` is the form's control name, `labelName` its label's.
  ProgressForm(const QString& name, const QString& labelName, const QString& text, QWidget* parent);

  // Shows the form and returns when it is painted; painting goes on at each further call.
  void ShowAndRepaint();
  // The line stays, but nothing moves any more: the work has ended before its time.
  void Rest();

private:
  QProgressBar* bar_;
};

}  // namespace tessaly

#endif  // TESSALY_APP_PROGRESS_FORM_H_
