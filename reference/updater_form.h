#ifndef TESSALY_REFERENCE_UPDATER_FORM_H_
#define TESSALY_REFERENCE_UPDATER_FORM_H_

#include <QDialog>
#include <QLatin1StringView>

namespace tessaly {

// The program in the program folder that brings Tessaly up to date.
inline constexpr QLatin1StringView kUpdateProgram{"wiseupdt.exe"};
inline constexpr QLatin1StringView kNoUpdateProgram{
    "The program to update Tessaly could not be found, so no update was made.  Please contact "
    "technical support for assistance."};
// Long enough to read the form.
inline constexpr int kUpdateNoticeMilliseconds = 3000;

// Says that Tessaly is about to close so that it can be updated. As long as it is shown nothing
// else can be used; it cannot be closed and goes away when it is hidden or destroyed.
class frmLoadUpdater : public QDialog {
  Q_OBJECT

public:
  explicit frmLoadUpdater(QWidget* parent);

  void reject() override {}
};

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_UPDATER_FORM_H_
