#include "store/settings_store.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include "store/runtime_error.h"
#include "tests/support/file_contents.h"
#include "tests/support/printers.h"
#include "tests/support/scoped_environment.h"
#include "tests/support/small_disk.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

const QString kSection = u"StudyMode"_s;
const QString kKey = u"Subject"_s;

// Every step opens the file anew, as the next start of the program would.
class SettingsStoreTest : public ::testing::Test {
protected:
  void Write(const QString& value, const QString& key = kKey) {
    IniSettingsStore(path).Write(kSection, key, value);
  }
  void Delete(const QString& key) { IniSettingsStore(path).Delete(kSection, key); }
  [[nodiscard]] QString Read(const QString& key = kKey) const {
    return IniSettingsStore(path).Read(kSection, key, u"(fallback)"_s);
  }

  QTemporaryDir folder;
  QString path = folder.filePath(u"Tessaly.ini"_s);
};

TEST_F(SettingsStoreTest, AnyTextComesBackAsItWasWritten) {
  for (const QString& text : {u"0"_s,
                              u"01"_s,
                              u"-15"_s,
                              u"1e3"_s,
                              u"true"_s,
                              u"Gifts, Estates, Trusts"_s,
                              u","_s,
                              u"a;b; c"_s,
                              u"; no comment"_s,
                              u"# no comment"_s,
                              u"  two leading blanks"_s,
                              u"a trailing blank "_s,
                              u" "_s,
                              u"He said \"yes\""_s,
                              u"\"quoted\""_s,
                              u"it's"_s,
                              u"100%"_s,
                              u"%20%2C%U1234"_s,
                              u"back\\slash\\n"_s,
                              u"a=b"_s,
                              u"[Options]"_s,
                              u"one\ntwo\r\n\tthree"_s,
                              u"§ 2587 – Größe 日本 \U0001F600"_s,
                              u"@Invalid()"_s,
                              u"@ByteArray(x)"_s,
                              u"@Variant(x)"_s,
                              u"@"_s}) {
    SCOPED_TRACE(text.toStdString());
    Write(text);
    EXPECT_EQ(Read(), text);
  }
}

TEST_F(SettingsStoreTest, AnyKeyFindsItsOwnValue) {
  const QStringList keys{u"2000 Examination - Part II"_s,
                         u"2001 Examination - Part I (Individual)"_s,
                         u"2001 Examination - Part I"_s,
                         u"100%"_s,
                         u"%20"_s,
                         u" leading"_s,
                         u"a,b;c"_s,
                         u"Größe"_s,
                         u"mode"_s,
                         u"Mode"_s,
                         u"General"_s};
  for (const QString& key : keys) {
    Write(u"value of "_s + key, key);
  }
  for (const QString& key : keys) {
    EXPECT_EQ(Read(key), u"value of "_s + key);
  }
}

TEST_F(SettingsStoreTest, AMissingValueIsNotAnEmptyOne) {
  EXPECT_EQ(Read(), u"(fallback)"_s);
  EXPECT_FALSE(QFile::exists(path));
  Write(u""_s);
  EXPECT_EQ(Read(), u""_s);
  Write(QString());
  EXPECT_EQ(Read(), u""_s);
  EXPECT_EQ(Read(u"Year"_s), u"(fallback)"_s);
  EXPECT_EQ(IniSettingsStore(path).Read(u"Options"_s, kKey, u"0"_s), u"0"_s);
}

TEST_F(SettingsStoreTest, ADeletedValueIsMissing) {
  Write(u"1"_s, u"First"_s);
  Write(u"2"_s, u"Second"_s);
  Delete(u"First"_s);
  EXPECT_EQ(Read(u"First"_s), u"(fallback)"_s);
  EXPECT_EQ(Read(u"Second"_s), u"2"_s);
  Delete(u"First"_s);
}

TEST_F(SettingsStoreTest, DeletingInAFileThatIsNotThereMakesNone) {
  Delete(u"First"_s);
  EXPECT_EQ(NamesIn(folder.path()), QStringList());
}

TEST_F(SettingsStoreTest, AValueIsInTheFileWhenWriteReturns) {
  IniSettingsStore settings(path);
  settings.Write(kSection, kKey, u"Gifts"_s);
  EXPECT_EQ(ReadBytes(path), "[StudyMode]\nSubject=Gifts\n");
  settings.Write(u"TTimer"_s, u"2000 Examination - Part II"_s, u"61"_s);
  EXPECT_TRUE(ReadBytes(path).contains("[TTimer]\n2000%20Examination%20-%20Part%20II=61\n"));
}

TEST_F(SettingsStoreTest, WritingWhatIsStoredLeavesTheFileAlone) {
  Write(u"Gifts"_s);
  const QByteArray bytes = "; by hand\n" + ReadBytes(path);
  WriteBytes(path, bytes);
  Write(u"Gifts"_s);
  EXPECT_EQ(ReadBytes(path), bytes);
}

