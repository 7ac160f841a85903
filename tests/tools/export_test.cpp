#include "tools/bank/export.h"

#include "tests/tools/bank_files.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class ExportTest : public BankFilesTest {
protected:
  [[nodiscard]] ToolRun Export() {
    return RunTool({u"export"_s, paths.questions, folder.filePath(u"sources"_s)});
  }
  [[nodiscard]] QString Exported(const QString& name) const {
    return QString::fromUtf8(ReadBytes(folder.filePath(u"sources/"_s + name)));
  }
  // Compiles, exports, compiles the export, and compares the tables.
  void ExpectRoundTrip() {
    CompileWell();
    const ToolRun run = Export();
    EXPECT_EQ(run.status, 0) << run.err.join(u'\n').toStdString();
    const QString copy = folder.filePath(u"sources/subjects.yaml"_s);
    WriteBytes(copy, ReadBytes(sources.FilePath(u"subjects.yaml"_s)));
    const QString questions = folder.filePath(u"q.mdb"_s);
    const ToolRun again = RunTool({u"compile"_s, folder.filePath(u"sources"_s), u"--questions"_s,
                                   questions, u"--answers"_s, folder.filePath(u"a.mdb"_s)});
    EXPECT_EQ(again.err, QStringList());
    EXPECT_TRUE(DumpOf(questions) == DumpOf(paths.questions));
  }

  QTemporaryDir folder;
};

TEST_F(ExportTest, SourcesComeBackInTheDocumentedForm) {
  const QString part =
      u"- no: 20\n"
      u"  subject: Basis of Assets\n"
      u"  answer: True\n"
      u"  question: |\n"
      u"    A gift keeps the giver's basis.\n"
      u"  explanation: |\n"
      u"    It does.\n"
      u"\n"
      u"    Mostly.\n"
      u"  hint: Publication 551, \"Gifts\"\n"
      u"- no: 21\n"
      u"  subject: Subject 07\n"
      u"  answer: C\n"
      u"  question: |\n"
      u"    What is her gain?\n"
      u"\n"
      u"    A. None.\n"
      u"    B. $5\n"
      u"    C. $6\n"
      u"    D. $7\n"
      u"  explanation: |\n"
      u"    $6.\n"
      u"  hint: Form 4797\n"
      u"  link: p551.html#land\n"_s;
  sources.Write(u"98Part3.yaml"_s, part);
  ExpectRoundTrip();
  EXPECT_EQ(Exported(u"98Part3.yaml"_s), part);
  EXPECT_EQ(Exported(u"version.yaml"_s), u"version: Test release\n"_s);
  EXPECT_EQ(NamesIn(folder.filePath(u"sources"_s)),
            QStringList({u"98Part3.yaml"_s, u"subjects.yaml"_s, u"version.yaml"_s}));
}

TEST_F(ExportTest, WholePartsComeBackTheSame) {
  sources.WritePart(u"01Part1"_s);
  sources.WritePart(u"96Part4"_s);
  ExpectRoundTrip();
}

TEST_F(ExportTest, ATextThatWouldChangeIsNamedAndNothingIsWritten) {
  sources.WritePart(u"01Part1"_s, 1, 3);
  CompileWell();
  Run(paths.questions,
      u"UPDATE \"01Part1\" SET AnswerText = 'Two  blanks' WHERE QuestionNo = '2'"_s);
  Run(paths.questions,
      u"UPDATE \"01Part1\" SET AnswerText = 'One' || char(10) || 'two' "
      u"WHERE QuestionNo = '3'"_s);
  const ToolRun run = Export();
  EXPECT_EQ(run.status, 1);
  const QString text = u"the texts of the table are not as compiled, and would change"_s;
  EXPECT_EQ(run.err, QStringList({u"01Part1.yaml: question 2: "_s + text,
                                  u"01Part1.yaml: question 3: "_s + text}));
  EXPECT_EQ(NamesIn(folder.path()), QStringList());
}

TEST_F(ExportTest, AFileThatIsNoBankIsRefused) {
  const ToolRun missing = Export();
  EXPECT_EQ(missing.status, 1);
  EXPECT_EQ(missing.err,
            QStringList(u"Run-time error 53: File not found (%1)"_s.arg(paths.questions)));
  Connection(paths.questions, kPassword, Connection::Access::CreateNew)
      .Execute(u"CREATE TABLE Version (TableVersion TEXT)"_s);
  Run(paths.questions, u"INSERT INTO Version VALUES ('1')"_s);
  EXPECT_EQ(Export().status, 1);
  EXPECT_EQ(NamesIn(folder.path()), QStringList());
}

}  // namespace
}  // namespace tessaly::test
