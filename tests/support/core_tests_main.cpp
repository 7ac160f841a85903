#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace {

// The tests wait for the disk thousands of times; in memory that costs nothing.
void PutTemporaryFilesInMemory() {
  const QString memory = u"/dev/shm"_s;
  if (!qEnvironmentVariableIsSet("TMPDIR") && QFileInfo(memory).isWritable()) {
    qputenv("TMPDIR", memory.toUtf8());
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  ::testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  PutTemporaryFilesInMemory();
  return RUN_ALL_TESTS();
}
