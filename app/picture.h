#ifndef TESSALY_APP_PICTURE_H_
#define TESSALY_APP_PICTURE_H_

#include <QPixmap>

namespace tessaly {

// A picture from the program folder. On a dense screen the file of the same name with "@2x", two
// pixels to a device-independent one, serves where it is there. Raises 53 when the file is missing,
// 481 when it is no picture.
[[nodiscard]] QPixmap LoadPicture(const QString& programFolder, const QString& fileName);

// Makes the pictures within the program known under ":/pictures"; safe to repeat.
void RegisterPictures();

}  // namespace tessaly

#endif  // TESSALY_APP_PICTURE_H_
