#include "reference/exam_application.h"

#include <QStringList>
#include <array>

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kFirstYearOfLastCentury = 30;

// Where day, month and year stand among the three numbers.
struct DateOrder {
  int day;
  int month;
  int year;
};

constexpr DateOrder kMonthFirst{1, 0, 2};
constexpr DateOrder kDayFirst{0, 1, 2};
constexpr DateOrder kYearFirst{2, 1, 0};

DateOrder OrderOf(const QLocale& locale) {
  // The locale of no country writes day first, but its users are those of an untouched machine.
  if (locale.language() == QLocale::C) {
    return kMonthFirst;
  }
  const QString format = locale.dateFormat(QLocale::ShortFormat);
  const qsizetype day = format.indexOf(u'd');
  const qsizetype month = format.indexOf(u'M');
  const qsizetype year = format.indexOf(u'y');
  if (year < day && year < month) {
    return kYearFirst;
  }
  return day < month ? kDayFirst : kMonthFirst;
}

int FullYear(int year) {
  if (year > 99) {
    return year;
  }
  return year < kFirstYearOfLastCentury ? 2000 + year : 1900 + year;
}

QDate DateIn(const QStringList& numbers, const DateOrder& order) {
  return {FullYear(numbers[order.year].toInt()), numbers[order.month].toInt(),
          numbers[order.day].toInt()};
}

}  // namespace

QDate ToDate(const QString& text, const QLocale& locale) {
  const QStringList numbers = text.split(u'/');
  if (numbers.size() != 3) {
    return {};
  }
  for (const DateOrder& order : {OrderOf(locale), kMonthFirst, kDayFirst, kYearFirst}) {
    if (const QDate date = DateIn(numbers, order); date.isValid()) {
      return date;
    }
  }
  return {};
}

bool IsForm2587Available(QDate today, const QLocale& locale) {
  return today >= ToDate(kForm2587Date, locale);
}

bool IsForm2587NoticeDue(QDate today) {
  return IsForm2587Available(today, QLocale(QLocale::English, QLocale::UnitedStates));
}

}  // namespace tessaly
