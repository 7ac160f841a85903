#include "store/runtime_error.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

struct ErrorEntry {
  ErrorNumber number{};
  QLatin1StringView text;
};

constexpr std::array kErrors{
    ErrorEntry{ErrorNumber::InvalidProcedureCall, "Invalid procedure call or argument"_L1},
    ErrorEntry{ErrorNumber::Overflow, "Overflow"_L1},
    ErrorEntry{ErrorNumber::SubscriptOutOfRange, "Subscript out of range"_L1},
    ErrorEntry{ErrorNumber::TypeMismatch, "Type mismatch"_L1},
    ErrorEntry{ErrorNumber::FileNotFound, "File not found"_L1},
    ErrorEntry{ErrorNumber::DeviceIo, "Device I/O error"_L1},
    ErrorEntry{ErrorNumber::DiskFull, "Disk full"_L1},
    ErrorEntry{ErrorNumber::PermissionDenied, "Permission denied"_L1},
    ErrorEntry{ErrorNumber::DiskNotReady, "Disk not ready"_L1},
    ErrorEntry{ErrorNumber::InvalidFileFormat, "Invalid file format"_L1},
    ErrorEntry{ErrorNumber::CannotCreateObject, "Component can't create object"_L1},
    ErrorEntry{ErrorNumber::InvalidPicture, "Invalid picture"_L1},
    ErrorEntry{ErrorNumber::Printer, "Printer error"_L1},
    ErrorEntry{ErrorNumber::UpdateWithoutEdit, "Update without AddNew or Edit"_L1},
    ErrorEntry{ErrorNumber::NoCurrentRecord, "No current record"_L1},
    ErrorEntry{ErrorNumber::InvalidPassword, "Not a valid password"_L1},
    ErrorEntry{ErrorNumber::SyntaxErrorInExpression, "Syntax error in query expression"_L1},
    ErrorEntry{ErrorNumber::TableNotFound,
               "The database engine cannot find the input table or query"_L1},
    ErrorEntry{ErrorNumber::ItemNotFound, "Item not found in this collection"_L1},
    ErrorEntry{ErrorNumber::UnrecognizedDatabaseFormat, "Unrecognized database format"_L1},
};

}  // namespace

QString ErrorText(ErrorNumber number) {
  for (const ErrorEntry& entry : kErrors) {
    if (entry.number == number) {
      return entry.text;
    }
  }
  return u"Application-defined or object-defined error"_s;
}

RuntimeError::RuntimeError(ErrorNumber number, QString detail)
    : number_(number),
      detail_(std::move(detail)),
      what_(u"Run-time error %1: %2 (%3)"_s.arg(static_cast<int>(number))
                .arg(ErrorText(number), detail_)
                .toUtf8()) {}

}  // namespace tessaly
