#include "tests/end_to_end/end_to_end_test.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

// The files as a compaction leaves them that is cut off between the deletion of the old files and
// the renaming of the copies.
class InterruptedCompactionTest : public EndToEndTest {
protected:
  InterruptedCompactionTest() {
    Bank().AddQuestion(u"01Part1"_s, {4, TestBank::SubjectName(5), 0, u"Question 4"_s, {}, {}, {}},
                       {u"C"_s, u"U"_s, u"P"_s, 7, 3});
  }

  [[nodiscard]] QString QuestionsCopyIn(const QString& folder) const {
    return folder + u"/tempdb.mdb"_s;
  }
  [[nodiscard]] QString AnswersCopyIn(const QString& folder) const {
    return folder + u"/tempdba.mdb"_s;
  }
  void MoveQuestionsTo(const QString& folder) {
    ASSERT_TRUE(QFile::rename(Bank().Paths().QuestionsDbPath, QuestionsCopyIn(folder)));
  }
  void MoveAnswersTo(const QString& folder) {
    ASSERT_TRUE(QFile::rename(Bank().Paths().AnswersDbPath, AnswersCopyIn(folder)));
  }
  void ExpectFinishedAtTheStart() {
    program.StartToMainWindow();
    EXPECT_TRUE(Bank().IsIntact());
    EXPECT_EQ(Bank().StatusRow(u"01Part1"_s, 4), u"C U P 7 3"_s);
    program.Press(u"Ctrl+B"_s);
    program.WaitForVisible(u"txtQuestion"_s);
    EXPECT_EQ(program.PaneText(u"txtQuestion"_s), u"Question 1"_s);
    EXPECT_EQ(NamesIn(installation.WorkingFolder()), QStringList{});
  }
};

TEST_F(InterruptedCompactionTest, BothCopiesAreRenamedAtTheNextStart) {
  MoveQuestionsTo(installation.WorkingFolder());
  MoveAnswersTo(installation.WorkingFolder());
  ExpectFinishedAtTheStart();
}

TEST_F(InterruptedCompactionTest, TheOnlyCopyLeftIsRenamedAtTheNextStart) {
  MoveAnswersTo(installation.WorkingFolder());
  ExpectFinishedAtTheStart();
}

TEST_F(InterruptedCompactionTest, CopiesInAnotherWorkingDirectoryAreFound) {
  const QTemporaryDir before;
  MoveQuestionsTo(before.path());
  MoveAnswersTo(before.path());
  WriteBytes(
      installation.Folder() + u"/tessaly02.compacting"_s,
      (QuestionsCopyIn(before.path()) + u'\n' + AnswersCopyIn(before.path()) + u'\n').toUtf8());
  ExpectFinishedAtTheStart();
  EXPECT_EQ(NamesIn(before.path()), QStringList{});
  EXPECT_FALSE(NamesIn(installation.Folder()).contains(u"tessaly02.compacting"_s));
}

TEST_F(InterruptedCompactionTest, CopiesBesideWholeFilesAreLeftovers) {
  WriteBytes(QuestionsCopyIn(installation.WorkingFolder()), "half a copy");
  WriteBytes(AnswersCopyIn(installation.WorkingFolder()), "");
  ExpectFinishedAtTheStart();
}

}  // namespace
}  // namespace tessaly::test
