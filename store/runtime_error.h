#ifndef TESSALY_STORE_RUNTIME_ERROR_H_
#define TESSALY_STORE_RUNTIME_ERROR_H_

#include <QString>
#include <exception>

namespace tessaly {

// The failures that the program can meet, by the numbers that database programmers of this
// platform know them under.
enum class ErrorNumber : int {
  InvalidProcedureCall = 5,
  Overflow = 6,
  SubscriptOutOfRange = 9,
  TypeMismatch = 13,
  FileNotFound = 53,
  DeviceIo = 57,
  DiskFull = 61,
  PermissionDenied = 70,
  DiskNotReady = 71,
  InvalidFileFormat = 321,
  CannotCreateObject = 429,
  InvalidPicture = 481,
  Printer = 482,
  UpdateWithoutEdit = 3020,
  NoCurrentRecord = 3021,
  InvalidPassword = 3031,
  SyntaxErrorInExpression = 3075,
  TableNotFound = 3078,
  ItemNotFound = 3265,
  UnrecognizedDatabaseFormat = 3343,
};

// The fixed text that belongs to a number, without a full stop.
[[nodiscard]] QString ErrorText(ErrorNumber number);

// Raised for misuse and failure in everything below the windows. Caught in one place, the command
// boundary of the windows (app/error_boundary.h), which tells the user and abandons the command.
class RuntimeError : public std::exception {
public:
  // `detail` names the file, field or value concerned; it may be empty.
  explicit RuntimeError(ErrorNumber number, QString detail = {});

  [[nodiscard]] ErrorNumber Number() const { return number_; }
  [[nodiscard]] QString Text() const { return ErrorText(number_); }
  [[nodiscard]] const QString& Detail() const { return detail_; }
  [[nodiscard]] const char* what() const noexcept override { return what_.constData(); }

private:
  ErrorNumber number_;
  QString detail_;
  QByteArray what_;
};

}  // namespace tessaly

#endif  // TESSALY_STORE_RUNTIME_ERROR_H_
