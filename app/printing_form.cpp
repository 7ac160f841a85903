#include "app/printing_form.h"

#include <QScopeGuard>
#include <QScopedValueRollback>

#include "app/progress_form.h"

using namespace Qt::StringLiterals;

namespace tessaly {

PrintingForm::PrintingForm() = default;
PrintingForm::~PrintingForm() = default;

void PrintingForm::Print(const QString& text, QWidget& owner, const std::function<void()>& print) {
  if (printing_) {
    return;
  }
  const QScopedValueRollback<bool> busy(printing_, true);
  form_ = std::make_unique<ProgressForm>(u"frmPrinting"_s, u"lblPrint"_s, text, &owner);
  form_->ShowAndRepaint();
  auto failed = qScopeGuard([this] { form_->Rest(); });
  print();
  failed.dismiss();
  form_.reset();
}

}  // namespace tessaly
