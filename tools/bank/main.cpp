#include <QCoreApplication>
#include <cstdio>

#include "platform/file_operations.h"
#include "tools/bank/command_line.h"

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  tessaly::DiskFileOperations files;
  QTextStream out(stdout);
  QTextStream err(stderr);
  return static_cast<int>(
      tessaly::bank::RunCommand(QCoreApplication::arguments(), files, out, err));
}
