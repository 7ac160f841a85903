#ifndef TESSALY_APP_SPLASH_H_
#define TESSALY_APP_SPLASH_H_

#include <QWidget>

namespace tessaly {

// The picture "splash01.bmp" with the version caption and, where it is known, the release of the
// question data upon it. The splash screen shows it alone, About above its button.
class SplashPicture : public QWidget {
  Q_OBJECT

public:
  SplashPicture(const QString& programFolder, const QString& databaseRelease, QWidget* parent);
};

class frmSplash : public QWidget {
  Q_OBJECT

public:
  frmSplash(const QString& programFolder, const QString& databaseRelease);

  // Shows the form in the middle of the screen and returns when it is painted.
  void ShowPainted();
};

}  // namespace tessaly

#endif  // TESSALY_APP_SPLASH_H_
