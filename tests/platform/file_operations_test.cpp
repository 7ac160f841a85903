#include "platform/file_operations.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <algorithm>

#include "store/runtime_error.h"
#include "tests/support/file_contents.h"
#include "tests/support/printers.h"
#include "tests/support/small_disk.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

constexpr qsizetype kKibibyte = 1024;

class FileOperationsTest : public ::testing::Test {
protected:
  void Put(const QString& name, const QByteArray& content) { WriteBytes(Path(name), content); }
  [[nodiscard]] QByteArray Content(const QString& name) const { return ReadBytes(Path(name)); }
  [[nodiscard]] QString Path(const QString& name) const { return folder.filePath(name); }
  [[nodiscard]] QStringList Names() const { return NamesIn(folder.path()); }

  QTemporaryDir folder;
  DiskFileOperations files;
};

TEST_F(FileOperationsTest, RemovesAFileAndMindsNoMissingOne) {
  Put(u"a"_s, "1");
  Put(u"b"_s, "2");
  files.Remove(Path(u"a"_s));
  files.Remove(Path(u"a"_s));
  EXPECT_EQ(Names(), QStringList{u"b"_s});
}

TEST_F(FileOperationsTest, AFolderIsNotRemoved) {
  ASSERT_TRUE(QDir(folder.path()).mkdir(u"sub"_s));
  EXPECT_RUNTIME_ERROR(files.Remove(Path(u"sub"_s)), ErrorNumber::PermissionDenied);
  EXPECT_EQ(Names(), QStringList{u"sub"_s});
}

TEST_F(FileOperationsTest, MovesAFileOverAnother) {
  Put(u"new ä"_s, "new");
  Put(u"old"_s, "old");
  files.Move(Path(u"new ä"_s), Path(u"old"_s));
  EXPECT_EQ(Names(), QStringList{u"old"_s});
  EXPECT_EQ(Content(u"old"_s), "new");
}

TEST_F(FileOperationsTest, AMoveThatCannotBeLeavesBothFiles) {
  Put(u"new"_s, "new");
  Put(u"old"_s, "old");
  ASSERT_TRUE(QDir(folder.path()).mkdir(u"sub"_s));
  EXPECT_RUNTIME_ERROR(files.Move(Path(u"none"_s), Path(u"old"_s)), ErrorNumber::FileNotFound);
  EXPECT_RUNTIME_ERROR(files.Move(Path(u"new"_s), Path(u"none/old"_s)), ErrorNumber::FileNotFound);
  EXPECT_RUNTIME_ERROR(files.Move(Path(u"new"_s), Path(u"sub"_s)), ErrorNumber::PermissionDenied);
  EXPECT_EQ(Names(), (QStringList{u"new"_s, u"old"_s, u"sub"_s}));
  EXPECT_EQ(Content(u"old"_s), "old");
}

TEST_F(FileOperationsTest, WriteReplacesTheWholeContent) {
  files.Write(Path(u"note"_s), "a long line\n");
  files.Write(Path(u"note"_s), "short\n");
  EXPECT_EQ(Content(u"note"_s), "short\n");
  files.Write(Path(u"note"_s), {});
  EXPECT_EQ(Content(u"note"_s), "");
  EXPECT_EQ(Names(), QStringList{u"note"_s});
}

TEST_F(FileOperationsTest, WriteNeedsAFolder) {
  EXPECT_RUNTIME_ERROR(files.Write(Path(u"none/note"_s), "x"), ErrorNumber::PermissionDenied);
}

TEST_F(FileOperationsTest, ACopyNeedsAFileAndAFolder) {
  EXPECT_RUNTIME_ERROR(files.Copy(Path(u"none"_s), Path(u"copy"_s), [] {}),
                       ErrorNumber::FileNotFound);
  EXPECT_RUNTIME_ERROR(files.Copy(folder.path(), Path(u"copy"_s), [] {}),
                       ErrorNumber::FileNotFound);
  Put(u"source"_s, "s");
  EXPECT_RUNTIME_ERROR(files.Copy(Path(u"source"_s), Path(u"none/copy"_s), [] {}),
                       ErrorNumber::PermissionDenied);
  EXPECT_EQ(Names(), QStringList{u"source"_s});
}

TEST_F(FileOperationsTest, FlushingAMissingFileSaysSo) {
  EXPECT_RUNTIME_ERROR(FlushToDisk(Path(u"none"_s)), ErrorNumber::FileNotFound);
}

TEST_F(FileOperationsTest, ACopyIsTheSameAndReachesTheDiskBlockByBlock) {
  constexpr qsizetype kFirstBlock = 16 * kKibibyte;
  constexpr qsizetype kLongestBlock = 1024 * kKibibyte;
  for (const qsizetype bytes :
       {qsizetype{0}, qsizetype{1}, kFirstBlock, kFirstBlock + 1, 5 * kLongestBlock}) {
    SCOPED_TRACE(bytes);
    const QByteArray content(bytes, 'x');
    Put(u"from"_s, content);
    Put(u"to"_s, "an earlier copy that was cut off");
    QList<qint64> sizes{0};
    files.Copy(Path(u"from"_s), Path(u"to"_s),
               [&] { sizes.append(QFileInfo(Path(u"to"_s)).size()); });
    EXPECT_EQ(Content(u"to"_s), content);
    EXPECT_EQ(sizes.last(), bytes);
    EXPECT_EQ(sizes.value(1), std::min(bytes, kFirstBlock));
    for (qsizetype i = 1; i < sizes.size(); ++i) {
      EXPECT_GT(sizes[i], sizes[i - 1]);
      EXPECT_LE(sizes[i] - sizes[i - 1], kLongestBlock);
    }
  }
}

