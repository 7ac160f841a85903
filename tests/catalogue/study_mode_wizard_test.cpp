#include "catalogue/study_mode_wizard.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "tests/support/form_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class StudyModeWizardTest : public FormTest<frmStudyMode> {
protected:
  [[nodiscard]] QString Frame() const { return Find<QGroupBox>(u"fraStudyMode"_s)->title(); }
  [[nodiscard]] QComboBox* List(const QString& name) const { return Find<QComboBox>(name); }
  [[nodiscard]] QStringList Items(const QString& name) const {
    QStringList items;
    for (int i = 0; i < List(name)->count(); ++i) {
      items.append(List(name)->itemText(i));
    }
    return items;
  }
  [[nodiscard]] int SelectedOption() const {
    for (int i = 0; i < kWizardOptionCount; ++i) {
      if (IsChecked(u"optStudyMode.%1"_s.arg(i))) {
        return i;
      }
    }
    return kNoOption;
  }
  void Next() { Click(u"cmdNext"_s); }
  void OpenOnSubjects() {
    Open();
    Next();
    Click(u"optStudyMode.1"_s);
    Next();
  }
};

TEST_F(StudyModeWizardTest, OpensOnTheCurrentModeWithoutListsAndWithoutBack) {
  State().Selection.Mode = kEvaluationMode;
  Open();
  EXPECT_EQ(form->windowTitle(), u"Study Mode Wizard"_s);
  EXPECT_EQ(Frame(), u"Select Study Mode"_s);
  EXPECT_EQ(SelectedOption(), 1);
  EXPECT_FALSE(IsShown(u"optStudyMode.2"_s));
  for (const QString& list :
       {u"cboExam"_s, u"lblExam"_s, u"cboSection"_s, u"lblSection"_s, u"cboSubject"_s}) {
    EXPECT_FALSE(IsShown(list));
  }
  EXPECT_FALSE(Find<QPushButton>(u"cmdBack"_s)->isEnabled());
  EXPECT_EQ(CaptionOf(u"cmdBack"_s), u"< &Back"_s);
  EXPECT_EQ(CaptionOf(u"cmdNext"_s), u"&Next >"_s);
  EXPECT_EQ(CaptionOf(u"cmdCancel"_s), u"Cancel"_s);
  EXPECT_EQ(CaptionOf(u"cmdDefaultMode"_s), u"Default"_s);
  EXPECT_FALSE(Find<QLabel>(u"picWizard"_s)->pixmap().isNull());
}

TEST_F(StudyModeWizardTest, FinishesBySection) {
  Open();
  Click(u"optStudyMode.1"_s);
  Next();
  EXPECT_EQ(Frame(), u"Select Study Method"_s);
  EXPECT_TRUE(Find<QPushButton>(u"cmdBack"_s)->isEnabled());
  Next();
  EXPECT_EQ(Frame(), u"Select Exam and Section"_s);
  EXPECT_FALSE(IsShown(u"optStudyMode.0"_s));
  EXPECT_FALSE(IsShown(u"cboSubject"_s));
  EXPECT_EQ(Items(u"cboExam"_s),
            (QStringList{u"2001 Examination"_s, u"2000 Examination"_s, u"1999 Examination"_s,
                         u"1998 Examination"_s, u"1997 Examination"_s, u"1996 Examination"_s}));
  EXPECT_EQ(Items(u"cboSection"_s),
            (QStringList{u"Part I"_s, u"Part II"_s, u"Part III"_s, u"Part IV"_s}));
  EXPECT_EQ(Find<QLabel>(u"lblExam"_s)->text(), u"Exam"_s);
  EXPECT_EQ(Find<QLabel>(u"lblSection"_s)->text(), u"Section"_s);
  List(u"cboExam"_s)->setCurrentIndex(2);
  List(u"cboSection"_s)->setCurrentIndex(3);
  Next();
  EXPECT_EQ(Frame(), u"Select Question Type"_s);
  EXPECT_EQ(CaptionOf(u"cmdNext"_s), u"Finish"_s);
  Click(u"optStudyMode.2"_s);
  Next();
  EXPECT_EQ(form->result(), QDialog::Accepted);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(PanelText(Panel::Mode), u"Evaluation Mode"_s);
  EXPECT_EQ(PanelText(Panel::Selection), u"1999 Examination - Part IV"_s);
  EXPECT_EQ(settings.writes.last(), u"StudyMode/QuestionType=2"_s);
}

