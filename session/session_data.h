#ifndef TESSALY_SESSION_SESSION_DATA_H_
#define TESSALY_SESSION_SESSION_DATA_H_

#include <cstdint>
#include <optional>

#include "session/subject_walk.h"
#include "store/database.h"

namespace tessaly {

// What a session counts. All start at 0 with the session.
struct SessionCounters {
  std::int16_t AnswersGiven = 0;
  bool AnswerWasGiven = false;
  std::int16_t Answered = 0;  // in Tutorial Mode only questions that were unanswered
  std::int16_t AnsweredCorrectly = 0;
  std::int16_t WrongFirst = 0;   // wrong answers while WrongSecond is 0
  std::int16_t WrongSecond = 0;  // wrong answers once it is not 0, in Tutorial Mode
};

// Totals of the current subject, stored plus this session's.
struct RunningTotals {
  std::int16_t Asked = 0;
  std::int16_t Correct = 0;
};

// What a session holds open, from its begin to its end. The databases are let go with it.
struct SessionData {
  std::optional<Database> AnswersDb;
  std::optional<Database> QuestionsDb;
  std::optional<Recordset> StatusTable;      // every status row of the current table
  std::optional<Recordset> QuestionTextSet;  // question rows; by subject, only the subject's
  std::optional<Recordset> SessionSet;       // the status rows that this session asks
  std::optional<Recordset> SubjectStats;     // every row of "SubjectStats"
  bool EmptySection = false;                 // by exam section: the session set holds no row
  SubjectWalk Walk;
  SessionCounters Counters;
  RunningTotals Subject;
};

}  // namespace tessaly

#endif  // TESSALY_SESSION_SESSION_DATA_H_
