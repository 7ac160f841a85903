#include "platform/drives.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <map>

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

// Files of the kernel say that they are empty, so they are read to their end.
QByteArray ContentOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Blanks and the like are written as a backslash and three octal digits.
QString PathFromTable(const QByteArray& field) {
  constexpr qsizetype kDigits = 3;
  QByteArray path;
  for (qsizetype i = 0; i < field.size(); ++i) {
    bool isOctal = false;
    const int code = field[i] == '\\' ? field.mid(i + 1, kDigits).toInt(&isOctal, 8) : 0;
    if (isOctal) {
      path += static_cast<char>(code);
      i += kDigits;
    } else {
      path += field[i];
    }
  }
  return QFile::decodeName(path);
}

// The device number of each mounted folder. Of several mounts on one the last covers the others.
std::map<QString, QString> DevicesByPath(const QByteArray& mountTable) {
  constexpr qsizetype kDeviceField = 2;
  constexpr qsizetype kPathField = 4;
  std::map<QString, QString> devices;
  for (const QByteArray& line : mountTable.split('\n')) {
    const QList<QByteArray> fields = line.split(' ');
    if (fields.size() > kPathField) {
      devices[PathFromTable(fields[kPathField])] = QString::fromLatin1(fields[kDeviceField]);
    }
  }
  return devices;
}

bool IsDesktopPlace(const QString& path) {
  constexpr std::array kPlaces{"/media/"_L1, "/run/media/"_L1};
  return std::any_of(kPlaces.begin(), kPlaces.end(),
                     [&path](QLatin1StringView place) { return path.startsWith(place); });
}

QString LabelOf(const QString& path) {
  return u"%1 (%2)"_s.arg(QFileInfo(path).fileName(), path);
}

}  // namespace

QList<Drive> RemovableDrives(const QByteArray& mountTable,
                             const std::function<Disk(const QString&)>& diskOf) {
  const std::map<QString, QString> devices = DevicesByPath(mountTable);
  const auto root = devices.find(u"/"_s);
  const QString systemDisk = root == devices.end() ? QString() : diskOf(root->second).Name;
  QList<Drive> drives;
  for (const auto& [path, device] : devices) {
    const Disk disk = diskOf(device);
    if (IsDesktopPlace(path) || (disk.Removable && disk.Name != systemDisk)) {
      drives.append({LabelOf(path), path});
    }
  }
  return drives;
}

// A partition's folder lies in its disk's folder. A disk that is plugged in while the system runs
// says of itself that it is fixed; how it is connected tells.
Disk DiskOf(const QString& device, const QString& devicesFolder) {
  const QString folder = QFileInfo(QDir(devicesFolder).filePath(device)).canonicalFilePath();
  if (folder.isEmpty()) {
    return {};
  }
  const bool isPartition = QFileInfo::exists(folder + u"/partition"_s);
  const QString disk = isPartition ? QFileInfo(folder).path() : folder;
  const bool takenOut = ContentOf(disk + u"/removable"_s).trimmed() == "1";
  return {disk, takenOut || disk.contains(u"/usb"_s)};
}

QList<Drive> SystemDrives::Removable() const {
  return RemovableDrives(ContentOf(u"/proc/self/mountinfo"_s),
                         [](const QString& device) { return DiskOf(device, u"/sys/dev/block"_s); });
}

}  // namespace tessaly
