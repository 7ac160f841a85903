#ifndef TESSALY_STORE_SETTINGS_STORE_H_
#define TESSALY_STORE_SETTINGS_STORE_H_

#include <QSettings>
#include <QString>

namespace tessaly {

// The application name of every setting, and the program's title.
inline constexpr QLatin1StringView kApplicationTitle{"Tessaly - 2002 Edition"};

namespace settings_section {
inline constexpr QLatin1StringView kOptions{"Options"};
inline constexpr QLatin1StringView kSettings{"Settings"};
inline constexpr QLatin1StringView kStudyMode{"StudyMode"};
inline constexpr QLatin1StringView kTutorialTimer{"TTimer"};
inline constexpr QLatin1StringView kEvaluationTimer{"ETimer"};
}  // namespace settings_section

// The user's settings: texts addressed by section and key. What is written is on the disk when the
// call returns.
class SettingsStore {
public:
  SettingsStore() = default;
  SettingsStore(const SettingsStore&) = delete;
  SettingsStore& operator=(const SettingsStore&) = delete;
  virtual ~SettingsStore() = default;

  // The stored text, or `fallback` where there is none.
  [[nodiscard]] virtual QString Read(const QString& section, const QString& key,
                                     const QString& fallback) const = 0;
  // Both raise 61 or 70, and then leave the stored settings as they were. Deleting a value that is
  // not there is no failure.
  virtual void Write(const QString& section, const QString& key, const QString& value) = 0;
  virtual void Delete(const QString& section, const QString& key) = 0;
};

// An INI file with a group for each section, "Tessaly - 2002 Edition.ini" in the user's
// configuration folder.
class IniSettingsStore : public SettingsStore {
public:
  // `path` of the file, which may not exist yet. Raises 321 where the file is there and is no
  // settings file.
  explicit IniSettingsStore(const QString& path);

  [[nodiscard]] QString Read(const QString& section, const QString& key,
                             const QString& fallback) const override;
  void Write(const QString& section, const QString& key, const QString& value) override;
  void Delete(const QString& section, const QString& key) override;

  [[nodiscard]] static QString DefaultPath();

private:
  // An invalid value deletes.
  void Change(const QString& address, const QVariant& value);
  void Put(const QString& address, const QVariant& value);

  QSettings settings_;
};

}  // namespace tessaly

#endif  // TESSALY_STORE_SETTINGS_STORE_H_
