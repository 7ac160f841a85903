#ifndef TESSALY_TESTS_SUPPORT_WATCHED_FILES_H_
#define TESSALY_TESTS_SUPPORT_WATCHED_FILES_H_

#include <QFileInfo>
#include <QStringList>
#include <functional>

#include "platform/file_operations.h"
#include "store/runtime_error.h"

namespace tessaly::test {

// The program ends where this is thrown: nothing in the program catches it.
struct PowerCut {};

// Real file operations that are told of before they are carried out. They can be cut off at the
// n-th, 1 being the first, before it or after it, or fail there.
class WatchedFiles : public FileOperations {
public:
  void Remove(const QString& path) override {
    Step(QStringLiteral("remove ") + Name(path), [&] { disk_.Remove(path); });
  }
  void Move(const QString& source, const QString& target) override {
    Step(QStringLiteral("move %1 to %2").arg(Name(source), Name(target)),
         [&] { disk_.Move(source, target); });
  }
  void Write(const QString& path, const QByteArray& content) override {
    Step(QStringLiteral("write ") + Name(path), [&] { disk_.Write(path, content); });
  }
  void Copy(const QString& source, const QString& target,
            const std::function<void()>& afterBlock) override {
    Step(QStringLiteral("copy %1 to %2").arg(Name(source), Name(target)),
         [&] { disk_.Copy(source, target, afterBlock); });
  }

  QStringList steps;
  qsizetype cutBefore = 0;
  qsizetype cutAfter = 0;
  qsizetype failAt = 0;
  std::function<void(const QString& step)> beforeStep = [](const QString&) {};

private:
  static QString Name(const QString& path) { return QFileInfo(path).fileName(); }

  void Step(const QString& name, const std::function<void()>& carryOut) {
    steps.append(name);
    beforeStep(name);
    if (steps.size() == cutBefore) {
      throw PowerCut();
    }
    if (steps.size() == failAt) {
      throw RuntimeError(ErrorNumber::DeviceIo, name);
    }
    carryOut();
    if (steps.size() == cutAfter) {
      throw PowerCut();
    }
  }

  DiskFileOperations disk_;
};

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_SUPPORT_WATCHED_FILES_H_
