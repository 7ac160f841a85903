#include "store/conversions.h"

#include <gtest/gtest.h>

#include <limits>

#include "store/runtime_error.h"
#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

const QString kWhat = u"Options/Key"_s;

struct Conversion {
  QString text;
  int number;
};

TEST(ConversionsTest, TextBecomesAByte) {
  const Conversion cases[] = {{u"0"_s, 0},      {u"1"_s, 1},    {u"255"_s, 255}, {u" 7\t"_s, 7},
                              {u"007"_s, 7},    {u"+3"_s, 3},   {u"0.5"_s, 0},   {u"1.5"_s, 2},
                              {u"2.5"_s, 2},    {u"2.51"_s, 3}, {u"-0.5"_s, 0},  {u"1e2"_s, 100},
                              {u"254.5"_s, 254}};
  for (const auto& [text, number] : cases) {
    SCOPED_TRACE(text.toStdString());
    EXPECT_EQ(ToByte(text, kWhat), number);
  }
}

TEST(ConversionsTest, TextBecomesASixteenBitNumber) {
  const Conversion cases[] = {{u"32767"_s, 32767},    {u"-32768"_s, -32768}, {u"-1.5"_s, -2},
                              {u"-2.5"_s, -2},        {u"-0.51"_s, -1},      {u"32767.49"_s, 32767},
                              {u"-32768.5"_s, -32768}};
  for (const auto& [text, number] : cases) {
    SCOPED_TRACE(text.toStdString());
    EXPECT_EQ(ToInteger(text, kWhat), number);
  }
}

TEST(ConversionsTest, TextBecomesAThirtyTwoBitNumberOrAFraction) {
  EXPECT_EQ(ToLong(u"2147483647"_s, kWhat), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(ToLong(u"-2147483648"_s, kWhat), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(ToLong(u"10800.5"_s, kWhat), 10800);
  EXPECT_EQ(ToSingle(u"1234.5"_s, kWhat), 1234.5F);
  EXPECT_EQ(ToSingle(u"-15"_s, kWhat), -15.0F);
}

TEST(ConversionsTest, NumbersOutOfRangeOverflow) {
  for (const QString& text : {u"256"_s, u"255.5"_s, u"-1"_s, u"-0.51"_s, u"1e400"_s}) {
    SCOPED_TRACE(text.toStdString());
    EXPECT_RUNTIME_ERROR(static_cast<void>(ToByte(text, kWhat)), ErrorNumber::Overflow);
  }
  for (const QString& text : {u"32768"_s, u"-32769"_s, u"32767.5"_s, u"1e9"_s}) {
    SCOPED_TRACE(text.toStdString());
    EXPECT_RUNTIME_ERROR(static_cast<void>(ToInteger(text, kWhat)), ErrorNumber::Overflow);
  }
  for (const QString& text : {u"2147483648"_s, u"-2147483649"_s}) {
    SCOPED_TRACE(text.toStdString());
    EXPECT_RUNTIME_ERROR(static_cast<void>(ToLong(text, kWhat)), ErrorNumber::Overflow);
  }
  for (const QString& text : {u"1e39"_s, u"-1e39"_s, u"-1e400"_s}) {
    SCOPED_TRACE(text.toStdString());
    EXPECT_RUNTIME_ERROR(static_cast<void>(ToSingle(text, kWhat)), ErrorNumber::Overflow);
  }
}

TEST(ConversionsTest, TextThatIsNoNumberMismatches) {
  for (const QString& text : {u""_s, u" "_s, u"on"_s, u"1,5"_s, u"1 000"_s, u"12a"_s, u"0x10"_s,
                              u"nan"_s, u"inf"_s, u"--1"_s}) {
    SCOPED_TRACE(text.toStdString());
    EXPECT_RUNTIME_ERROR(static_cast<void>(ToByte(text, kWhat)), ErrorNumber::TypeMismatch);
    EXPECT_RUNTIME_ERROR(static_cast<void>(ToInteger(text, kWhat)), ErrorNumber::TypeMismatch);
    EXPECT_RUNTIME_ERROR(static_cast<void>(ToLong(text, kWhat)), ErrorNumber::TypeMismatch);
    EXPECT_RUNTIME_ERROR(static_cast<void>(ToSingle(text, kWhat)), ErrorNumber::TypeMismatch);
  }
}

TEST(ConversionsTest, AFieldBecomesASixteenBitNumberFromTextOrNumber) {
  EXPECT_EQ(ToInteger(QVariant(u" 7 "_s), kWhat), 7);
  EXPECT_EQ(ToInteger(QVariant(32767LL), kWhat), 32767);
  EXPECT_EQ(ToInteger(QVariant(2.5), kWhat), 2);
  EXPECT_RUNTIME_ERROR(static_cast<void>(ToInteger(QVariant(32768LL), kWhat)),
                       ErrorNumber::Overflow);
  EXPECT_RUNTIME_ERROR(static_cast<void>(ToInteger(QVariant(u"x"_s), kWhat)),
                       ErrorNumber::TypeMismatch);
  EXPECT_RUNTIME_ERROR(static_cast<void>(ToInteger(QVariant(), kWhat)), ErrorNumber::TypeMismatch);
}

TEST(ConversionsTest, ASinglesTextReadsBackAsTheSameNumber) {
  for (const float number : {0.0F, 1000.0F, 1234.5F, -15.0F, 11500.25F, 1e20F}) {
    EXPECT_EQ(ToSingle(SingleText(number), kWhat), number);
  }
  EXPECT_EQ(SingleText(11500.0F), u"11500"_s);
  EXPECT_EQ(SingleText(0.1F), u"0.1"_s);
}

TEST(ConversionsTest, AnErrorNamesTheValue) {
  try {
    static_cast<void>(ToByte(u"on"_s, kWhat));
    FAIL() << "nothing was raised";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Detail(), u"Options/Key is \"on\", not a number"_s);
    EXPECT_STREQ(error.what(),
                 "Run-time error 13: Type mismatch (Options/Key is \"on\", not a number)");
  }
  try {
    static_cast<void>(ToByte(u"256"_s, kWhat));
    FAIL() << "nothing was raised";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Detail(), u"Options/Key is 256"_s);
  }
}