TEST_F(FileOperationsTest, OnlyAFileIsCopied) {
  ASSERT_TRUE(QDir(folder.path()).mkdir(u"sub"_s));
  EXPECT_RUNTIME_ERROR(files.Copy(Path(u"none"_s), Path(u"to"_s), [] {}),
                       ErrorNumber::FileNotFound);
  EXPECT_RUNTIME_ERROR(files.Copy(Path(u"sub"_s), Path(u"to"_s), [] {}), ErrorNumber::FileNotFound);
  Put(u"from"_s, "x");
  EXPECT_RUNTIME_ERROR(files.Copy(Path(u"from"_s), Path(u"none/to"_s), [] {}),
                       ErrorNumber::PermissionDenied);
  EXPECT_EQ(Names(), (QStringList{u"from"_s, u"sub"_s}));
}

// The other volume: small, and only for this process.
class OtherVolumeTest : public FileOperationsTest {
protected:
  void SetUp() override { SKIP_UNLESS_MOUNTED(disk); }
  [[nodiscard]] QString OtherPath(const QString& name) const { return disk.FilePath(name); }
  [[nodiscard]] QStringList OtherNames() const { return NamesIn(disk.Folder()); }

  SmallDisk disk{64};
};

TEST_F(OtherVolumeTest, AFileMovesFromOneVolumeToAnother) {
  const QByteArray content = QByteArray(3000, 'x') + QByteArray("\0\xff\n", 3);
  Put(u"new"_s, content);
  WriteBytes(OtherPath(u"old"_s), "old");
  files.Move(Path(u"new"_s), OtherPath(u"old"_s));
  EXPECT_EQ(Names(), QStringList());
  EXPECT_EQ(OtherNames(), QStringList{u"old"_s});
  EXPECT_EQ(ReadBytes(OtherPath(u"old"_s)), content);
}

TEST_F(OtherVolumeTest, AnEmptyFileMovesToo) {
  Put(u"new"_s, {});
  files.Move(Path(u"new"_s), OtherPath(u"old"_s));
  EXPECT_EQ(ReadBytes(OtherPath(u"old"_s)), "");
}

TEST_F(OtherVolumeTest, AMissingFileIsNotFoundFromThereEither) {
  EXPECT_RUNTIME_ERROR(files.Move(Path(u"none"_s), OtherPath(u"old"_s)), ErrorNumber::FileNotFound);
  EXPECT_EQ(OtherNames(), QStringList());
}

TEST_F(OtherVolumeTest, AMoveOntoAFullVolumeLeavesBothFiles) {
  Put(u"new"_s, QByteArray(100 * kKibibyte, 'x'));
  WriteBytes(OtherPath(u"old"_s), "old");
  EXPECT_RUNTIME_ERROR(files.Move(Path(u"new"_s), OtherPath(u"old"_s)), ErrorNumber::DiskFull);
  EXPECT_EQ(Names(), QStringList{u"new"_s});
  EXPECT_EQ(OtherNames(), QStringList{u"old"_s});
  EXPECT_EQ(ReadBytes(OtherPath(u"old"_s)), "old");
}

TEST_F(OtherVolumeTest, ACopyOntoAFullVolumeLeavesNoPart) {
  Put(u"source"_s, QByteArray(300 * kKibibyte, 's'));
  EXPECT_RUNTIME_ERROR(files.Copy(Path(u"source"_s), OtherPath(u"copy"_s), [] {}),
                       ErrorNumber::DiskFull);
  EXPECT_EQ(OtherNames(), QStringList());
}

TEST_F(OtherVolumeTest, AWriteOnAFullVolumeKeepsTheOldContent) {
  files.Write(OtherPath(u"note"_s), "old");
  disk.Fill();
  for (const qsizetype bytes : {qsizetype{1}, qsizetype{100}, 100 * kKibibyte}) {
    SCOPED_TRACE(bytes);
    EXPECT_RUNTIME_ERROR(files.Write(OtherPath(u"note"_s), QByteArray(bytes, 'x')),
                         ErrorNumber::DiskFull);
    EXPECT_EQ(ReadBytes(OtherPath(u"note"_s)), "old");
    EXPECT_EQ(OtherNames(), (QStringList{u"ballast"_s, u"note"_s}));
  }
}

TEST_F(OtherVolumeTest, ACopyThatFindsNoRoomLeavesNoPartOfIt) {
  Put(u"from"_s, QByteArray(100 * kKibibyte, 'x'));
  EXPECT_RUNTIME_ERROR(files.Copy(Path(u"from"_s), OtherPath(u"to"_s), [] {}),
                       ErrorNumber::DiskFull);
  EXPECT_EQ(OtherNames(), QStringList());
}

TEST_F(OtherVolumeTest, AReadOnlyVolumeDeniesEveryChange) {
  Put(u"new"_s, "new");
  WriteBytes(OtherPath(u"old"_s), "old");
  disk.SetReadOnly(true);
  EXPECT_RUNTIME_ERROR(files.Remove(OtherPath(u"old"_s)), ErrorNumber::PermissionDenied);
  EXPECT_RUNTIME_ERROR(files.Write(OtherPath(u"old"_s), "x"), ErrorNumber::PermissionDenied);
  EXPECT_RUNTIME_ERROR(files.Move(OtherPath(u"old"_s), OtherPath(u"moved"_s)),
                       ErrorNumber::PermissionDenied);
  EXPECT_RUNTIME_ERROR(files.Move(Path(u"new"_s), OtherPath(u"old"_s)),
                       ErrorNumber::PermissionDenied);
  EXPECT_EQ(ReadBytes(OtherPath(u"old"_s)), "old");
  EXPECT_EQ(Content(u"new"_s), "new");
}

}  // namespace
}  // namespace tessaly::test
