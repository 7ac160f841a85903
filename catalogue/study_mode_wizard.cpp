#include "catalogue/study_mode_wizard.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/error_boundary.h"
#include "app/program.h"
#include "catalogue/exam_catalogue.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kMargin = 16;
constexpr int kSpacing = 8;
constexpr int kPageWidth = 370;
constexpr int kOptionSpacing = 16;
constexpr int kShownSubjects = 16;

QLabel* NewPicture() {
  auto* picture = new QLabel;
  picture->setObjectName(u"picWizard"_s);
  picture->setPixmap(QPixmap(u":/pictures/wizard.png"_s));
  picture->setAlignment(Qt::AlignTop);
  return picture;
}

}  // namespace

frmStudyMode::frmStudyMode(Program& program, ErrorBoundary& errors, QWidget* parent)
    : QDialog(parent),
      pages_(program.State(), program.Selector(), program.Machine().boxes),
      errors_(errors) {
  setObjectName(u"frmStudyMode"_s);
  setWindowTitle(u"Study Mode Wizard"_s);
  auto* above = new QHBoxLayout;
  above->setSpacing(0);
  above->addWidget(NewPicture());
  above->addLayout(BuildFrame());
  auto* line = new QFrame;
  line->setFrameStyle(static_cast<int>(QFrame::HLine) | static_cast<int>(QFrame::Sunken));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addLayout(above);
  column->addWidget(line);
  column->addLayout(BuildButtons());
  column->setSizeConstraint(QLayout::SetFixedSize);
  ShowPage();
}

QLayout* frmStudyMode::BuildFrame() {
  step_ = new QLabel;
  step_->setObjectName(u"lblStep"_s);
  step_->setForegroundRole(QPalette::PlaceholderText);
  frame_ = new QGroupBox;
  frame_->setObjectName(u"fraStudyMode"_s);
  frame_->setFixedWidth(kPageWidth);
  auto* inFrame = new QVBoxLayout(frame_);
  inFrame->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  inFrame->setSpacing(kOptionSpacing);
  optionGroup_ = new QButtonGroup(this);
  for (int i = 0; i < kWizardOptionCount; ++i) {
    auto* option = new QRadioButton;
    option->setObjectName(u"optStudyMode.%1"_s.arg(i));
    optionGroup_->addButton(option, i);
    inFrame->addWidget(option);
    options_[static_cast<std::size_t>(i)] = option;
  }
  inFrame->addWidget(BuildLists());
  inFrame->addStretch();
  auto* page = new QVBoxLayout;
  page->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  page->setSpacing(kSpacing);
  page->addWidget(step_);
  page->addWidget(frame_, 1);
  return page;
}

QWidget* frmStudyMode::BuildLists() {
  exam_ = NewList(u"cboExam"_s, u"Exam"_s);
  for (const ExamEntry& exam : kExams) {
    exam_->addItem(exam.caption);
  }
  section_ = NewList(u"cboSection"_s, u"Section"_s);
  for (const PartEntry& part : kParts) {
    section_->addItem(part.caption);
  }
  subject_ = NewList(u"cboSubject"_s, u"Subject"_s);
  subject_->setEditable(true);
  subject_->setInsertPolicy(QComboBox::NoInsert);
  // What is typed stands as it is; a completer would put the list's spelling in its place.
  subject_->setCompleter(nullptr);
  subject_->setMaxVisibleItems(kShownSubjects);
  examLabel_ = new QLabel(u"Exam"_s);
  examLabel_->setObjectName(u"lblExam"_s);
  sectionLabel_ = new QLabel(u"Section"_s);
  sectionLabel_->setObjectName(u"lblSection"_s);
  auto* lists = new QWidget;
  auto* grid = new QGridLayout(lists);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setVerticalSpacing(kOptionSpacing);
  grid->setHorizontalSpacing(kMargin);
  grid->setColumnStretch(1, 1);
  grid->addWidget(examLabel_, 0, 0);
  grid->addWidget(exam_, 0, 1);
  grid->addWidget(sectionLabel_, 1, 0);
  grid->addWidget(section_, 1, 1);
  grid->addWidget(subject_, 2, 0, 1, 2);
  return lists;
}

