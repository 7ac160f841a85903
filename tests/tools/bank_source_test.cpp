#include "tools/bank/bank_source.h"

#include <gtest/gtest.h>

#include "tests/support/printers.h"
#include "tests/tools/bank_folder.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

struct Malformed {
  QString source;
  QString text;
  QStringList findings;
};

QStringList FindingsOf(const QString& folder) {
  bank::Findings findings;
  static_cast<void>(bank::ReadBankSource(folder, findings));
  QStringList texts;
  for (const bank::Finding& finding : findings) {
    texts.append(ToText(finding));
  }
  return texts;
}

TEST(BankSourceTest, AQuestionIsReadAsItsWriterWroteIt) {
  BankFolder sources;
  sources.Write(u"98Part2.yaml"_s,
                u"# A note.\n"
                u"- no: 7\n"
                u"  subject: Basis of Assets\n"
                u"  answer: False   # or True\n"
                u"  question: |\n"
                u"    One line: \"quoted\", # no note,\n"
                u"    and another.\n"
                u"  explanation: |\n"
                u"    First.\n"
                u"\n"
                u"    Second.\n"
                u"  hint: Publication 551, \"Cost Basis\"\n"
                u"  link: p551.html#cost\n"_s);
  const bank::BankSource bank = sources.Read();
  EXPECT_EQ(bank.version, u"Test release"_s);
  EXPECT_EQ(bank.subjects, BankFolder::Subjects());
  ASSERT_EQ(bank.parts.size(), 1U);
  EXPECT_EQ(bank.parts[0].table, u"98Part2"_s);
  const bank::QuestionSource& question = bank.parts[0].questions.at(0);
  EXPECT_EQ(question.line, 2);
  EXPECT_EQ(question.no, 7);
  EXPECT_EQ(question.subject, u"Basis of Assets"_s);
  EXPECT_EQ(question.answer, u"False"_s);
  EXPECT_EQ(question.question, u"One line: \"quoted\", # no note,\nand another.\n"_s);
  EXPECT_EQ(question.explanation, u"First.\n\nSecond.\n"_s);
  EXPECT_EQ(question.hint, u"Publication 551, \"Cost Basis\""_s);
  EXPECT_EQ(question.link, u"p551.html#cost"_s);
}

TEST(BankSourceTest, PartsComeInCatalogueOrder) {
  BankFolder sources;
  for (const QString& table : {u"96Part1"_s, u"00Part1"_s, u"01Part2"_s}) {
    sources.WritePart(table, 1, 1);
  }
  QStringList tables;
  for (const bank::PartSource& part : sources.Read().parts) {
    tables.append(part.table);
  }
  EXPECT_EQ(tables, QStringList({u"01Part2"_s, u"00Part1"_s, u"96Part1"_s}));
}

TEST(BankSourceTest, WhatCannotBeUnderstoodIsNamedByFileAndLine) {
  const std::vector<Malformed> table{
      {u"01Part1.yaml"_s, u"no: 1\n"_s, {u"01Part1.yaml:1: not a list of questions"_s}},
      {u"01Part1.yaml"_s, QString(), {u"01Part1.yaml: not a list of questions"_s}},
      {u"01Part1.yaml"_s,
       u"- one\n"_s,
       {u"01Part1.yaml:1: not a question: keys with values are expected"_s}},
      {u"01Part1.yaml"_s,
       u"- no: 1\n  title: x\n"_s,
       {u"01Part1.yaml:2: question 1: unknown key 'title'"_s}},
      {u"01Part1.yaml"_s,
       u"- hint: x\n  hint: y\n  no: 3\n"_s,
       {u"01Part1.yaml:2: question 3: 'hint' is repeated"_s}},
      {u"01Part1.yaml"_s,
       u"- no: 1\n  hint:\n    - x\n"_s,
       {u"01Part1.yaml:3: question 1: 'hint' is not a text"_s}},
      {u"01Part5.yaml"_s, u"- no: 1\n"_s, {u"01Part5.yaml: named after no exam part"_s}},
      {u"subjects.yaml"_s, u"Alimony\n"_s, {u"subjects.yaml:1: not a list of subjects"_s}},
      {u"subjects.yaml"_s, u"- [x]\n"_s, {u"subjects.yaml:1: 'subject' is not a text"_s}},
      {u"version.yaml"_s,
       u"release: 1\n"_s,
       {u"version.yaml:1: the one key 'version' is expected"_s}},
      {u"version.yaml"_s,
       u"version: 1\nmore: 2\n"_s,
       {u"version.yaml:1: the one key 'version' is expected"_s}},
  };
  for (const Malformed& entry : table) {
    SCOPED_TRACE(entry.text.toStdString());
    BankFolder sources;
    sources.Write(entry.source, entry.text);
    EXPECT_EQ(FindingsOf(sources.Path()), entry.findings);
  }
}

TEST(BankSourceTest, MalformedYamlIsNamedByItsLine) {
  const std::vector<std::pair<QString, int>> table{
      {u"- no: 1\n hint: x\n"_s, 2},
      {u"- no: 1\n\thint: x\n"_s, 2},
      {u"- no: 1\n  hint: one: two\n"_s, 2},
      {u"- no: 1\n  hint: 'open\n- no: 2\n  hint: 'open\n"_s, 4},
  };
  for (const auto& [text, line] : table) {
    BankFolder sources;
    sources.Write(u"01Part1.yaml"_s, text);
    const QStringList findings = FindingsOf(sources.Path());
    ASSERT_EQ(findings.size(), 1) << text.toStdString();
    EXPECT_TRUE(findings[0].startsWith(u"01Part1.yaml:%1: malformed YAML, "_s.arg(line)))
        << findings[0].toStdString();
  }
}

TEST(BankSourceTest, AFolderWithoutVersionAndSubjectsIsNone) {
  const QTemporaryDir empty;
  const QStringList expected{u"version.yaml: cannot be read: No such file or directory"_s,
                             u"subjects.yaml: cannot be read: No such file or directory"_s};
  EXPECT_EQ(FindingsOf(empty.path()), expected);
  EXPECT_EQ(FindingsOf(empty.filePath(u"missing"_s)), expected);
}

}  // namespace
}  // namespace tessaly::test
