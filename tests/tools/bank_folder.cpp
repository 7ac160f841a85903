#include "tests/tools/bank_folder.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>

#include "platform/file_operations.h"
#include "tests/support/file_contents.h"
#include "tests/support/printers.h"
#include "tools/bank/command_line.h"
#include "tools/bank/question_text.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {

namespace {

// Words of five letters, the same ones for the same question in every run.
class Words {
public:
  Words(const QString& table, int no)
      : random_(static_cast<quint32>(qHash(table)) ^ static_cast<quint32>(no)) {}

  [[nodiscard]] QString Next(int count) {
    QStringList words;
    for (int i = 0; i < count; ++i) {
      QString word;
      for (int letter = 0; letter < 5; ++letter) {
        word += QChar(u'a' + random_.bounded(26));
      }
      words.append(word);
    }
    return words.join(u' ');
  }

private:
  QRandomGenerator random_;
};

}  // namespace

BankFolder::BankFolder() {
  Write(u"version.yaml"_s, u"version: Test release\n"_s);
  WriteSubjects(Subjects());
}

void BankFolder::Write(const QString& name, const QString& text) {
  WriteBytes(FilePath(name), text.toUtf8());
}

void BankFolder::WriteSubjects(const QStringList& subjects) {
  Write(u"subjects.yaml"_s, u"- "_s + subjects.join(u"\n- "_s) + u'\n');
}

void BankFolder::Replace(const QString& name, const QString& from, const QString& to) {
  QString text = QString::fromUtf8(ReadBytes(FilePath(name)));
  const qsizetype position = text.indexOf(from);
  ASSERT_GE(position, 0) << from.toStdString() << " is not in " << name.toStdString();
  Write(name, text.replace(position, from.size(), to));
}

void BankFolder::WritePart(const QString& table, int first, int last) {
  QString text;
  for (int no = first; no <= last; ++no) {
    text += QuestionYaml(table, no);
  }
  Write(bank::SourceName(table), text);
}

bank::BankSource BankFolder::Read() const {
  bank::Findings findings;
  bank::BankSource source = bank::ReadBankSource(Path(), findings);
  for (const bank::Finding& finding : findings) {
    ADD_FAILURE() << ToText(finding).toStdString();
  }
  return source;
}

QStringList BankFolder::Subjects() {
  QStringList subjects{u"Basis of Assets"_s};
  for (int i = 1; i <= 86; ++i) {
    subjects.append(u"Subject %1"_s.arg(i, 2, 10, QLatin1Char('0')));
  }
  return subjects;
}

QString QuestionYaml(const QString& table, int no) {
  Words words(table, no);
  const bool trueFalse = bank::IsTrueFalse(table, no);
  const QString answer =
      trueFalse ? (no % 2 == 0 ? u"True"_s : u"False"_s) : QString(QChar(u'A' + no % 4));
  QString text =
      u"- no: %1\n  subject: Basis of Assets\n  answer: %2\n  question: |\n    %3\n"_s.arg(no).arg(
          answer, words.Next(12));
  if (!trueFalse) {
    text += u'\n';
    for (const QChar letter : u"ABCD"_s) {
      text += u"    %1. %2\n"_s.arg(letter).arg(words.Next(3));
    }
  }
  return text + u"  explanation: |\n    Explanation %1.\n  hint: Hint %1\n"_s.arg(no);
}

ToolRun RunTool(const QStringList& arguments) {
  DiskFileOperations files;
  QString out;
  QString err;
  QTextStream outStream(&out);
  QTextStream errStream(&err);
  const auto status =
      bank::RunCommand(QStringList{u"tessaly-bank"_s} + arguments, files, outStream, errStream);
  outStream.flush();
  errStream.flush();
  return {static_cast<int>(status), out, err.split(u'\n', Qt::SkipEmptyParts)};
}

}  // namespace tessaly::test
