#ifndef TESSALY_REFERENCE_EXAM_APPLICATION_H_
#define TESSALY_REFERENCE_EXAM_APPLICATION_H_

#include <QDate>
#include <QLatin1StringView>
#include <QLocale>

namespace tessaly {

// From when on the year's Form 2587, Application for the Special Enrollment Examination, may be
// had: month, day and year.
inline constexpr QLatin1StringView kForm2587Date{"06/01/02"};
inline constexpr QLatin1StringView kForm2587NotYet{
    "The new version of Form 2587 will not be available on the IRS website until June 1, 2002.  "
    "Tessaly will not print Form 2587 until on or after June 1, 2002."};

// Three numbers with slashes between them as a date, in the order in which the locale writes day,
// month and year. A year below 30 is of this century, another of the last. Numbers that are no date
// in that order are read in the next order that makes one; an invalid date when none does.
[[nodiscard]] QDate ToDate(const QString& text, const QLocale& locale);

// Whether the Exam Application command has a form to open: by the user's locale.
[[nodiscard]] bool IsForm2587Available(QDate today, const QLocale& locale);
// Whether the notice at start-up is due: always by the American order.
[[nodiscard]] bool IsForm2587NoticeDue(QDate today);

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_EXAM_APPLICATION_H_
