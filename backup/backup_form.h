#ifndef TESSALY_BACKUP_BACKUP_FORM_H_
#define TESSALY_BACKUP_BACKUP_FORM_H_

#include <QDialog>

#include "backup/statistics_backup.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace tessaly {

class ErrorBoundary;

// The dialog of both backup commands; the direction decides its caption and its work. A drive that
// is connected while it is open appears in the list. One that is taken out stays there, as an empty
// drive.
class frmBackup : public QDialog, public BackupView {
  Q_OBJECT

public:
  frmBackup(Program& program, ErrorBoundary& errors, PlacedWindow& mainWindow, QWidget* parent);

  void SetSelectCaption(const QString& caption);
  void SetDescription(const QString& description);

  void ShowWorking(const QString& text) override;
  void Refresh() override;
  void Unload() override;

  // Nothing closes the dialog while it is at work.
  void reject() override;

private:
  void BuildControls();
  void BuildLayout();
  void Form_Load();
  void ListDrives();
  void drvSelectDrive_Change();
  void OKButton_Click();

  Program& program_;
  ErrorBoundary& errors_;
  StatisticsBackup backup_;
  QLabel* description_;
  QLabel* selectCaption_;
  QComboBox* drives_;
  QLabel* noDrive_;
  QPushButton* ok_;
  QPushButton* cancel_;
  bool working_ = false;
};

}  // namespace tessaly

#endif  // TESSALY_BACKUP_BACKUP_FORM_H_
