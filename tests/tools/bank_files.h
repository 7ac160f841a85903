#ifndef TESSALY_TESTS_TOOLS_BANK_FILES_H_
#define TESSALY_TESTS_TOOLS_BANK_FILES_H_

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "store/connection.h"
#include "store/question_bank.h"
#include "tests/support/file_contents.h"
#include "tests/support/printers.h"
#include "tests/tools/bank_folder.h"
#include "tools/bank/compile.h"

namespace tessaly::test {

// Sources with a program folder for the files that are compiled from them.
class BankFilesTest : public ::testing::Test {
protected:
  [[nodiscard]] ToolRun Compile() {
    return RunTool({QStringLiteral("compile"), sources.Path(), QStringLiteral("--questions"),
                    paths.questions, QStringLiteral("--answers"), paths.answers});
  }
  void CompileWell() {
    const ToolRun run = Compile();
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, QStringList());
  }

  // The rows of a query, their values joined by "|"; Null is "(Null)". The file must not be open
  // elsewhere.
  [[nodiscard]] static QStringList Rows(const QString& path, const QString& sql) {
    Connection connection(path, kPassword, Connection::Access::OpenExisting);
    Statement statement = connection.Prepare(sql);
    QStringList rows;
    while (statement.Next()) {
      QStringList values;
      for (int column = 0; column < statement.ColumnCount(); ++column) {
        const QVariant value = statement.Column(column);
        values.append(value.isNull() ? QStringLiteral("(Null)") : value.toString());
      }
      rows.append(values.join(u'|'));
    }
    return rows;
  }
  static void Run(const QString& path, const QString& sql) {
    Connection(path, kPassword, Connection::Access::OpenExisting).Execute(sql);
  }

  BankFolder sources;
  QTemporaryDir program;
  bank::BankFiles paths{program.filePath(kQuestionsFileName), program.filePath(kAnswersFileName)};
};

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_TOOLS_BANK_FILES_H_
