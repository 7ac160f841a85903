#include "stats/reset_texts.h"

#include <cstddef>

#include "catalogue/exam_catalogue.h"
#include "catalogue/study_selection.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kNewestNamedYear = 2000;

QString GroupName(std::uint8_t group) {
  return group == kTutorialMode ? u"Tutorial Mode"_s : u"Evaluation Mode"_s;
}

QString ShoutedGroupName(std::uint8_t group) {
  return GroupName(group).toUpper();
}

}  // namespace

std::optional<int> NamedYear(std::uint8_t exam) {
  if (exam + 1 >= kExamCount) {
    return std::nullopt;
  }
  return kNewestNamedYear - exam;
}

QString SectionQuestion(std::uint8_t group, int year) {
  return u"Reset %1 %2 timer and statistics for the current section?"_s.arg(year).arg(
      GroupName(group));
}

QString SectionReport(std::uint8_t group, int year, int part) {
  return u"All %1 statistics for Part %2 of the %3 exam have been deleted"_s.arg(GroupName(group))
      .arg(part)
      .arg(year);
}

QString ExamQuestion(std::uint8_t group, int year) {
  // For the exam before the newest the Tutorial Mode question names the newest year, unlike its
  // report and unlike Evaluation Mode.
  const bool namesNewest = group == kTutorialMode && year == kNewestNamedYear - 1;
  return u"Reset %1 %2 timers and statistics?"_s.arg(namesNewest ? kNewestNamedYear : year)
      .arg(GroupName(group));
}

QString ExamReport(std::uint8_t group, int year) {
  return u"All %1 statistics for the %2 exam have been deleted"_s.arg(GroupName(group)).arg(year);
}

QString AllExamsQuestion(std::uint8_t group) {
  return u"Reset ALL %1 timers and statistics?"_s.arg(ShoutedGroupName(group));
}

QString AllExamsReport(std::uint8_t group) {
  return u"All %1 statistics for all exams have been deleted"_s.arg(GroupName(group));
}

QString AllSubjectsQuestion(std::uint8_t group) {
  return u"Reset ALL %1 STUDY BY SUBJECT statistics?"_s.arg(ShoutedGroupName(group));
}

QString AllSubjectsReport(std::uint8_t group) {
  return group == kTutorialMode
             ? u"All Tutorial Mode study by subject statistics have been deleted"_s
             : u"All Evaluation Mode Study by Subject statistics have been deleted."_s;
}

QString SubjectQuestion(const QString& subject) {
  return u"Reset all "_s + subject + u" questions?"_s;
}

QString SubjectReport(std::uint8_t group, const QString& subject) {
  return u"All "_s + GroupName(group) + u" statistics concerning "_s + subject +
         u" have been deleted."_s;
}

QString NamedTimerKey(int year, int section) {
  return u"%1 Examination - "_s.arg(year) + kParts[static_cast<std::size_t>(section)].caption;
}

QStringList AllTimerKeys(std::uint8_t group) {
  constexpr int kNewestExamYear = kNewestNamedYear + 1;
  QStringList keys;
  for (int exam = 0; exam < kExamCount; ++exam) {
    for (int section = 0; section < kPartCount; ++section) {
      const bool misnamed = group != kTutorialMode && exam == 0 && section == kPartCount - 1;
      keys.append(NamedTimerKey(kNewestExamYear - exam + (misnamed ? 1 : 0), section));
    }
  }
  return keys;
}

}  // namespace tessaly
