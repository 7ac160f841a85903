#include "tools/bank/command_line.h"

#include <gtest/gtest.h>

#include "tests/support/printers.h"
#include "tests/tools/bank_folder.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

struct Misuse {
  QStringList arguments;
  QString complaint;
};

TEST(CommandLineTest, MisuseIsExplained) {
  const std::vector<Misuse> table{
      {{}, u"No command ''."_s},
      {{u"build"_s}, u"No command 'build'."_s},
      {{u"check"_s}, u"'check' takes 1 and not 0 operands."_s},
      {{u"check"_s, u"a"_s, u"b"_s}, u"'check' takes 1 and not 2 operands."_s},
      {{u"check"_s, u"a"_s, u"--answers"_s, u"b"_s}, u"Unknown option 'answers'."_s},
      {{u"check"_s, u"a"_s, u"--pages"_s}, u"Missing value after '--pages'."_s},
      {{u"compile"_s, u"a"_s}, u"'compile' needs --questions."_s},
      {{u"compile"_s, u"a"_s, u"--questions"_s, u"q"_s}, u"'compile' needs --answers."_s},
      {{u"compile"_s, u"--questions"_s, u"q"_s, u"--answers=a"_s},
       u"'compile' takes 1 and not 0 operands."_s},
      {{u"export"_s, u"a"_s}, u"'export' takes 2 and not 1 operands."_s},
  };
  for (const Misuse& entry : table) {
    const ToolRun run = RunTool(entry.arguments);
    EXPECT_EQ(run.status, 2);
    ASSERT_GE(run.err.size(), 2);
    EXPECT_EQ(run.err[0], entry.complaint);
    EXPECT_EQ(run.err[1], u"Usage: tessaly-bank COMMAND ..."_s);
    EXPECT_EQ(run.out, QString());
  }
}

TEST(CommandLineTest, HelpIsNoMisuse) {
  const ToolRun run = RunTool({u"--help"_s});
  EXPECT_EQ(run.status, 0);
  EXPECT_TRUE(run.out.startsWith(u"Usage: tessaly-bank COMMAND ...\n"_s));
  EXPECT_EQ(run.err, QStringList());
}

TEST(CommandLineTest, FindingsMakeTheStatusOne) {
  BankFolder sources;
  sources.WritePart(u"01Part1"_s, 1, 79);
  const ToolRun run = RunTool({u"check"_s, sources.Path()});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err, QStringList(u"01Part1.yaml: question 80: the question is missing"_s));
}

}  // namespace
}  // namespace tessaly::test
