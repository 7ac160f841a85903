#include "store/settings_store.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStorageInfo>

#include "platform/file_operations.h"
#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

QString Address(const QString& section, const QString& key) {
  return section + u'/' + key;
}

// The settings library keeps a change that it could not write, tries again when it is closed, and
// never takes back that it failed. So both checks come before it is told of a change.

void RequireWritable(const QString& path) {
  const QFileInfo file(path);
  const QString folder = file.absolutePath();
  if (!QDir().mkpath(folder) || !QFileInfo(folder).isWritable() ||
      (file.exists() && !file.isWritable())) {
    throw RuntimeError(ErrorNumber::PermissionDenied, path);
  }
}

// On a full disk the library reports success for a new file that holds nothing.
void RequireRoomFor(const QString& path) {
  const QFileInfo file(path);
  const QStorageInfo volume(file.absolutePath());
  constexpr qint64 kSpareBytes = qint64{64} * 1024;
  if (volume.isValid() && volume.bytesAvailable() < file.size() + kSpareBytes) {
    throw RuntimeError(ErrorNumber::DiskFull, path);
  }
}

}  // namespace

IniSettingsStore::IniSettingsStore(const QString& path) : settings_(path, QSettings::IniFormat) {
  // The library looks into a section when it is first asked for one of its keys, and only then
  // finds what is wrong with it.
  static_cast<void>(settings_.allKeys());
  if (settings_.status() == QSettings::FormatError) {
    throw RuntimeError(ErrorNumber::InvalidFileFormat, path);
  }
}

QString IniSettingsStore::Read(const QString& section, const QString& key,
                               const QString& fallback) const {
  const QVariant value = settings_.value(Address(section, key));
  if (!value.isValid()) {
    return fallback;
  }
  // A text with commas that was put into the file by hand, without quotes, reads as a list.
  return value.typeId() == QMetaType::QStringList ? value.toStringList().join(u", "_s)
                                                  : value.toString();
}

void IniSettingsStore::Write(const QString& section, const QString& key, const QString& value) {
  const QString address = Address(section, key);
  if (!settings_.contains(address) || settings_.value(address) != QVariant(value)) {
    Change(address, value);
  }
}

void IniSettingsStore::Delete(const QString& section, const QString& key) {
  const QString address = Address(section, key);
  if (settings_.contains(address)) {
    Change(address, {});
  }
}

QString IniSettingsStore::DefaultPath() {
  return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
      .filePath(kApplicationTitle + u".ini"_s);
}

void IniSettingsStore::Change(const QString& address, const QVariant& value) {
  const QString path = settings_.fileName();
  RequireWritable(path);
  RequireRoomFor(path);
  const QVariant before = settings_.value(address);
  Put(address, value);
  settings_.sync();
  if (settings_.status() != QSettings::NoError) {
    Put(address, before);
    throw RuntimeError(ErrorNumber::PermissionDenied, path);
  }
  FlushToDisk(path);
}

void IniSettingsStore::Put(const QString& address, const QVariant& value) {
  if (value.isValid()) {
    settings_.setValue(address, value);
  } else {
    settings_.remove(address);
  }
}

}  // namespace tessaly
