#include "app/about.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/program.h"
#include "app/splash.h"

using namespace Qt::StringLiterals;

namespace tessaly {

frmAbout::frmAbout(Program& program, QWidget* parent) : QDialog(parent) {
  setObjectName(u"frmAbout"_s);
  setWindowTitle(u"About Tessaly"_s);
  const BankPaths& paths = program.State().Paths;
  auto* picture =
      new SplashPicture(paths.ProgramFolder, ReadTableVersion(program.Bank(), paths), this);
  auto* note = new QLabel(
      u"The questions are written for practice after the form and syllabus of each year's "
      u"examination. They are not the official examination questions."_s);
  note->setObjectName(u"lblNote"_s);
  note->setWordWrap(true);
  auto* ok = new QPushButton(u"OK"_s);
  ok->setObjectName(u"cmdOK"_s);
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);

  auto* below = new QHBoxLayout;
  below->setContentsMargins(16, 4, 16, 12);
  below->setSpacing(24);
  below->addWidget(note, 1);
  below->addWidget(ok);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(picture);
  column->addLayout(below);
  column->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace tessaly
