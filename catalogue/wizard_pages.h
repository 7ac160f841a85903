#ifndef TESSALY_CATALOGUE_WIZARD_PAGES_H_
#define TESSALY_CATALOGUE_WIZARD_PAGES_H_

#include <QLatin1StringView>
#include <QString>
#include <array>
#include <cstdint>
#include <span>

namespace tessaly {

class MessageBoxes;
class StudySelector;
struct ProgramState;

inline constexpr int kWizardPageCount = 4;
inline constexpr int kWizardOptionCount = 3;
inline constexpr int kNoOption = -1;

enum class WizardLists { None, ExamAndSection, Subjects };

// What a page shows, apart from the choice that is made on it.
struct WizardPage {
  QLatin1StringView caption;
  std::array<QLatin1StringView, kWizardOptionCount> options;  // an empty one is hidden
  WizardLists lists = WizardLists::None;
  bool canGoBack = true;
  QLatin1StringView nextCaption;
};

// What is chosen on a page when the user leaves it with Next.
struct WizardChoice {
  int option = kNoOption;  // the selected option button
  int exam = 0;            // positions in the lists
  int section = 0;
  QString subject;  // as it stands in its box, whether the list has it or not
};

// The Study Mode wizard without its window: four pages that show the study selection and, each as
// it is left with Next, change it. The changes stay in memory until the wizard is finished, which
// writes them; cancelling takes none of them back.
class WizardPages {
public:
  WizardPages(ProgramState& state, StudySelector& selector, MessageBoxes& boxes);

  [[nodiscard]] int PageNumber() const { return page_; }  // from 1
  [[nodiscard]] const WizardPage& Page() const;
  [[nodiscard]] bool IsOptionEnabled(int option) const;

  // What the page has selected on arrival. No option when the selection holds a value that has
  // none; the first exam or section in place of one outside the catalogue.
  [[nodiscard]] int SelectedOption() const;
  [[nodiscard]] int SelectedExam() const;
  [[nodiscard]] int SelectedSection() const;
  [[nodiscard]] const QString& SelectedSubject() const;
  [[nodiscard]] std::span<const QString> Subjects() const;

  // Takes the page's choice over and goes on. True from the last page on, when everything is
  // written and the status panels show it; raises the failures of writing, and then stays.
  [[nodiscard]] bool Next(const WizardChoice& choice);
  // What was chosen on the page that is left is dropped.
  void Back();
  // Asks whether to reset the study selection, and does it on Yes; true then. The status panels
  // stay.
  [[nodiscard]] bool Default();

private:
  void Take(const WizardChoice& choice);
  void TakeExamAndSection(const WizardChoice& choice);
  void Finish();

  ProgramState& state_;
  StudySelector& selector_;
  MessageBoxes& boxes_;
  int page_ = 1;
};

}  // namespace tessaly

#endif  // TESSALY_CATALOGUE_WIZARD_PAGES_H_
