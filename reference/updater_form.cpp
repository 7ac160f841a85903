#include "reference/updater_form.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kMargin = 24;
constexpr int kTextWidth = 360;

}  // namespace

frmLoadUpdater::frmLoadUpdater(QWidget* parent) : QDialog(parent) {
  setObjectName(u"frmLoadUpdater"_s);
  setWindowTitle(u"Updater"_s);
  setWindowModality(Qt::ApplicationModal);
  auto* text = new QLabel(
      u"Closing Tessaly to check for and download program updates.  You will need to manually "
      "restart Tessaly after the update is complete."_s);
  text->setObjectName(u"Label1"_s);
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  text->setFixedWidth(kTextWidth);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->addWidget(text);
  column->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace tessaly
