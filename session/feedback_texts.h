#ifndef TESSALY_SESSION_FEEDBACK_TEXTS_H_
#define TESSALY_SESSION_FEEDBACK_TEXTS_H_

#include <QString>
#include <cstdint>

namespace tessaly {

// The answers' names: "A" to "D", or "True" and "False"; empty for a number that names none.
[[nodiscard]] QString AnswerName(std::int16_t answerNumber, bool trueFalse);

// Texts of the feedback line: above a question not yet answered, and after an answer.
[[nodiscard]] QString QuestionHeading(std::int16_t questionNo);
[[nodiscard]] QString CorrectFeedback(const QString& chosenName, std::int16_t questionNo);
[[nodiscard]] QString IncorrectFeedback(const QString& chosenName, std::int16_t questionNo,
                                        const QString& correctName);

// Texts of the selection panel after an answer in Evaluation Mode, and after a skipped question.
[[nodiscard]] QString EvaluationResult(std::int16_t questionNo, bool correct);
[[nodiscard]] QString SkippedNotice(const QString& questionNo);

// What a section or subject without a question left to ask says.
[[nodiscard]] QString NothingLeftInSection(std::int16_t questionType);
[[nodiscard]] QString NothingLeftOfSubject(std::int16_t questionType, const QString& subject);

}  // namespace tessaly

#endif  // TESSALY_SESSION_FEEDBACK_TEXTS_H_
