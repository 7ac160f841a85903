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

QString Address(const QString& section, const QString& key) { return section + u'/' + key; }

// The settings library replaces the file by a new one, and on a full disk reports success for a new
// one that holds nothing. So that no setting is lost, it is kept from trying.
void RequireRoomFor(const QString& path) {
  const QFileInfo file(path);
  const QStorageInfo volume(file.absolutePath());
  constexpr qint64 kSpareBytes = 64 * 1024;
  if (volume.isValid() && volume.bytesAvailable() < file.size() + kSpareBytes) {
    throw RuntimeError(ErrorNumber::DiskFull, path);
  }
}

}  // namespace

IniSettingsStore::IniSettingsStore(const QString& path) : settings_(path, QSettings::IniFormat) {
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
  if (settings_.contains(address) && settings_.value(address) == QVariant(value)) {
    return;
  }
  const QVariant before = settings_.value(address);
  settings_.setValue(address, value);
  try {
    Store();
  } catch (const RuntimeError&) {
    if (before.isValid()) {
      settings_.setValue(address, before);
    } else {
      settings_.remove(address);
    }
    throw;
  }
}

void IniSettingsStore::Delete(const QString& section, const QString& key) {
  const QString address = Address(section, key);
  if (settings_.contains(address)) {
    settings_.remove(address);
    Store();
  }
}

QString IniSettingsStore::DefaultPath() {
  return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
      .filePath(kApplicationTitle + u".ini"_s);
}

void IniSettingsStore::Store() {
  const QString path = settings_.fileName();
  if (!QDir().mkpath(QFileInfo(path).absolutePath())) {
    throw RuntimeError(ErrorNumber::PermissionDenied, path);
  }
  RequireRoomFor(path);
  settings_.sync();
  if (settings_.status() != QSettings::NoError) {
    throw RuntimeError(ErrorNumber::PermissionDenied, path);
  }
  FlushToDisk(path);
}

}  // namespace tessaly
