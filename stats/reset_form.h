#ifndef TESSALY_STATS_RESET_FORM_H_
#define TESSALY_STATS_RESET_FORM_H_

#include <QDialog>
#include <array>
#include <memory>

#include "stats/statistics_reset.h"

class QCheckBox;
class QGroupBox;
class QRadioButton;
class QVBoxLayout;

namespace tessaly {

class ErrorBoundary;
class Program;
class ProgressForm;

// The reset dialog. Belongs to a statistics form, shown or hidden, which it brings back on a No and
// closes when the reset is done. Stands over that form, and while it is hidden over its parent.
class frmResetChoices : public QDialog, public ResetView {
  Q_OBJECT

public:
  frmResetChoices(Program& program, ErrorBoundary& errors, QDialog& statistics);
  ~frmResetChoices() override;

  void SetBusyPointer(bool busy) override;
  void ShowProgress() override;
  void ShowStatistics() override;
  void UnloadForms() override;

private:
  static constexpr std::size_t kScopeCount = 5;
  using ScopeButtons = std::array<QRadioButton*, kScopeCount>;

  [[nodiscard]] QGroupBox* BuildGroup(const QString& name, const QString& caption, QChar letter,
                                      ScopeButtons& buttons);
  void BuildButtons(QVBoxLayout* column);
  [[nodiscard]] ResetChoices Choices() const;
  void cmdReset_Click();
  void chkAllDifficult_Click(bool checked);

  ErrorBoundary& errors_;
  QDialog& statistics_;
  bool bySubject_;
  StatisticsReset reset_;
  QCheckBox* all_;
  QCheckBox* allDifficult_;
  ScopeButtons tutorial_{};
  ScopeButtons evaluation_{};
  std::unique_ptr<ProgressForm> progress_;
};

}  // namespace tessaly

#endif  // TESSALY_STATS_RESET_FORM_H_