TEST_F(StudyModeWizardTest, OffersTheSubjectsAndTakesWhatIsTyped) {
  OpenOnSubjects();
  EXPECT_EQ(Frame(), u"Select Subject"_s);
  EXPECT_FALSE(IsShown(u"cboExam"_s));
  EXPECT_FALSE(IsShown(u"lblSection"_s));
  QComboBox* list = List(u"cboSubject"_s);
  EXPECT_EQ(list->count(), 87);
  EXPECT_EQ(list->currentText(), u""_s);
  QTest::keyClicks(list->lineEdit(), u"subject 05"_s);
  Press(Qt::Key_Return);
  EXPECT_EQ(Frame(), u"Select Question Type"_s);
  EXPECT_EQ(State().Selection.Subject, u"subject 05"_s);
  EXPECT_FALSE(Find<QWidget>(u"optStudyMode.1"_s)->isEnabled());
  Press(Qt::Key_Return);
  EXPECT_EQ(PanelText(Panel::Selection), u"Study by Subject - subject 05"_s);
}

TEST_F(StudyModeWizardTest, SelectsAListedSubject) {
  State().Selection.Subject = u"Subject 41"_s;
  OpenOnSubjects();
  EXPECT_EQ(List(u"cboSubject"_s)->currentIndex(), 41);
  List(u"cboSubject"_s)->setCurrentIndex(86);
  Next();
  EXPECT_EQ(State().Selection.Subject, u"Subject 86"_s);
  Click(u"cmdBack"_s);
  EXPECT_EQ(List(u"cboSubject"_s)->count(), 87);
  EXPECT_EQ(List(u"cboSubject"_s)->currentText(), u"Subject 86"_s);
}

TEST_F(StudyModeWizardTest, BackShowsWhatWasTakenOverAndDropsWhatWasNot) {
  Open();
  Click(u"optStudyMode.1"_s);
  Next();
  Click(u"optStudyMode.1"_s);
  Click(u"cmdBack"_s);
  EXPECT_EQ(SelectedOption(), 1);
  Next();
  EXPECT_EQ(SelectedOption(), 0);
}

TEST_F(StudyModeWizardTest, EnterGoesOnFromEveryPageAndEscapeCancels) {
  Open();
  Press(Qt::Key_Return);
  Press(Qt::Key_Return);
  Press(Qt::Key_Enter);
  EXPECT_EQ(Frame(), u"Select Question Type"_s);
  Press(Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(form->result(), QDialog::Rejected);
  EXPECT_TRUE(settings.writes.isEmpty());
}

TEST_F(StudyModeWizardTest, CancelKeepsWhatWasTakenOverInMemoryOnly) {
  Open();
  Click(u"optStudyMode.1"_s);
  Next();
  Click(u"cmdCancel"_s);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(State().Selection.Mode, kEvaluationMode);
  EXPECT_TRUE(settings.writes.isEmpty());
}

TEST_F(StudyModeWizardTest, DefaultClosesTheDialogOnYesAndOnNo) {
  for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Yes}) {
    boxes.answers = {answer};
    Open();
    Click(u"cmdDefaultMode"_s);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->result() == QDialog::Accepted, answer == BoxAnswer::Yes);
    EXPECT_EQ(settings.writes.size(), answer == BoxAnswer::Yes ? 10 : 0);
  }
  EXPECT_EQ(PanelText(Panel::Selection), u"2001 Examination - Part I"_s);
}

TEST_F(StudyModeWizardTest, AFinishThatFailsSaysSoAndStaysOpen) {
  Open();
  for (int page = 1; page < kWizardPageCount; ++page) {
    Next();
  }
  ASSERT_TRUE(QFile::remove(bank.Paths().AnswersDbPath));
  Next();
  ASSERT_EQ(boxes.shown.size(), 1);
  EXPECT_TRUE(boxes.shown.first().contains(u"Run-time error '53':"_s));
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(Frame(), u"Select Question Type"_s);
}

}  // namespace
}  // namespace tessaly::test
