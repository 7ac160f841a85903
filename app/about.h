#ifndef TESSALY_APP_ABOUT_H_
#define TESSALY_APP_ABOUT_H_

#include <QDialog>

namespace tessaly {

class Program;

// About the program: its picture, its version and the release of the question data. Raises the
// failures of opening the questions file and the picture.
class frmAbout : public QDialog {
  Q_OBJECT

public:
  frmAbout(Program& program, QWidget* parent);
};

}  // namespace tessaly

#endif  // TESSALY_APP_ABOUT_H_
