#include "app/picture.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>

#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

// Resources of a static library are registered by hand, outside any namespace.
static void InitPictures() {
  Q_INIT_RESOURCE(pictures);
}

namespace tessaly {

namespace {

QString DenseFileName(const QString& fileName) {
  QString dense = fileName;
  return dense.insert(fileName.lastIndexOf(u'.'), u"@2x"_s);
}

}  // namespace

QPixmap LoadPicture(const QString& programFolder, const QString& fileName) {
  const QDir folder(programFolder);
  QString path = folder.filePath(fileName);
  if (!QFileInfo::exists(path)) {
    throw RuntimeError(ErrorNumber::FileNotFound, path);
  }
  const QString densePath = folder.filePath(DenseFileName(fileName));
  const bool dense = qGuiApp->devicePixelRatio() > 1 && QFileInfo::exists(densePath);
  if (dense) {
    path = densePath;
  }
  // Read as an image: a pixmap read from a file would stay in a cache for the program's life.
  const QImage image(path);
  if (image.isNull()) {
    throw RuntimeError(ErrorNumber::InvalidPicture, path);
  }
  QPixmap picture = QPixmap::fromImage(image);
  picture.setDevicePixelRatio(dense ? 2 : 1);
  return picture;
}

void RegisterPictures() {
  InitPictures();
}

}  // namespace tessaly
