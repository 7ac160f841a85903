#include "backup/private_profile.h"

#include <gtest/gtest.h>

#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

TEST(PrivateProfileTest, KeysAreWrittenInTheirOrderUnderTheirSections) {
  PrivateProfile file;
  file.Write(u"One"_s, u"B"_s, u"2"_s);
  file.Write(u"Two"_s, u"A"_s, u"text = of; any [kind]"_s);
  file.Write(u"One"_s, u"A"_s, {});
  EXPECT_EQ(file.Text(), u"[One]\nB=2\nA=\n[Two]\nA=text = of; any [kind]\n"_s);
}

TEST(PrivateProfileTest, AValueIsReplacedWhereItStandsAndTheRestStays) {
  PrivateProfile file(u"; kept\r\n[one]\r\n b = 1 \r\nC=3\r\n\r\n[Two]\r\nB=4"_s);
  file.Write(u"One"_s, u"B"_s, u"2"_s);
  file.Write(u"One"_s, u"D"_s, u"5"_s);
  EXPECT_EQ(file.Text(), u"; kept\n[one]\nB=2\nC=3\nD=5\n\n[Two]\nB=4\n"_s);
}

TEST(PrivateProfileTest, NothingWrittenIsAnEmptyText) {
  EXPECT_EQ(PrivateProfile().Text(), QString());
}

struct IntegerCase {
  const char* value;
  std::int32_t read;
};

class LeadingIntegerTest : public ::testing::TestWithParam<IntegerCase> {};

TEST_P(LeadingIntegerTest, IsTheNumberAtTheStartOfTheValue) {
  const PrivateProfile file(u"[S]\nKey="_s + QString::fromUtf8(GetParam().value));
  EXPECT_EQ(file.Integer(u"S"_s, u"Key"_s), GetParam().read) << GetParam().value;
}

INSTANTIATE_TEST_SUITE_P(
    Values, LeadingIntegerTest,
    ::testing::Values(IntegerCase{"0", 0}, IntegerCase{"1", 1}, IntegerCase{"007", 7},
                      IntegerCase{"2001 Examination", 2001}, IntegerCase{"Part I", 0},
                      IntegerCase{"", 0}, IntegerCase{"-60", -60}, IntegerCase{"+5", 5},
                      IntegerCase{"-", 0}, IntegerCase{"--5", 0}, IntegerCase{"- 5", 0},
                      IntegerCase{"12.9", 12}, IntegerCase{"1e+07", 1}, IntegerCase{"0x10", 0},
                      IntegerCase{" \t 42", 42}, IntegerCase{"\"42\"", 42}, IntegerCase{"'42'", 42},
                      IntegerCase{"\" 42 \"", 42}, IntegerCase{"\"42", 0}, IntegerCase{"\"42'", 0},
                      IntegerCase{"\"", 0}, IntegerCase{"2147483647", 2147483647},
                      IntegerCase{"-2147483648", -2147483647 - 1}, IntegerCase{"4294967296", 0},
                      IntegerCase{"4294967297", 1}, IntegerCase{"\xd9\xa5", 0}));

TEST(PrivateProfileTest, ReadsTheFirstKeyOfTheFirstSectionOfItsName) {
  const PrivateProfile file(
      u"Key=1\n;[S]\n[ s ]\n;Key=2\nno key\n KEY = 3\nKey=4\n[S]\nKey=5\nLate=6\n[Key=7\n"_s);
  EXPECT_EQ(file.Integer(u"S"_s, u"Key"_s), 3);
  EXPECT_EQ(file.Integer(u"S"_s, u"Late"_s), 0);
  EXPECT_EQ(file.Integer(u"S"_s, u"None"_s), 0);
  EXPECT_EQ(file.Integer(u"None"_s, u"Key"_s), 0);
  EXPECT_EQ(PrivateProfile().Integer(u"S"_s, u"Key"_s), 0);
}

}  // namespace
}  // namespace tessaly::test
