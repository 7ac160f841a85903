#ifndef TESSALY_TESTS_SUPPORT_PRINTERS_H_
#define TESSALY_TESTS_SUPPORT_PRINTERS_H_

#include <gtest/gtest.h>

#include <QString>
#include <ostream>

#include "store/runtime_error.h"

// Found by the test library when it reports a value.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}

namespace tessaly::test {

// Expects the statement to raise a RuntimeError with this number.
#define EXPECT_RUNTIME_ERROR(statement, expectedNumber)                                            \
  try {                                                                                            \
    statement;                                                                                     \
    ADD_FAILURE() << "nothing was raised by " #statement;                                          \
  } catch (const tessaly::RuntimeError& error) {                                                   \
    EXPECT_EQ(static_cast<int>(error.Number()), static_cast<int>(expectedNumber)) << error.what(); \
  }                                                                                                \
  static_assert(true, "a semicolon follows")

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_SUPPORT_PRINTERS_H_
