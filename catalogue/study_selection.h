#ifndef TESSALY_CATALOGUE_STUDY_SELECTION_H_
#define TESSALY_CATALOGUE_STUDY_SELECTION_H_

#include <QString>
#include <cstdint>

namespace tessaly {

inline constexpr std::uint8_t kTutorialMode = 0;
inline constexpr std::uint8_t kEvaluationMode = 1;

inline constexpr std::uint8_t kByExamSection = 0;
inline constexpr std::uint8_t kBySubject = 1;

inline constexpr std::int16_t kUnansweredQuestions = 0;
inline constexpr std::int16_t kMissedQuestions = 1;
inline constexpr std::int16_t kUnansweredAndMissedQuestions = 2;

// What the user studies. The initial values are those that a first start reads where nothing is
// stored; a reset to defaults sets SectionString and Year otherwise (StudySelector).
struct StudySelection {
  std::uint8_t Mode = kTutorialMode;
  std::uint8_t Method = kByExamSection;
  std::uint8_t Exam = 0;     // index into kExams
  std::int16_t Section = 0;  // index into kParts
  QString ExamString;        // caption of the exam
  QString SectionString;     // caption of the section
  QString Year;              // two-digit code derived from ExamString
  QString Subject;           // used when Method is by subject
  std::int16_t QuestionType = kUnansweredQuestions;
};

// The settings section that holds the study times of a mode.
[[nodiscard]] QString TimerSection(std::uint8_t mode);
// The key of a section's study time: exam and section caption, as "2000 Examination - Part II".
[[nodiscard]] QString TimerKey(const StudySelection& selection);

// Text of the selection panel. By exam section the subject of the question on screen, when there is
// one, follows in parentheses.
[[nodiscard]] QString SelectionText(const StudySelection& selection,
                                    const QString& questionSubject);
[[nodiscard]] QString SelectionToolTip(const StudySelection& selection);
[[nodiscard]] QString ModeCaption(std::uint8_t mode);
// Text of the timer panel; empty for a method and timer option that have none.
[[nodiscard]] QString TimerText(std::uint8_t method, std::uint8_t timerStatus);

}  // namespace tessaly

#endif  // TESSALY_CATALOGUE_STUDY_SELECTION_H_
