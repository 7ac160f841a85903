#include "session/feedback_texts.h"

#include <QLatin1StringView>
#include <array>
#include <cstddef>

#include "catalogue/study_selection.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr std::array kLetters{"A"_L1, "B"_L1, "C"_L1, "D"_L1};
constexpr std::array kTruths{"True"_L1, "False"_L1};

template <std::size_t N>
QString NameAt(const std::array<QLatin1StringView, N>& names, std::int16_t number) {
  const auto index = static_cast<std::size_t>(number);
  return number >= 0 && index < N ? QString(names[index]) : QString();
}

}  // namespace

QString AnswerName(std::int16_t answerNumber, bool trueFalse) {
  return trueFalse ? NameAt(kTruths, answerNumber) : NameAt(kLetters, answerNumber);
}

QString QuestionHeading(std::int16_t questionNo) {
  return u"     Question #"_s + QString::number(questionNo);
}

QString CorrectFeedback(const QString& chosenName, std::int16_t questionNo) {
  return u"     Nice Job!  '"_s + chosenName + u"' is the correct answer for Question #"_s +
         QString::number(questionNo) + u"!"_s;
}

QString IncorrectFeedback(const QString& chosenName, std::int16_t questionNo,
                          const QString& correctName) {
  return u"     '"_s + chosenName + u"' is an incorrect answer for Question #"_s +
         QString::number(questionNo) + u".  The correct answer is '"_s + correctName + u"'."_s;
}

QString EvaluationResult(std::int16_t questionNo, bool correct) {
  return u"Question #"_s + QString::number(questionNo) +
         (correct ? u" was answered CORRECTLY"_s : u" was answered INCORRECTLY"_s);
}

QString SkippedNotice(const QString& questionNo) {
  return u"QUESTION #"_s + questionNo + u" WAS NOT ANSWERED"_s;
}

QString NothingLeftInSection(std::int16_t questionType) {
  return questionType == kUnansweredQuestions
             ? u"All questions in this section have been answered."_s
             : u"All questions in this section have been answered correctly."_s;
}

QString NothingLeftOfSubject(std::int16_t questionType, const QString& subject) {
  if (subject.isEmpty()) {
    return u"No study subject was selected."_s;
  }
  QString text = u"There are no unanswered questions concerning "_s;
  if (questionType == kMissedQuestions) {
    text = u"There are no incorrectly answered questions concerning "_s;
  } else if (questionType == kUnansweredAndMissedQuestions) {
    text = u"There are no incorrectly answered or unanswered questions concerning "_s;
  }
  return text + subject + u"."_s;
}

}  // namespace tessaly
