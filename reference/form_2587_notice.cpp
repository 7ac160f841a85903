#include "reference/form_2587_notice.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/error_boundary.h"
#include "app/picture.h"
#include "app/program.h"
#include "platform/clock.h"
#include "reference/exam_application.h"
#include "store/settings_store.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kMargin = 16;
constexpr int kTextWidth = 330;

QLabel* NewText(const QString& name, const QString& text) {
  auto* label = new QLabel(text);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setFixedWidth(kTextWidth);
  return label;
}

}  // namespace

frmForm2587::frmForm2587(Program& program, ErrorBoundary& errors, QWidget* parent)
    : QDialog(parent), program_(program), errors_(errors) {
  setObjectName(u"frmForm2587"_s);
  setWindowTitle(u"Form 2587 May Now be Available"_s);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->setSpacing(kMargin);
  column->addLayout(BuildNotice());
  column->addLayout(BuildButtons());
  column->setSizeConstraint(QLayout::SetFixedSize);
}

QLayout* frmForm2587::BuildNotice() {
  auto* picture = new QLabel;
  picture->setObjectName(u"Picture1"_s);
  picture->setPixmap(LoadPicture(program_.State().Paths.ProgramFolder, u"tips.bmp"_s));
  auto* texts = new QVBoxLayout;
  texts->setSpacing(kMargin);
  texts->addStretch();
  texts->addWidget(NewText(
      u"Label1"_s,
      u"The updated version of Form 2587, Application for the Special Enrollment Examination, may "
      "now be available on the IRS web site."_s));
  texts->addWidget(NewText(u"Label2"_s,
                           u"To view and print Form 2587 from Tessaly, click Help | Exam "
                           "Application.  Form 2587 will be downloaded from the internet.."_s));
  texts->addStretch();
  auto* row = new QHBoxLayout;
  row->setSpacing(kMargin);
  row->addWidget(picture);
  row->addLayout(texts);
  return row;
}

QLayout* frmForm2587::BuildButtons() {
  suppress_ = new QCheckBox(u"Do not show this message again"_s);
  suppress_->setObjectName(u"Check1"_s);
  auto* okay = new QPushButton(u"OK"_s);
  okay->setObjectName(u"cmdOK"_s);
  okay->setDefault(true);
  okay->setFocus();
  connect(okay, &QPushButton::clicked, this, &frmForm2587::cmdOK_Click);
  auto* row = new QHBoxLayout;
  row->addWidget(suppress_);
  row->addStretch();
  row->addWidget(okay);
  return row;
}

void frmForm2587::cmdOK_Click() {
  errors_.Run(u"keeping the notice from being shown again"_s, [this] {
    if (suppress_->isChecked()) {
      program_.State().ProgramOptions.Suppress2587Msg = 1;
      program_.Machine().settings.Write(settings_section::kOptions, u"Suppress2587Msg"_s, u"1"_s);
    }
  });
  accept();
}

bool IsForm2587NoticeWanted(Program& program) {
  const Platform& machine = program.Machine();
  const QString suppressed =
      machine.settings.Read(settings_section::kOptions, u"Suppress2587Msg"_s, u"0"_s);
  return suppressed != u"1"_s && IsForm2587NoticeDue(machine.clock.Now().date());
}

}  // namespace tessaly
