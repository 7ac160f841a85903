#include "catalogue/study_selection.h"

#include <gtest/gtest.h>

#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

StudySelection BySection(const QString& exam, const QString& section) {
  StudySelection selection;
  selection.ExamString = exam;
  selection.SectionString = section;
  selection.Subject = u"Left from before"_s;
  return selection;
}

StudySelection BySubject(const QString& subject) {
  StudySelection selection = BySection(u"1998 Examination"_s, u"Part II"_s);
  selection.Method = kBySubject;
  selection.Subject = subject;
  return selection;
}

TEST(StudySelectionTest, TheTimesOfTheTwoModesAreKeptApart) {
  EXPECT_EQ(TimerSection(kTutorialMode), u"TTimer"_s);
  EXPECT_EQ(TimerSection(kEvaluationMode), u"ETimer"_s);
  EXPECT_EQ(TimerSection(2), u"ETimer"_s);
}

TEST(StudySelectionTest, ASectionsTimeIsFoundByItsCaptions) {
  EXPECT_EQ(TimerKey(BySection(u"2000 Examination"_s, u"Part II"_s)),
            u"2000 Examination - Part II"_s);
  EXPECT_EQ(TimerKey(BySection(u"2001 Examination"_s, u"Part I (Individual)"_s)),
            u"2001 Examination - Part I (Individual)"_s);
}

TEST(StudySelectionTest, BySectionTheSubjectOnScreenFollowsInParentheses) {
  const StudySelection selection = BySection(u"1998 Examination"_s, u"Part II"_s);
  EXPECT_EQ(SelectionText(selection, {}), u"1998 Examination - Part II"_s);
  EXPECT_EQ(SelectionText(selection, u"Basis of gifts (donor's)"_s),
            u"1998 Examination - Part II (Basis of gifts (donor's))"_s);
  EXPECT_EQ(SelectionText(selection, u"%1 of %2"_s), u"1998 Examination - Part II (%1 of %2)"_s);
  EXPECT_EQ(SelectionToolTip(selection), u"Study method, year, and section being studied"_s);
}

TEST(StudySelectionTest, BySubjectTheSubjectOnScreenDoesNotMatter) {
  EXPECT_EQ(SelectionText(BySubject(u"Gifts"_s), u"Estates"_s), u"Study by Subject - Gifts"_s);
  EXPECT_EQ(SelectionText(BySubject({}), u"Estates"_s), u"Study by Subject"_s);
  EXPECT_EQ(SelectionToolTip(BySubject({})), u"Study method and subject being studied"_s);
}

TEST(StudySelectionTest, TheModeHasACaption) {
  EXPECT_EQ(ModeCaption(kTutorialMode), u"Tutorial Mode"_s);
  EXPECT_EQ(ModeCaption(kEvaluationMode), u"Evaluation Mode"_s);
  EXPECT_EQ(ModeCaption(255), u"Evaluation Mode"_s);
}

TEST(StudySelectionTest, TheTimersTextFollowsTheMethodAndTheOption) {
  struct Case {
    std::uint8_t method;
    std::uint8_t timerStatus;
    QString text;
  };
  const Case cases[] = {{0, 0, u"Timer Disabled"_s},
                        {0, 1, u"Timer Enabled"_s},
                        {0, 2, u""_s},
                        {1, 0, u"Timer N/A"_s},
                        {1, 1, u"Timer N/A"_s},
                        {1, 7, u"Timer N/A"_s},
                        {2, 0, u""_s},
                        {2, 1, u""_s}};
  for (const auto& [method, timerStatus, text] : cases) {
    EXPECT_EQ(TimerText(method, timerStatus), text) << int{method} << ' ' << int{timerStatus};
  }
}

}  // namespace
}  // namespace tessaly::test
