#include "app/picture.h"

#include <QDir>
#include <QFileInfo>

#include "store/runtime_error.h"

namespace tessaly {

QPixmap LoadPicture(const QString& programFolder, const QString& fileName) {
  const QString path = QDir(programFolder).filePath(fileName);
  if (!QFileInfo::exists(path)) {
    throw RuntimeError(ErrorNumber::FileNotFound, path);
  }
  QPixmap picture(path);
  if (picture.isNull()) {
    throw RuntimeError(ErrorNumber::InvalidPicture, path);
  }
  picture.setDevicePixelRatio(2);
  return picture;
}

}  // namespace tessaly