TEST_F(SettingsStoreTest, ATextWithCommasThatWasPutInByHandReadsAsText) {
  WriteBytes(path, "[StudyMode]\nSubject=Gifts, Estates, Trusts\nYear=01\n");
  EXPECT_EQ(Read(), u"Gifts, Estates, Trusts"_s);
  Write(u"Gifts, Estates, Trusts"_s);
  EXPECT_EQ(Read(), u"Gifts, Estates, Trusts"_s);
  EXPECT_EQ(Read(u"Year"_s), u"01"_s);
}

TEST_F(SettingsStoreTest, TheFoldersOnTheWayAreMade) {
  path = folder.filePath(u"a/b/Tessaly.ini"_s);
  Write(u"Gifts"_s);
  EXPECT_EQ(Read(), u"Gifts"_s);
}

TEST_F(SettingsStoreTest, AFolderThatCannotBeMadeDeniesTheWrite) {
  WriteBytes(folder.filePath(u"file"_s), "in the way");
  path = folder.filePath(u"file/Tessaly.ini"_s);
  EXPECT_RUNTIME_ERROR(Write(u"Gifts"_s), ErrorNumber::PermissionDenied);
  EXPECT_EQ(Read(), u"(fallback)"_s);
}

TEST_F(SettingsStoreTest, AFileThatIsNoSettingsFileIsRefusedAndKept) {
  const QByteArray bytes = "[StudyMode\nSubject=x\n";
  WriteBytes(path, bytes);
  EXPECT_RUNTIME_ERROR(IniSettingsStore{path}, ErrorNumber::InvalidFileFormat);
  EXPECT_EQ(ReadBytes(path), bytes);
}

TEST_F(SettingsStoreTest, NoiseIsRefusedOrReadsAsDefaults) {
  QRandomGenerator random(42);
  for (int round = 0; round < 200; ++round) {
    QByteArray noise;
    for (int i = 0; i < 300; ++i) {
      noise.append(static_cast<char>(random.bounded(256)));
    }
    WriteBytes(path, round % 2 == 0 ? noise : "[StudyMode]\nSubject=" + noise);
    try {
      const QString read = Read(u"Year"_s);
      EXPECT_EQ(read, u"(fallback)"_s);
      static_cast<void>(Read());
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), ErrorNumber::InvalidFileFormat);
    }
  }
}

TEST_F(SettingsStoreTest, AFullDiskFailsTheChangeAndKeepsTheFile) {
  SmallDisk disk(128);
  SKIP_UNLESS_MOUNTED(disk);
  path = disk.FilePath(u"Tessaly.ini"_s);
  Write(u"Gifts"_s);
  const QByteArray before = ReadBytes(path);
  disk.Fill();
  {
    IniSettingsStore settings(path);
    EXPECT_RUNTIME_ERROR(settings.Write(kSection, kKey, u"Trusts"_s), ErrorNumber::DiskFull);
    EXPECT_RUNTIME_ERROR(settings.Write(kSection, u"Year"_s, u"01"_s), ErrorNumber::DiskFull);
    EXPECT_RUNTIME_ERROR(settings.Delete(kSection, kKey), ErrorNumber::DiskFull);
    EXPECT_EQ(settings.Read(kSection, kKey, {}), u"Gifts"_s);
    EXPECT_EQ(settings.Read(kSection, u"Year"_s, u"none"_s), u"none"_s);
  }
  EXPECT_EQ(ReadBytes(path), before);
}

TEST_F(SettingsStoreTest, AReadOnlyDiskDeniesTheChangeOnlyAsLongAsItIsOne) {
  SmallDisk disk(512);
  SKIP_UNLESS_MOUNTED(disk);
  path = disk.FilePath(u"Tessaly.ini"_s);
  Write(u"Gifts"_s);
  IniSettingsStore settings(path);
  disk.SetReadOnly(true);
  EXPECT_RUNTIME_ERROR(settings.Write(kSection, kKey, u"Trusts"_s), ErrorNumber::PermissionDenied);
  EXPECT_EQ(settings.Read(kSection, kKey, {}), u"Gifts"_s);
  EXPECT_EQ(Read(), u"Gifts"_s);
  disk.SetReadOnly(false);
  settings.Write(kSection, kKey, u"Estates"_s);
  EXPECT_EQ(Read(), u"Estates"_s);
}

TEST_F(SettingsStoreTest, TheFileLiesInTheUsersConfigurationFolder) {
  const ScopedEnvironment configuration("XDG_CONFIG_HOME", folder.path().toUtf8());
  EXPECT_EQ(IniSettingsStore::DefaultPath(), folder.filePath(u"Tessaly - 2002 Edition.ini"_s));
}

}  // namespace
}  // namespace tessaly::test
