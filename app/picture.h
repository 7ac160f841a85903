#ifndef TESSALY_APP_PICTURE_H_
#define TESSALY_APP_PICTURE_H_

#include <QPixmap>

namespace tessaly {

// A picture from the program folder. The files hold two pixels to a device-independent one, so that
// they stay sharp on dense screens. Raises 53 when the file is missing, 481 when it is no picture.
[[nodiscard]] QPixmap LoadPicture(const QString& programFolder, const QString& fileName);

}  // namespace tessaly

#endif  // TESSALY_APP_PICTURE_H_
