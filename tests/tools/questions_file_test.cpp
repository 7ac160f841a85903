#include "tools/bank/questions_file.h"

#include "catalogue/exam_catalogue.h"
#include "tests/tools/bank_files.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

using QuestionsFileTest = BankFilesTest;

TEST_F(QuestionsFileTest, EveryExamPartHasATableOfTheSameFields) {
  sources.WritePart(u"01Part1"_s);
  CompileWell();
  const QStringList fields{
      u"0|QuestionNo|TEXT|0|(Null)|0"_s, u"1|Question|TEXT|0|(Null)|0"_s,
      u"2|AnswerText|TEXT|0|(Null)|0"_s, u"3|AnswerNumber|INTEGER|0|(Null)|0"_s,
      u"4|Subject|TEXT|0|(Null)|0"_s,    u"5|Hint|TEXT|0|(Null)|0"_s,
      u"6|Link|TEXT|0|(Null)|0"_s,
  };
  for (const QLatin1StringView table : kTables) {
    EXPECT_EQ(Rows(paths.questions, u"PRAGMA table_info(\"%1\")"_s.arg(table)), fields);
    EXPECT_EQ(Rows(paths.questions, u"PRAGMA index_info(\"%1QuestionNo\")"_s.arg(table)),
              QStringList(u"0|0|QuestionNo"_s));
    EXPECT_EQ(Rows(paths.questions, u"SELECT count(*) FROM \"%1\""_s.arg(table)),
              QStringList(table == "01Part1"_L1 ? u"80"_s : u"0"_s));
  }
  EXPECT_EQ(Rows(paths.questions, u"SELECT count(*) FROM sqlite_master WHERE type = 'table'"_s),
            QStringList(u"25"_s));
  EXPECT_EQ(Rows(paths.questions, u"PRAGMA table_info(Version)"_s),
            QStringList(u"0|TableVersion|TEXT|0|(Null)|0"_s));
  EXPECT_EQ(Rows(paths.questions, u"SELECT * FROM Version"_s), QStringList(u"Test release"_s));
}

TEST_F(QuestionsFileTest, TextsAreJoinedAndAMissingLinkIsNull) {
  sources.Write(u"98Part4.yaml"_s,
                u"- no: 40\n"
                u"  subject: Basis of Assets\n"
                u"  answer: False\n"
                u"  question: |\n"
                u"    A gift keeps\n"
                u"    the giver's basis.\n"
                u"  explanation: |\n"
                u"    It does,\n"
                u"    \"mostly\".\n"
                u"\n"
                u"    But not always.\n"
                u"  hint: Publication 551,\n"
                u"    \"Property Received as a Gift\"\n"
                u"- no: 41\n"
                u"  subject: Subject 07\n"
                u"  answer: D\n"
                u"  question: |\n"
                u"    Ida sold land\n"
                u"    in 1997.\n"
                u"\n"
                u"    What is her gain?\n"
                u"\n"
                u"    A. None.\n"
                u"    B. $5,\n"
                u"       all of it.\n"
                u"    C. $6\n"
                u"    D. $7\n"
                u"  explanation: |\n"
                u"    $10 - $3 = $7.\n"
                u"  hint: Form 4797\n"
                u"  link: p551.html#land\n"_s);
  CompileWell();
  const QStringList expected{
      u"40|A gift keeps the giver's basis.|It does, \"mostly\".\n\nBut not always.|1|"
      u"Basis of Assets|Publication 551, \"Property Received as a Gift\"|(Null)"_s,
      u"41|Ida sold land in 1997.\n\nWhat is her gain?\n\n"
      u"A. None.\nB. $5, all of it.\nC. $6\nD. $7|$10 - $3 = $7.|3|Subject 07|Form 4797|"
      u"p551.html#land"_s};
  EXPECT_EQ(Rows(paths.questions, u"SELECT * FROM \"98Part4\" ORDER BY rowid"_s), expected);
  EXPECT_EQ(Rows(paths.questions,
                 u"SELECT typeof(QuestionNo), typeof(AnswerNumber) FROM "
                 u"\"98Part4\" LIMIT 1"_s),
            QStringList(u"text|integer"_s));
}

TEST_F(QuestionsFileTest, AnswersAreNumberedFromTheFirst) {
  sources.WritePart(u"01Part1"_s, 19, 24);
  CompileWell();
  // The answers of these sources are False, True, B, C, D and A.
  EXPECT_EQ(Rows(paths.questions, u"SELECT AnswerNumber FROM \"01Part1\" ORDER BY rowid"_s),
            QStringList({u"1"_s, u"0"_s, u"1"_s, u"2"_s, u"3"_s, u"0"_s}));
}

TEST_F(QuestionsFileTest, TheFileIsWrittenAnew) {
  sources.WritePart(u"01Part1"_s);
  CompileWell();
  sources.WritePart(u"01Part1"_s, 1, 2);
  sources.WritePart(u"01Part2"_s, 5, 5);
  sources.Write(u"version.yaml"_s, u"version: Next release\n"_s);
  CompileWell();
  EXPECT_EQ(Rows(paths.questions, u"SELECT QuestionNo FROM \"01Part1\""_s),
            QStringList({u"1"_s, u"2"_s}));
  EXPECT_EQ(Rows(paths.questions, u"SELECT QuestionNo FROM \"01Part2\""_s), QStringList(u"5"_s));
  EXPECT_EQ(Rows(paths.questions, u"SELECT * FROM Version"_s), QStringList(u"Next release"_s));
}

}  // namespace
}  // namespace tessaly::test
