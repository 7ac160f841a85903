#include "app/splash.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QWindow>

#include "app/picture.h"
#include "app/program.h"
#include "store/settings_store.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kCaptionHeight = 44;

QLabel* NewCaption(const QString& name, const QString& text) {
  auto* caption = new QLabel(text);
  caption->setObjectName(name);
  caption->setTextFormat(Qt::PlainText);
  QPalette palette = caption->palette();
  palette.setColor(QPalette::WindowText, Qt::white);
  caption->setPalette(palette);
  return caption;
}

}  // namespace

SplashPicture::SplashPicture(const QString& programFolder, const QString& databaseRelease,
                             QWidget* parent)
    : QWidget(parent) {
  const QPixmap picture = LoadPicture(programFolder, u"splash01.bmp"_s);
  auto* label = new QLabel(this);
  label->setObjectName(u"picSplash"_s);
  label->setAccessibleName(u"Tessaly, study software for the Special Enrollment Exam"_s);
  label->setPixmap(picture);
  const QSize size = picture.deviceIndependentSize().toSize();
  label->resize(size);
  setFixedSize(size);

  auto* strip = new QWidget(this);
  strip->setGeometry(0, size.height() - kCaptionHeight, size.width(), kCaptionHeight);
  auto* captions = new QHBoxLayout(strip);
  captions->setContentsMargins(20, 0, 20, 0);
  captions->addWidget(NewCaption(u"lblVersion"_s, VersionCaption()));
  captions->addStretch();
  captions->addWidget(NewCaption(u"lblDatabase"_s, databaseRelease));
}

frmSplash::frmSplash(const QString& programFolder, const QString& databaseRelease)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
  setObjectName(u"frmSplash"_s);
  setWindowTitle(kApplicationTitle);
  auto* picture = new SplashPicture(programFolder, databaseRelease, this);
  setFixedSize(picture->size());
  move(QGuiApplication::primaryScreen()->availableGeometry().center() - rect().center());
}

void frmSplash::ShowPainted() {
  show();
  constexpr qint64 kLongestMilliseconds = 1000;
  QElapsedTimer waiting;
  waiting.start();
  while (!windowHandle()->isExposed() && waiting.elapsed() < kLongestMilliseconds) {
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents,
                                10);
  }
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace tessaly