QLayout* frmStudyMode::BuildButtons() {
  auto* row = new QHBoxLayout;
  row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  row->setSpacing(kSpacing);
  row->addWidget(NewButton(u"cmdDefaultMode"_s, u"Default"_s, &frmStudyMode::cmdDefaultMode_Click));
  row->addStretch();
  back_ = NewButton(u"cmdBack"_s, u"< &Back"_s, &frmStudyMode::cmdBack_Click);
  next_ = NewButton(u"cmdNext"_s, {}, &frmStudyMode::cmdNext_Click);
  next_->setDefault(true);
  row->addWidget(back_);
  row->addWidget(next_);
  row->addSpacing(kSpacing);
  row->addWidget(NewButton(u"cmdCancel"_s, u"Cancel"_s, &frmStudyMode::cmdCancel_Click));
  return row;
}

QComboBox* frmStudyMode::NewList(const QString& name, const QString& accessibleName) {
  auto* list = new QComboBox;
  list->setObjectName(name);
  list->setAccessibleName(accessibleName);
  list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  return list;
}

QPushButton* frmStudyMode::NewButton(const QString& name, const QString& caption,
                                     void (frmStudyMode::*clicked)()) {
  auto* button = new QPushButton(caption, this);
  button->setObjectName(name);
  connect(button, &QPushButton::clicked, this, clicked);
  return button;
}

void frmStudyMode::ShowPage() {
  const WizardPage& page = pages_.Page();
  step_->setText(u"Step %1 of %2"_s.arg(pages_.PageNumber()).arg(kWizardPageCount));
  frame_->setTitle(page.caption);
  ShowOptions();
  ShowLists();
  next_->setText(page.nextCaption);
  FocusChoice();
  // A button that loses the focus by being disabled would hand it on to its neighbour.
  back_->setEnabled(page.canGoBack);
}

void frmStudyMode::ShowOptions() {
  // An exclusive group would not let go of its selection where the page has none.
  optionGroup_->setExclusive(false);
  for (int i = 0; i < kWizardOptionCount; ++i) {
    QRadioButton* option = options_[static_cast<std::size_t>(i)];
    const QLatin1StringView caption = pages_.Page().options[static_cast<std::size_t>(i)];
    option->setText(caption);
    option->setVisible(!caption.isEmpty());
    option->setEnabled(pages_.IsOptionEnabled(i));
    option->setChecked(i == pages_.SelectedOption());
  }
  optionGroup_->setExclusive(true);
}

void frmStudyMode::ShowLists() {
  const WizardLists lists = pages_.Page().lists;
  for (QWidget* widget :
       std::initializer_list<QWidget*>{examLabel_, exam_, sectionLabel_, section_}) {
    widget->setVisible(lists == WizardLists::ExamAndSection);
  }
  subject_->setVisible(lists == WizardLists::Subjects);
  if (lists == WizardLists::ExamAndSection) {
    exam_->setCurrentIndex(pages_.SelectedExam());
    section_->setCurrentIndex(pages_.SelectedSection());
  } else if (lists == WizardLists::Subjects) {
    subject_->clear();
    for (const QString& subject : pages_.Subjects()) {
      subject_->addItem(subject);
    }
    subject_->setCurrentIndex(
        subject_->findText(pages_.SelectedSubject(), Qt::MatchExactly | Qt::MatchCaseSensitive));
    subject_->setEditText(pages_.SelectedSubject());
  }
}

void frmStudyMode::FocusChoice() {
  const WizardLists lists = pages_.Page().lists;
  if (lists == WizardLists::ExamAndSection) {
    exam_->setFocus();
  } else if (lists == WizardLists::Subjects) {
    subject_->setFocus();
  } else if (optionGroup_->checkedButton() != nullptr &&
             optionGroup_->checkedButton()->isEnabled()) {
    optionGroup_->checkedButton()->setFocus();
  } else {
    options_[0]->setFocus();
  }
}

WizardChoice frmStudyMode::Choice() const {
  return {optionGroup_->checkedId(), exam_->currentIndex(), section_->currentIndex(),
          subject_->currentText()};
}

void frmStudyMode::cmdBack_Click() {
  pages_.Back();
  ShowPage();
}

void frmStudyMode::cmdNext_Click() {
  errors_.Run(u"saving the study mode"_s, [this] {
    if (pages_.Next(Choice())) {
      accept();
    } else {
      ShowPage();
    }
  });
}

void frmStudyMode::cmdDefaultMode_Click() {
  bool wasReset = false;
  errors_.Run(u"resetting the study mode"_s, [&] { wasReset = pages_.Default(); });
  done(wasReset ? QDialog::Accepted : QDialog::Rejected);
}

}  // namespace tessaly
