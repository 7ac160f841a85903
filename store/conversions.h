#ifndef TESSALY_STORE_CONVERSIONS_H_
#define TESSALY_STORE_CONVERSIONS_H_

#include <QString>
#include <QVariant>
#include <cstdint>

namespace tessaly {

// Conversions of stored decimal text, as the settings store and the database fields need them.
// Fractions are rounded half to even. Text that is no number raises error 13 Type mismatch, a
// number outside the type's range error 6 Overflow; `what` names the value in the error's detail.
[[nodiscard]] std::uint8_t ToByte(const QString& text, const QString& what);
[[nodiscard]] std::int16_t ToInteger(const QString& text, const QString& what);
// Of a database field: text, a number or Null, which is no number.
[[nodiscard]] std::int16_t ToInteger(const QVariant& value, const QString& what);
[[nodiscard]] std::int32_t ToLong(const QString& text, const QString& what);
[[nodiscard]] float ToSingle(const QString& text, const QString& what);
// The text of a single-precision number, as ToSingle reads it.
[[nodiscard]] QString SingleText(float value);

// Rounds half to even and checks the 16-bit range; error 6 Overflow outside it.
[[nodiscard]] std::int16_t RoundToInteger(double value);

// Rounds half to even to a whole 32-bit number; error 6 Overflow outside its range.
[[nodiscard]] std::int32_t RoundToLong(double value);

// Sum of two 16-bit counters; error 6 Overflow where it leaves the 16-bit range.
[[nodiscard]] std::int16_t CheckedAdd(std::int16_t counter, std::int16_t step);

}  // namespace tessaly

#endif  // TESSALY_STORE_CONVERSIONS_H_