TEST(ConversionsTest, HalvesAreRoundedToEven) {
  const std::pair<double, int> cases[] = {{62.5, 62},   {63.5, 64},   {87.5, 88}, {0.5, 0},
                                          {-62.5, -62}, {-63.5, -64}, {99.9, 100}};
  for (const auto& [value, rounded] : cases) {
    SCOPED_TRACE(value);
    EXPECT_EQ(RoundToInteger(value), rounded);
    EXPECT_EQ(RoundToLong(value), rounded);
  }
  EXPECT_RUNTIME_ERROR(static_cast<void>(RoundToInteger(32767.5)), ErrorNumber::Overflow);
  EXPECT_RUNTIME_ERROR(static_cast<void>(RoundToLong(2147483647.5)), ErrorNumber::Overflow);
}

TEST(ConversionsTest, CountersAreAddedWithinSixteenBits) {
  EXPECT_EQ(CheckedAdd(32766, 1), 32767);
  EXPECT_EQ(CheckedAdd(-32767, -1), -32768);
  EXPECT_EQ(CheckedAdd(5, -7), -2);
  EXPECT_RUNTIME_ERROR(static_cast<void>(CheckedAdd(32767, 1)), ErrorNumber::Overflow);
  EXPECT_RUNTIME_ERROR(static_cast<void>(CheckedAdd(-32768, -1)), ErrorNumber::Overflow);
}

TEST(RuntimeErrorTest, ATextBelongsToEachNumber) {
  const std::pair<int, QString> cases[] = {
      {6, u"Overflow"_s},
      {9, u"Subscript out of range"_s},
      {13, u"Type mismatch"_s},
      {53, u"File not found"_s},
      {57, u"Device I/O error"_s},
      {61, u"Disk full"_s},
      {70, u"Permission denied"_s},
      {321, u"Invalid file format"_s},
      {482, u"Printer error"_s},
      {3020, u"Update without AddNew or Edit"_s},
      {3021, u"No current record"_s},
      {3031, u"Not a valid password"_s},
      {3078, u"The database engine cannot find the input table or query"_s},
      {3343, u"Unrecognized database format"_s}};
  for (const auto& [number, text] : cases) {
    EXPECT_EQ(RuntimeError(static_cast<ErrorNumber>(number)).Text(), text);
  }
}

}  // namespace
}  // namespace tessaly::test
