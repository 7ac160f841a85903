#include "reference/research_hint.h"

#include "tests/support/program_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class ResearchHintTest : public ProgramTest {
protected:
  void AddQuestion(int no, const QString& hint, const QString& link) {
    bank.AddQuestion(u"01Part1"_s, {.no = no,
                                    .subject = TestBank::SubjectName(1),
                                    .question = u"Question"_s,
                                    .explanation = u"Explanation"_s,
                                    .hint = hint,
                                    .link = link});
  }
  [[nodiscard]] QString Hint() const { return view.BoxText(Box::txtHintLink); }
  void ShowNext() { Session().Skip(); }
};

TEST_F(ResearchHintTest, TheHintComesWithItsQuestion) {
  AddQuestion(1, u"Publication 501, \"Dependents\""_s, u"p501.html#dependents"_s);
  AddQuestion(2, u"Publication 17"_s, u"p17.html"_s);
  Begin();
  EXPECT_EQ(Hint(), u"Publication 501, \"Dependents\""_s);
  EXPECT_EQ(State().ResearchLink, u"p501.html#dependents"_s);
  ShowNext();
  EXPECT_EQ(Hint(), u"Publication 17"_s);
  EXPECT_EQ(State().ResearchLink, u"p17.html"_s);
}

TEST_F(ResearchHintTest, AQuestionWithoutALinkLeavesTheLastOne) {
  AddQuestion(1, u"Publication 501"_s, u"p501.html"_s);
  AddQuestion(2, u"Circular 230"_s, {});
  AddQuestion(3, u"Publication 17"_s, u"p17.html"_s);
  Begin();
  ShowNext();
  EXPECT_EQ(Hint(), u"Circular 230"_s);
  EXPECT_EQ(State().ResearchLink, u"p501.html"_s);
  ShowNext();
  EXPECT_EQ(State().ResearchLink, u"p17.html"_s);
}

TEST_F(ResearchHintTest, AFirstQuestionWithoutALinkLeavesNone) {
  AddQuestion(1, u"Circular 230"_s, {});
  Begin();
  EXPECT_TRUE(State().ResearchLink.isEmpty());
}

TEST_F(ResearchHintTest, AQuestionWithoutAHintSaysSo) {
  AddQuestion(1, {}, u"p501.html"_s);
  Begin();
  EXPECT_EQ(Hint(),
            u"The research link for this question is not available in the current database "
            u"release."_s);
}

TEST_F(ResearchHintTest, TheCommandTakesItselfOutOfMenuAndToolbar) {
  AddQuestion(1, u"Publication 501"_s, u"p501.html"_s);
  Begin();
  EXPECT_EQ(BeginResearch(view), u"Publication 501"_s);
  EXPECT_FALSE(view.buttons.at(ToolButton::Hint));
  EXPECT_FALSE(view.commands.at(Command::mnuFileResearch));
}

TEST_F(ResearchHintTest, AnEmptyBoxHasAWordingOfItsOwn) {
  EXPECT_EQ(BeginResearch(view),
            u"The research link for this question is not available in this database release"_s);
}

TEST_F(ResearchHintTest, ClosingBringsTheToolbarButtonBackAndTheNextQuestionTheMenuItem) {
  AddQuestion(1, u"Publication 501"_s, u"p501.html"_s);
  AddQuestion(2, u"Publication 17"_s, u"p17.html"_s);
  Begin();
  static_cast<void>(BeginResearch(view));
  EndResearch(view, Session().IsRunning());
  EXPECT_TRUE(view.buttons.at(ToolButton::Hint));
  EXPECT_FALSE(view.commands.at(Command::mnuFileResearch));
  Session().GradeAnswer(0);
  Session().NextQuestion();
  EXPECT_TRUE(view.commands.at(Command::mnuFileResearch));
}

TEST_F(ResearchHintTest, AfterTheSessionResearchStaysOff) {
  AddQuestion(1, u"Publication 501"_s, u"p501.html"_s);
  Begin();
  static_cast<void>(BeginResearch(view));
  Session().EndSession();
  EndResearch(view, Session().IsRunning());
  EXPECT_FALSE(view.buttons.at(ToolButton::Hint));
}

}  // namespace
}  // namespace tessaly::test
