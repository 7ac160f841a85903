#include "stats/reset_form.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QScopeGuard>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "app/error_boundary.h"
#include "app/program.h"
#include "app/progress_form.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

struct ScopeEntry {
  ResetScope scope = ResetScope::CurrentSection;
  QLatin1StringView name;  // behind "optT" and "optE"
  QLatin1StringView caption;
  bool bySubject = false;
};

constexpr std::array kScopes{
    ScopeEntry{ResetScope::CurrentSection, "CurrentSection"_L1,
               "Reset current section statistics"_L1, false},
    ScopeEntry{ResetScope::CurrentExam, "CurrentExam"_L1, "Reset current exam statistics"_L1,
               false},
    ScopeEntry{ResetScope::AllExams, "AllExams"_L1, "Reset ALL exam statistics"_L1, false},
    ScopeEntry{ResetScope::CurrentSubject, "CurrentSubject"_L1,
               "Reset current subject statistics"_L1, true},
    ScopeEntry{ResetScope::AllSubjects, "AllSubjects"_L1, "Reset all subject statistics"_L1, true},
};

template <typename Buttons>
std::optional<ResetScope> CheckedScope(const Buttons& buttons) {
  for (std::size_t i = 0; i < kScopes.size(); ++i) {
    if (buttons[i]->isChecked()) {
      return kScopes[i].scope;
    }
  }
  return std::nullopt;
}

}  // namespace

frmResetChoices::frmResetChoices(Program& program, ErrorBoundary& errors, QDialog& statistics)
    : QDialog(statistics.isVisible() ? &statistics : statistics.parentWidget()),
      errors_(errors),
      statistics_(statistics),
      bySubject_(program.State().Selection.Method == kBySubject),
      reset_(program.State(), program.Machine().settings, program.Bank(), program.Machine().boxes,
             *this),
      all_(new QCheckBox(u"RESET ALL STATISTICS"_s)),
      allDifficult_(new QCheckBox(
          u"Reset statistics for ALL questions which were previously answered incorrectly"_s)) {
  setObjectName(u"frmResetChoices"_s);
  setWindowTitle(u"Reset Statistics"_s);
  all_->setObjectName(u"chkResetAll"_s);
  allDifficult_->setObjectName(u"chkAllDifficult"_s);
  auto* groups = new QHBoxLayout;
  groups->addWidget(BuildGroup(u"Frame3"_s, u"Reset Tutorial Mode Statistics"_s, u'T', tutorial_));
  groups->addWidget(
      BuildGroup(u"Frame1"_s, u"Reset Evaluation Mode Statistics"_s, u'E', evaluation_));
  auto* column = new QVBoxLayout(this);
  column->setSpacing(10);
  column->addWidget(all_);
  column->addWidget(allDifficult_);
  column->addLayout(groups);
  BuildButtons(column);
  column->setSizeConstraint(QLayout::SetFixedSize);
  connect(allDifficult_, &QCheckBox::clicked, this, &frmResetChoices::chkAllDifficult_Click);
}

frmResetChoices::~frmResetChoices() = default;

QGroupBox* frmResetChoices::BuildGroup(const QString& name, const QString& caption, QChar letter,
                                       ScopeButtons& buttons) {
  auto* group = new QGroupBox(caption);
  group->setObjectName(name);
  auto* column = new QVBoxLayout(group);
  for (std::size_t i = 0; i < kScopes.size(); ++i) {
    buttons[i] = new QRadioButton(kScopes[i].caption);
    buttons[i]->setObjectName(u"opt"_s + letter + kScopes[i].name);
    buttons[i]->setEnabled(kScopes[i].bySubject == bySubject_);
    column->addWidget(buttons[i]);
  }
  return group;
}

void frmResetChoices::BuildButtons(QVBoxLayout* column) {
  auto* reset = new QPushButton(u"Reset"_s);
  reset->setObjectName(u"cmdReset"_s);
  // Enter deletes nothing.
  reset->setAutoDefault(false);
  connect(reset, &QPushButton::clicked, this, [this] { cmdReset_Click(); });
  auto* cancel = new QPushButton(u"Cancel"_s);
  cancel->setObjectName(u"cmdCancel"_s);
  cancel->setDefault(true);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  auto* row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(reset);
  row->addWidget(cancel);
  column->addLayout(row);
}

ResetChoices frmResetChoices::Choices() const {
  return {all_->isChecked(), allDifficult_->isChecked(), CheckedScope(tutorial_),
          CheckedScope(evaluation_)};
}

void frmResetChoices::cmdReset_Click() {
  errors_.Run(u"resetting statistics"_s, [this] {
    // A failure's message must not stand beside a form that says that the work goes on.
    const auto workEnds = qScopeGuard([this] { progress_.reset(); });
    reset_.Run(Choices());
  });
}

void frmResetChoices::chkAllDifficult_Click(bool checked) {
  if (checked) {
    reset_.ConfirmAllDifficult();
  }
}

void frmResetChoices::SetBusyPointer(bool busy) {
  if (busy) {
    QApplication::setOverrideCursor(Qt::BusyCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

void frmResetChoices::ShowProgress() {
  if (!progress_) {
    progress_ = std::make_unique<ProgressForm>(u"frmResetting"_s, u"lblResetting"_s,
                                               u"Resetting Timer and Statistics..."_s, this);
  }
  progress_->ShowAndRepaint();
}

void frmResetChoices::ShowStatistics() {
  if (statistics_.isVisible()) {
    return;
  }
  statistics_.show();
  // The form came up over this dialog, which blocks it and so must stay in front of it.
  windowHandle()->setTransientParent(statistics_.windowHandle());
  raise();
  activateWindow();
}

void frmResetChoices::UnloadForms() {
  progress_.reset();
  accept();
  statistics_.accept();
}

}  // namespace tessaly
