#ifndef TESSALY_PLATFORM_FILE_OPERATIONS_H_
#define TESSALY_PLATFORM_FILE_OPERATIONS_H_

#include <QByteArray>
#include <QString>
#include <functional>

namespace tessaly {

// Waits until the file's content, and its entry in its folder, are on the disk. Raises 57 or 61.
void FlushToDisk(const QString& path);

// Where a new version of a file is made ready before it takes the file's place: beside it.
[[nodiscard]] QString BesideName(const QString& path);

// The changes of files that must survive being cut off at any moment. Each is on the disk when it
// returns. An interface, so that a test can cut the program off between any two of them.
class FileOperations {
public:
  FileOperations() = default;
  FileOperations(const FileOperations&) = delete;
  FileOperations& operator=(const FileOperations&) = delete;
  virtual ~FileOperations() = default;

  // Removes the file; one that is not there is no failure. Raises 70.
  virtual void Remove(const QString& path) = 0;
  // Moves the file over `target` in one step; from another volume by way of a copy beside the
  // target, so that the target is never half written. Raises 53, 61 or 70.
  virtual void Move(const QString& source, const QString& target) = 0;
  // Replaces the file's content in one step. Raises 61 or 70.
  virtual void Write(const QString& path, const QByteArray& content) = 0;
  // Writes a copy of the file to `target`, block by block, and calls `afterBlock` after each one
  // that has reached the disk. Until this returns the target is no whole file: it is to be a place
  // beside the one that counts. A failure leaves no part of it. Raises 53, 57, 61 or 70.
  virtual void Copy(const QString& source, const QString& target,
                    const std::function<void()>& afterBlock) = 0;
};

class DiskFileOperations : public FileOperations {
public:
  void Remove(const QString& path) override;
  void Move(const QString& source, const QString& target) override;
  void Write(const QString& path, const QByteArray& content) override;
  void Copy(const QString& source, const QString& target,
            const std::function<void()>& afterBlock) override;
};

}  // namespace tessaly

#endif  // TESSALY_PLATFORM_FILE_OPERATIONS_H_
