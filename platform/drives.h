#ifndef TESSALY_PLATFORM_DRIVES_H_
#define TESSALY_PLATFORM_DRIVES_H_

#include <QByteArray>
#include <QList>
#include <QString>
#include <functional>

namespace tessaly {

// A mounted drive that the user can take out.
struct Drive {
  QString Label;  // as the user knows it
  QString Path;   // of its top folder, without a trailing separator

  bool operator==(const Drive&) const = default;
};

// The removable drives, asked for anew each time because they come and go.
class Drives {
public:
  Drives() = default;
  Drives(const Drives&) = delete;
  Drives& operator=(const Drives&) = delete;
  virtual ~Drives() = default;

  // In the order of their paths.
  [[nodiscard]] virtual QList<Drive> Removable() const = 0;
};

// The drives of this system, from its tables of mounts and devices. No drive is touched, so that a
// slow or dead one holds nothing up.
class SystemDrives : public Drives {
public:
  [[nodiscard]] QList<Drive> Removable() const override;
};

// The disk that a mounted device belongs to.
struct Disk {
  QString Name;  // the same for all partitions of a disk; empty where there is no disk
  bool Removable = false;
};

// The removable drives of a mount table in the kernel's format (/proc/self/mountinfo): what is
// mounted where the desktop mounts removable media, and what lies on a removable disk other than
// the one that the system runs from. `diskOf` is asked with device numbers, as "8:17".
[[nodiscard]] QList<Drive> RemovableDrives(const QByteArray& mountTable,
                                           const std::function<Disk(const QString&)>& diskOf);

// The disk of a device number, from the kernel's table of devices in `devicesFolder`
// (/sys/dev/block).
[[nodiscard]] Disk DiskOf(const QString& device, const QString& devicesFolder);

}  // namespace tessaly

#endif  // TESSALY_PLATFORM_DRIVES_H_
