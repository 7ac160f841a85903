#include "catalogue/wizard_pages.h"

#include <algorithm>
#include <cstddef>

#include "app/program_state.h"
#include "catalogue/exam_catalogue.h"
#include "catalogue/study_selector.h"
#include "platform/message_boxes.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

enum PageNumber { kModePage = 1, kMethodPage, kQuestionsPage, kQuestionTypePage };

constexpr auto kNext = "&Next >"_L1;
constexpr auto kFinish = "Finish"_L1;

constexpr std::array<WizardPage, kWizardPageCount> kPages{{
    {"Select Study Mode"_L1,
     {"Tutorial mode (show explanations)"_L1, "Evaluation mode (hide explanations)"_L1, {}},
     WizardLists::None,
     false,
     kNext},
    {"Select Study Method"_L1,
     {"Study by exam section"_L1, "Study by subject"_L1, {}},
     WizardLists::None,
     true,
     kNext},
    {"Select Exam and Section"_L1, {}, WizardLists::ExamAndSection, true, kNext},
    {"Select Question Type"_L1,
     {"Unanswered questions"_L1, "Questions which where answered incorrectly"_L1,
      "Unanswered and previously missed questions"_L1},
     WizardLists::None,
     true,
     kFinish},
}};

// In place of the third page when the study is by subject.
constexpr WizardPage kSubjectPage{"Select Subject"_L1, {}, WizardLists::Subjects, true, kNext};

// A list has a first entry for any index that it does not hold.
int IndexWithin(int index, int count) {
  return index >= 0 && index < count ? index : 0;
}

}  // namespace

WizardPages::WizardPages(ProgramState& state, StudySelector& selector, MessageBoxes& boxes)
    : state_(state), selector_(selector), boxes_(boxes) {}

const WizardPage& WizardPages::Page() const {
  if (page_ == kQuestionsPage && state_.Selection.Method == kBySubject) {
    return kSubjectPage;
  }
  return kPages[static_cast<std::size_t>(page_ - 1)];
}

bool WizardPages::IsOptionEnabled(int option) const {
  return !(page_ == kQuestionTypePage && option == kMissedQuestions &&
           state_.Selection.Method == kBySubject);
}

int WizardPages::SelectedOption() const {
  const std::array<int, kWizardPageCount> selected{state_.Selection.Mode, state_.Selection.Method,
                                                   kNoOption, state_.Selection.QuestionType};
  const int option = selected[static_cast<std::size_t>(page_ - 1)];
  const bool isShown = option >= 0 && option < kWizardOptionCount &&
                       !Page().options[static_cast<std::size_t>(option)].isEmpty();
  return isShown ? option : kNoOption;
}

int WizardPages::SelectedExam() const {
  return IndexWithin(state_.Selection.Exam, kExamCount);
}

int WizardPages::SelectedSection() const {
  return IndexWithin(state_.Selection.Section, kPartCount);
}

const QString& WizardPages::SelectedSubject() const {
  return state_.Selection.Subject;
}

std::span<const QString> WizardPages::Subjects() const {
  return std::span(state_.Subjects.SubjectName).first(kSubjectCount);
}

bool WizardPages::Next(const WizardChoice& choice) {
  Take(choice);
  if (page_ == kWizardPageCount) {
    Finish();
    return true;
  }
  ++page_;
  return false;
}

void WizardPages::Back() {
  page_ = std::max(page_ - 1, 1);
}

bool WizardPages::Default() {
  if (!boxes_.AskYesNo(u"Reset Study Mode to default values?"_s, u"Tessaly Study Mode"_s)) {
    return false;
  }
  selector_.ResetStudySelection();
  // The totals in memory must belong to the mode, which may have changed.
  selector_.LoadSubjectTotals();
  return true;
}

void WizardPages::Take(const WizardChoice& choice) {
  StudySelection& selection = state_.Selection;
  switch (page_) {
    case kModePage:
      selection.Mode = choice.option == kTutorialMode ? kTutorialMode : kEvaluationMode;
      break;
    case kMethodPage:
      selection.Method = choice.option == kByExamSection ? kByExamSection : kBySubject;
      break;
    case kQuestionsPage:
      if (selection.Method == kBySubject) {
        selection.Subject = choice.subject;
      } else {
        TakeExamAndSection(choice);
      }
      break;
    default:
      selection.QuestionType =
          choice.option == kUnansweredQuestions || choice.option == kMissedQuestions
              ? static_cast<std::int16_t>(choice.option)
              : kUnansweredAndMissedQuestions;
      break;
  }
}

void WizardPages::TakeExamAndSection(const WizardChoice& choice) {
  StudySelection& selection = state_.Selection;
  selection.Exam = static_cast<std::uint8_t>(IndexWithin(choice.exam, kExamCount));
  selection.Section = static_cast<std::int16_t>(IndexWithin(choice.section, kPartCount));
  selection.ExamString = kExams[selection.Exam].caption;
  selector_.SetYearFromExamString();
  selection.SectionString = kParts[static_cast<std::size_t>(selection.Section)].caption;
}

void WizardPages::Finish() {
  selector_.SaveStudySelection();
  selector_.SetCurrentTable();
  selector_.ShowModeCaption();
  selector_.RefreshStatus();
  const QString& subject = state_.Selection.Subject;
  state_.SubjectNames = {subject + u"Asked"_s, subject + u"Correct"_s};
}

}  // namespace tessaly
