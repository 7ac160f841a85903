#ifndef TESSALY_APP_STUDY_TEXT_BOX_H_
#define TESSALY_APP_STUDY_TEXT_BOX_H_

#include <QPlainTextEdit>

namespace tessaly {

// A read-only pane of study text in the fixed-pitch font. Its own shortcuts (Ctrl+A and the like)
// give way to the window's commands; selecting and copying stay possible with the mouse, the
// context menu and Ctrl+C.
class StudyTextBox : public QPlainTextEdit {
  Q_OBJECT

public:
  StudyTextBox(const QString& name, const QString& accessibleName, QWidget* parent);

  // Points.
  void SetFontSize(int points);

protected:
  bool event(QEvent* event) override;
};

}  // namespace tessaly

#endif  // TESSALY_APP_STUDY_TEXT_BOX_H_
