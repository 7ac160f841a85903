#include "store/conversions.h"

#include <cmath>
#include <limits>

#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

// Independent of the thread's rounding mode, which a library might have changed.
double RoundHalfToEven(double value) {
  const double below = std::floor(value);
  const double fraction = value - below;
  if (fraction > 0.5) {
    return below + 1;
  }
  if (fraction < 0.5) {
    return below;
  }
  return std::fmod(below, 2.0) == 0.0 ? below : below + 1;
}

double ToNumber(const QString& text, const QString& what) {
  bool isNumber = false;
  const double value = text.trimmed().toDouble(&isNumber);
  if (!isNumber && std::isinf(value)) {
    throw RuntimeError(ErrorNumber::Overflow, u"%1 is %2"_s.arg(what, text));
  }
  if (!isNumber || !std::isfinite(value)) {
    throw RuntimeError(ErrorNumber::TypeMismatch, u"%1 is \"%2\", not a number"_s.arg(what, text));
  }
  return value;
}

template <typename Whole>
Whole ToWhole(double value, const QString& what) {
  const double rounded = RoundHalfToEven(value);
  if (rounded < static_cast<double>(std::numeric_limits<Whole>::min()) ||
      rounded > static_cast<double>(std::numeric_limits<Whole>::max())) {
    throw RuntimeError(ErrorNumber::Overflow,
                       what.isEmpty() ? what : u"%1 is %2"_s.arg(what).arg(value));
  }
  return static_cast<Whole>(rounded);
}

}  // namespace

std::uint8_t ToByte(const QString& text, const QString& what) {
  return ToWhole<std::uint8_t>(ToNumber(text, what), what);
}

std::int16_t ToInteger(const QString& text, const QString& what) {
  return ToWhole<std::int16_t>(ToNumber(text, what), what);
}

std::int16_t ToInteger(const QVariant& value, const QString& what) {
  if (value.typeId() == QMetaType::QString || value.isNull()) {
    return ToInteger(value.toString(), what);
  }
  return ToWhole<std::int16_t>(value.toDouble(), what);
}

std::int32_t ToLong(const QString& text, const QString& what) {
  return ToWhole<std::int32_t>(ToNumber(text, what), what);
}

float ToSingle(const QString& text, const QString& what) {
  const double value = ToNumber(text, what);
  if (std::abs(value) > static_cast<double>(std::numeric_limits<float>::max())) {
    throw RuntimeError(ErrorNumber::Overflow, what);
  }
  return static_cast<float>(value);
}

QString SingleText(float value) {
  constexpr int kDigits = 7;
  return QString::number(static_cast<double>(value), 'g', kDigits);
}

std::int16_t RoundToInteger(double value) {
  return ToWhole<std::int16_t>(value, {});
}

std::int32_t RoundToLong(double value) {
  return ToWhole<std::int32_t>(value, {});
}

std::int16_t CheckedAdd(std::int16_t counter, std::int16_t step) {
  return ToWhole<std::int16_t>(static_cast<double>(counter) + step, {});
}

}  // namespace tessaly
