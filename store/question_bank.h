#ifndef TESSALY_STORE_QUESTION_BANK_H_
#define TESSALY_STORE_QUESTION_BANK_H_

#include <QLatin1StringView>
#include <QString>

#include "store/database.h"

namespace tessaly {

class FileOperations;

// The two password-protected files in the program folder. Both have one table an exam part, by the
// same 24 names; the questions file holds texts, the answers file what the user made of them.
inline constexpr QLatin1StringView kQuestionsFileName{"tessaly02q.mdb"};
inline constexpr QLatin1StringView kAnswersFileName{"tessaly02a.mdb"};
inline constexpr QLatin1StringView kPassword{"tessera-2002"};

// Fields of a question table, all text but AnswerNumber.
namespace question_field {
inline constexpr QLatin1StringView kQuestionNo{"QuestionNo"};  // a whole number, as text
inline constexpr QLatin1StringView kQuestion{"Question"};
inline constexpr QLatin1StringView kAnswerText{"AnswerText"};
inline constexpr QLatin1StringView kAnswerNumber{"AnswerNumber"};  // 0 to 3: A to D, or True, False
inline constexpr QLatin1StringView kSubject{"Subject"};
inline constexpr QLatin1StringView kHint{"Hint"};
inline constexpr QLatin1StringView kLink{"Link"};
}  // namespace question_field

inline constexpr QLatin1StringView kVersionTable{"Version"};
inline constexpr QLatin1StringView kTableVersionField{"TableVersion"};

// Fields of a status table.
namespace status_field {
inline constexpr QLatin1StringView kQuestionNo{"QuestionNo"};  // a whole number
inline constexpr QLatin1StringView kTutorialMode{"TutorialMode"};
inline constexpr QLatin1StringView kEvalMode{"EvalMode"};
inline constexpr QLatin1StringView kPassFail{"PassFail"};
inline constexpr QLatin1StringView kTimesAsked{"TimesAsked"};
inline constexpr QLatin1StringView kTimesCorrect{"TimesCorrect"};
}  // namespace status_field

// Status codes of a question in one mode, and the result of its last graded answer.
inline constexpr QLatin1StringView kUnanswered{"U"};
inline constexpr QLatin1StringView kAnsweredCorrectly{"C"};
inline constexpr QLatin1StringView kAnsweredIncorrectly{"I"};
inline constexpr QLatin1StringView kPassed{"P"};
inline constexpr QLatin1StringView kFailed{"F"};

// Fields of the table "SubjectStats" of the answers file, a row a subject.
inline constexpr QLatin1StringView kSubjectStatsTable{"SubjectStats"};
namespace subject_field {
inline constexpr QLatin1StringView kSubject{"Subject"};
inline constexpr QLatin1StringView kTMAsked{"TMAsked"};
inline constexpr QLatin1StringView kTMCorrect{"TMCorrect"};
inline constexpr QLatin1StringView kEMAsked{"EMAsked"};
inline constexpr QLatin1StringView kEMCorrect{"EMCorrect"};
}  // namespace subject_field

struct BankPaths {
  QString ProgramFolder;  // no trailing separator
  QString QuestionsDbPath;
  QString AnswersDbPath;
  QString DbConnect;
};

// Fills the paths of both files and the connect string from the program folder.
void BuildDatabasePaths(BankPaths& paths);

// The conditions by which a question's number is searched: as text in the questions file, as a
// number in the answers file.
[[nodiscard]] QString QuestionTextCriterion(int questionNo);
[[nodiscard]] QString QuestionStatusCriterion(int questionNo);
// The filter of study by subject, for any text.
[[nodiscard]] QString SubjectFilter(const QString& subject);
// The query that opens a table as a set to be filtered.
[[nodiscard]] QString SelectAllFrom(const QString& table);

// The release of the question data: TableVersion of the first row of "Version".
[[nodiscard]] QString ReadTableVersion(Workspace& workspace, const BankPaths& paths);

}  // namespace tessaly

#endif  // TESSALY_STORE_QUESTION_BANK_H_
