#include "backup/backup_form.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "app/error_boundary.h"
#include "app/program.h"
#include "platform/drives.h"

using namespace Qt::StringLiterals;

namespace tessaly {

frmBackup::frmBackup(Program& program, ErrorBoundary& errors, PlacedWindow& mainWindow,
                     QWidget* parent)
    : QDialog(parent),
      program_(program),
      errors_(errors),
      backup_(program, mainWindow, *this),
      description_(new QLabel(
          u"You are preparing to back up your study statistics to a floppy disk or other removable "
          u"media.  Select the drive containing the removal media and click OK to continue."_s)),
      selectCaption_(new QLabel(u"Select drive:"_s)),
      drives_(new QComboBox),
      noDrive_(new QLabel(u"No removable drive is connected."_s)),
      ok_(new QPushButton(u"OK"_s)),
      cancel_(new QPushButton(u"Cancel"_s)) {
  setObjectName(u"frmBackup"_s);
  BuildControls();
  BuildLayout();
  Form_Load();
}

void frmBackup::SetSelectCaption(const QString& caption) {
  selectCaption_->setText(caption);
}

void frmBackup::SetDescription(const QString& description) {
  description_->setText(description);
}

void frmBackup::BuildControls() {
  constexpr int kDescriptionWidth = 380;
  description_->setObjectName(u"lblDesc"_s);
  description_->setWordWrap(true);
  description_->setFixedWidth(kDescriptionWidth);
  description_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  selectCaption_->setObjectName(u"lblSelectFloppy"_s);
  selectCaption_->setBuddy(drives_);
  drives_->setObjectName(u"drvSelectDrive"_s);
  drives_->setAccessibleName(u"Drive"_s);
  drives_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  noDrive_->setObjectName(u"lblNoDrive"_s);
  ok_->setObjectName(u"OKButton"_s);
  ok_->setDefault(true);
  cancel_->setObjectName(u"CancelButton"_s);
  // The dialog keeps its size when they are hidden.
  for (QWidget* control : {static_cast<QWidget*>(selectCaption_), static_cast<QWidget*>(drives_),
                           static_cast<QWidget*>(ok_), static_cast<QWidget*>(cancel_)}) {
    QSizePolicy policy = control->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control->setSizePolicy(policy);
  }
  connect(drives_, &QComboBox::currentIndexChanged, this, [this] { drvSelectDrive_Change(); });
  connect(ok_, &QPushButton::clicked, this, &frmBackup::OKButton_Click);
  connect(cancel_, &QPushButton::clicked, this, &frmBackup::reject);
}

void frmBackup::BuildLayout() {
  auto* buttons = new QHBoxLayout;
  constexpr int kSpacing = 8;
  buttons->setSpacing(kSpacing);
  buttons->addStretch();
  buttons->addWidget(ok_);
  buttons->addWidget(cancel_);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(16, 16, 16, 16);
  grid->setVerticalSpacing(14);
  grid->addWidget(description_, 0, 0, 1, 2);
  grid->addWidget(selectCaption_, 1, 0);
  grid->addWidget(drives_, 1, 1);
  grid->addWidget(noDrive_, 1, 1);
  grid->addLayout(buttons, 2, 0, 1, 2);
  grid->setColumnStretch(1, 1);
  grid->setSizeConstraint(QLayout::SetFixedSize);
}

void frmBackup::Form_Load() {
  BackupState& backup = program_.State().Backup;
  setWindowTitle(backup.Direction == kRestore ? u"Restore Statistics"_s : u"Back Up Statistics"_s);
  backup.SelectedDrive.clear();
  ListDrives();
  constexpr int kListingMilliseconds = 1000;
  auto* listing = new QTimer(this);
  connect(listing, &QTimer::timeout, this, &frmBackup::ListDrives);
  listing->start(kListingMilliseconds);
}

void frmBackup::ListDrives() {
  if (working_) {
    return;
  }
  for (const Drive& drive : program_.Machine().drives.Removable()) {
    if (drives_->findData(drive.Path) < 0) {
      drives_->addItem(drive.Label, drive.Path);
      drives_->setItemData(drives_->count() - 1, drive.Path, Qt::ToolTipRole);
    }
  }
  const bool any = drives_->count() > 0;
  drives_->setVisible(any);
  noDrive_->setVisible(!any);
}

void frmBackup::drvSelectDrive_Change() {
  program_.State().Backup.SelectedDrive = drives_->currentData().toString();
}

void frmBackup::OKButton_Click() {
  errors_.Run(u"copying the statistics"_s, [this] { backup_.Run(); });
  working_ = false;
  ListDrives();
}

void frmBackup::ShowWorking(const QString& text) {
  working_ = true;
  description_->setFixedSize(description_->size());
  SetDescription(text);
  ok_->hide();
  cancel_->hide();
  selectCaption_->hide();
  drives_->hide();
  repaint();
  Refresh();
}

// A click or key while the work is under way must not start another command.
void frmBackup::Refresh() {
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmBackup::Unload() {
  done(Accepted);
}

void frmBackup::reject() {
  if (!working_) {
    QDialog::reject();
  }
}

}  // namespace tessaly
