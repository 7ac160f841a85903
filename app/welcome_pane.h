#ifndef TESSALY_APP_WELCOME_PANE_H_
#define TESSALY_APP_WELCOME_PANE_H_

#include <QFrame>

class QLabel;

namespace tessaly {

// What stands in place of the question while no session runs: what is selected for study, and how
// to begin.
class WelcomePane : public QFrame {
  Q_OBJECT

public:
  explicit WelcomePane(QWidget* parent);

  void SetSelection(const QString& text);

private:
  QLabel* selection_;
};

}  // namespace tessaly

#endif  // TESSALY_APP_WELCOME_PANE_H_
