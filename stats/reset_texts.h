#ifndef TESSALY_STATS_RESET_TEXTS_H_
#define TESSALY_STATS_RESET_TEXTS_H_

#include <QLatin1StringView>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

namespace tessaly {

// Questions, reports and timer keys of the statistics reset. `group` is the study mode whose group
// of options was chosen.

inline constexpr QLatin1StringView kStatisticsTitle{"Tessaly Statistics"};

// The year that texts and timer keys name: one earlier than the exam's own, and none for the oldest
// exam, which is reset without a word.
[[nodiscard]] std::optional<int> NamedYear(std::uint8_t exam);

[[nodiscard]] QString SectionQuestion(std::uint8_t group, int year);
// `part` counts from 1.
[[nodiscard]] QString SectionReport(std::uint8_t group, int year, int part);
[[nodiscard]] QString ExamQuestion(std::uint8_t group, int year);
[[nodiscard]] QString ExamReport(std::uint8_t group, int year);
[[nodiscard]] QString AllExamsQuestion(std::uint8_t group);
[[nodiscard]] QString AllExamsReport(std::uint8_t group);
[[nodiscard]] QString AllSubjectsQuestion(std::uint8_t group);
[[nodiscard]] QString AllSubjectsReport(std::uint8_t group);
[[nodiscard]] QString SubjectQuestion(const QString& subject);
[[nodiscard]] QString SubjectReport(std::uint8_t group, const QString& subject);

// "1999 Examination - Part III"; `section` counts from 0.
[[nodiscard]] QString NamedTimerKey(int year, int section);
// The timer keys that a reset of all exams deletes. In Evaluation Mode the key of the newest exam's
// fourth part names a year that never was, so that this one timer stays.
[[nodiscard]] QStringList AllTimerKeys(std::uint8_t group);

}  // namespace tessaly

#endif  // TESSALY_STATS_RESET_TEXTS_H_
