#ifndef TESSALY_APP_PRINTING_FORM_H_
#define TESSALY_APP_PRINTING_FORM_H_

#include <QString>
#include <functional>
#include <memory>

class QWidget;

namespace tessaly {

class ProgressForm;

// frmPrinting, the form that says what is being printed, for one window that prints.
class PrintingForm {
public:
  PrintingForm();
  PrintingForm(const PrintingForm&) = delete;
  PrintingForm& operator=(const PrintingForm&) = delete;
  ~PrintingForm();

  // Shows the form over its owner while `print` works; events are handled meanwhile, and a second
  // call before the first has ended does nothing. When printing fails, the form stays until the
  // user closes it or prints again.
  void Print(const QString& text, QWidget& owner, const std::function<void()>& print);

private:
  std::unique_ptr<ProgressForm> form_;
  bool printing_ = false;
};

}  // namespace tessaly

#endif  // TESSALY_APP_PRINTING_FORM_H_
