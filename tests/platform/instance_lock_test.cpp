#include "platform/instance_lock.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <optional>

#include "tests/support/child_process.h"
#include "tests/support/file_contents.h"
#include "tests/support/printers.h"
#include "tests/support/scoped_environment.h"
#include "tests/support/small_disk.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class InstanceLockTest : public ::testing::Test {
protected:
  [[nodiscard]] bool IsHeld() const { return InstanceLock(path).IsHeldByAnother(); }

  QTemporaryDir folder;
  QString path = folder.filePath(u"lock"_s);
};

TEST_F(InstanceLockTest, TheFirstHolderKeepsTheSecondOutUntilItIsGone) {
  std::optional<InstanceLock> first(std::in_place, path);
  EXPECT_FALSE(first->IsHeldByAnother());
  EXPECT_TRUE(IsHeld());
  EXPECT_TRUE(IsHeld());
  first.reset();
  EXPECT_FALSE(IsHeld());
  EXPECT_TRUE(QFile::exists(path));
}

TEST_F(InstanceLockTest, ALockLeftByACrashDoesNotStopTheNextStart) {
  ChildProcess child([this](const auto& standStill) {
    const InstanceLock lock(path);
    standStill();
  });
  ASSERT_TRUE(child.StandsStill());
  EXPECT_TRUE(IsHeld());
  child.Kill();
  EXPECT_TRUE(QFile::exists(path));
  EXPECT_FALSE(IsHeld());
}

TEST_F(InstanceLockTest, AProgramThatWasStartedMeanwhileDoesNotKeepTheLock) {
  std::optional<InstanceLock> lock(std::in_place, path);
  QProcess viewer;
  viewer.start(u"sleep"_s, {u"60"_s});
  ASSERT_TRUE(viewer.waitForStarted());
  lock.reset();
  EXPECT_FALSE(IsHeld());
  viewer.kill();
  viewer.waitForFinished();
}

TEST_F(InstanceLockTest, ItsFolderIsMade) {
  path = folder.filePath(u"a/b/lock"_s);
  const InstanceLock lock(path);
  EXPECT_FALSE(lock.IsHeldByAnother());
  EXPECT_TRUE(IsHeld());
}

TEST_F(InstanceLockTest, WhereNoLockFileCanBeMadeNobodyIsKeptOut) {
  WriteBytes(folder.filePath(u"file"_s), "in the way");
  path = folder.filePath(u"file/lock"_s);
  const InstanceLock lock(path);
  EXPECT_FALSE(lock.IsHeldByAnother());
  EXPECT_FALSE(IsHeld());
}

TEST_F(InstanceLockTest, AReadOnlyFolderKeepsNobodyOut) {
  SmallDisk disk(64);
  SKIP_UNLESS_MOUNTED(disk);
  disk.SetReadOnly(true);
  path = disk.FilePath(u"lock"_s);
  const InstanceLock lock(path);
  EXPECT_FALSE(IsHeld());
}

TEST_F(InstanceLockTest, TheLockFileLiesInTheUsersConfigurationFolder) {
  const ScopedEnvironment configuration("XDG_CONFIG_HOME", folder.path().toUtf8());
  EXPECT_EQ(InstanceLock::DefaultPath(), folder.filePath(u".tessaly-2002.lock"_s));
}

}  // namespace
}  // namespace tessaly::test
