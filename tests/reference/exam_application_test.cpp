#include "reference/exam_application.h"

#include <gtest/gtest.h>

#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

const QLocale kAmerican(QLocale::English, QLocale::UnitedStates);
const QLocale kBritish(QLocale::English, QLocale::UnitedKingdom);
const QLocale kSwedish(QLocale::Swedish, QLocale::Sweden);

TEST(ExamApplicationTest, TheLocaleDecidesTheOrderOfDayMonthAndYear) {
  EXPECT_EQ(ToDate(u"06/01/02"_s, kAmerican), QDate(2002, 6, 1));
  EXPECT_EQ(ToDate(u"06/01/02"_s, kBritish), QDate(2002, 1, 6));
  EXPECT_EQ(ToDate(u"06/01/02"_s, kSwedish), QDate(2006, 1, 2));
  EXPECT_EQ(ToDate(u"06/01/02"_s, QLocale::c()), QDate(2002, 6, 1));
}

TEST(ExamApplicationTest, NumbersThatAreNoDateInTheLocalesOrderAreReadInAnother) {
  EXPECT_EQ(ToDate(u"06/25/02"_s, kBritish), QDate(2002, 6, 25));
  EXPECT_EQ(ToDate(u"25/06/02"_s, kAmerican), QDate(2002, 6, 25));
}

TEST(ExamApplicationTest, AYearOfTwoDigitsIsOfTheNearerCentury) {
  EXPECT_EQ(ToDate(u"06/01/29"_s, kAmerican).year(), 2029);
  EXPECT_EQ(ToDate(u"06/01/30"_s, kAmerican).year(), 1930);
  EXPECT_EQ(ToDate(u"06/01/1999"_s, kAmerican).year(), 1999);
}

TEST(ExamApplicationTest, WhatIsNoDateIsInvalid) {
  for (const QString& text : {u""_s, u"June"_s, u"1/2"_s, u"50/60/70"_s, u"0/0/0"_s}) {
    EXPECT_FALSE(ToDate(text, kAmerican).isValid()) << text.toStdString();
  }
}

TEST(ExamApplicationTest, TheFormIsThereFromItsDateOn) {
  EXPECT_FALSE(IsForm2587Available(QDate(2002, 5, 31), kAmerican));
  EXPECT_TRUE(IsForm2587Available(QDate(2002, 6, 1), kAmerican));
  EXPECT_TRUE(IsForm2587Available(QDate(2002, 1, 6), kBritish));
}

TEST(ExamApplicationTest, TheNoticeIsDueByTheAmericanOrder) {
  EXPECT_FALSE(IsForm2587NoticeDue(QDate(2002, 5, 31)));
  EXPECT_TRUE(IsForm2587NoticeDue(QDate(2002, 6, 1)));
}

}  // namespace
}  // namespace tessaly::test
