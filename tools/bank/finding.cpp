#include "tools/bank/finding.h"

using namespace Qt::StringLiterals;

namespace tessaly::bank {

QString ToText(const Finding& finding) {
  const Place& place = finding.place;
  QString text = place.file + u':';
  if (place.line > 0) {
    text += u"%1:"_s.arg(place.line);
  }
  if (place.number != 0) {
    text += u" question %1:"_s.arg(place.number);
  }
  return text + u' ' + finding.text;
}

}  // namespace tessaly::bank
