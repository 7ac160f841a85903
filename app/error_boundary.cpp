#include "app/error_boundary.h"

#include "platform/message_boxes.h"
#include "store/runtime_error.h"
#include "store/settings_store.h"

using namespace Qt::StringLiterals;

namespace tessaly {

QString ErrorMessage(const RuntimeError& error, const QString& doing) {
  QString message = u"Run-time error '%1':\n\n%2\n\nWhile %3."_s.arg(
      QString::number(static_cast<int>(error.Number())), error.Text(), doing);
  if (!error.Detail().isEmpty()) {
    message += u'\n' + error.Detail();
  }
  return message;
}

bool ErrorBoundary::Run(const QString& doing, const std::function<void()>& work) {
  try {
    work();
    return true;
  } catch (const RuntimeError& error) {
    static_cast<void>(boxes_.Show(ErrorMessage(error, doing), kApplicationTitle, BoxIcon::Critical,
                                  BoxButtons::Ok));
    return false;
  }
}

}  // namespace tessaly
