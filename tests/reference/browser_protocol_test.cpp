#include "reference/browser_protocol.h"

#include <gtest/gtest.h>

#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

TEST(BrowserProtocolTest, EveryTextComesThroughWhole) {
  const QStringList message{u"caption"_s, u""_s, u"two  blanks, 100% \n\r\t\\ \u00a7 \U0001F4D6"_s};
  const QByteArray line = EncodeMessage(message);
  EXPECT_EQ(line.count('\n'), 1);
  MessageReader reader;
  EXPECT_EQ(reader.Add(line), QList<QStringList>{message});
}

TEST(BrowserProtocolTest, MessagesArePutTogetherFromPieces) {
  MessageReader reader;
  EXPECT_TRUE(reader.Add("list-vis").isEmpty());
  EXPECT_TRUE(reader.Add("ible 1").isEmpty());
  EXPECT_EQ(reader.Add("\nshow\nnav"),
            (QList<QStringList>{{u"list-visible"_s, u"1"_s}, {u"show"_s}}));
  EXPECT_EQ(reader.Add("igate\n"), QList<QStringList>{{u"navigate"_s}});
}

TEST(BrowserProtocolTest, FlagsAreZeroOrOne) {
  EXPECT_TRUE(IsFlagSet(FlagText(true)));
  EXPECT_FALSE(IsFlagSet(FlagText(false)));
  EXPECT_FALSE(IsFlagSet({}));
}

}  // namespace
}  // namespace tessaly::test
