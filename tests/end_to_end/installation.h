#ifndef TESSALY_TESTS_END_TO_END_INSTALLATION_H_
#define TESSALY_TESTS_END_TO_END_INSTALLATION_H_

#include <QDir>
#include <QMap>
#include <QProcessEnvironment>
#include <QString>
#include <QTemporaryDir>

#include "tests/support/test_bank.h"

namespace tessaly::test {

// A program folder with the program as it was built, and a user of it: a home and a configuration
// folder, and a working directory, all temporary. The notice about the application form, which
// would stand before everything else, counts as read.
class Installation {
public:
  // The program folder is made in `parentFolder`.
  explicit Installation(const QString& parentFolder = QDir::tempPath());
  Installation(const Installation&) = delete;
  Installation& operator=(const Installation&) = delete;

  // Puts the reference browser into the program folder, and pages of few words: the menus, the
  // Kovrins start page, the glossary and Publication 501, each titled "Page" and its path.
  void AddReferenceBrowser() const;

  // Other places for the settings and for temporary files; both folders exist.
  void UseConfigFolder(const QString& folder);
  void UseWorkingFolder(const QString& folder) { workingFolder_ = folder; }

  // An environment variable of the program beside those that every test sets.
  void SetVariable(const QString& name, const QString& value) { variables_.insert(name, value); }

  // Makes the volume that is mounted at `folder` as slow for the program as an old drive: 16 KiB,
  // or a flush, in this time. When it is taken out, it fails for what the program has open there.
  void SlowDown(const QString& folder, int milliseconds);

  [[nodiscard]] QString Folder() const { return bank.Folder(); }
  [[nodiscard]] QString ProgramPath() const { return Folder() + QStringLiteral("/tessaly"); }
  [[nodiscard]] QString WorkingFolder() const { return workingFolder_; }
  [[nodiscard]] QString SettingsPath() const;
  [[nodiscard]] QProcessEnvironment Environment() const;

  // A setting by "Section/Key"; while the program does not run, or to see what it has written.
  void Store(const QString& address, const QString& value) const;
  [[nodiscard]] QString Stored(const QString& address) const;

  TestBank bank;

private:
  QTemporaryDir home_;
  QString configFolder_;
  QString workingFolder_;
  QMap<QString, QString> variables_;
};

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_END_TO_END_INSTALLATION_H_
