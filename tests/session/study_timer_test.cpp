#include "session/study_timer.h"

#include <gtest/gtest.h>

#include "tests/support/program_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

const QString kStoredTime = u"TTimer/2001 Examination - Part I"_s;

class StudyTimerTest : public ProgramTest {
protected:
  StudyTimerTest() {
    SetOption(u"TimerStatus"_s, u"1"_s);
    bank.AddQuestions(u"01Part1"_s, 1, 3, TestBank::SubjectName(5));
  }

  void StoreTime(int seconds) { settings.values[kStoredTime] = QString::number(seconds); }
  void Tick(int times = 1) {
    for (int i = 0; i < times; ++i) {
      clock.Sleep(1000);
      Session().TimerTick();
    }
  }
  [[nodiscard]] QString Shown() const { return PanelText(Panel::Timer); }
};

TEST_F(StudyTimerTest, TheTimerRunsOnlyWithTheOption) {
  Begin();
  EXPECT_EQ(view.timerInterval, 1000);
  Session().EndSession();
  EXPECT_EQ(view.timerInterval, 0);
  SetOption(u"TimerStatus"_s, u"0"_s);
  Session().BeginSession();
  EXPECT_EQ(view.timerInterval, 0);
}

TEST_F(StudyTimerTest, TheElapsedTimeGoesOnFromTheStoredOne) {
  StoreTime(3599);
  Begin();
  Tick();
  EXPECT_EQ(Shown(), u"Time Elapsed: 01:00:00"_s);
  Tick(5);
  EXPECT_EQ(Shown(), u"Time Elapsed: 01:00:05"_s);
  Session().EndSession();
  EXPECT_EQ(settings.values[kStoredTime], u"3605"_s);
}

TEST_F(StudyTimerTest, EvaluationModeKeepsItsOwnTime) {
  Choose(u"Mode"_s, u"1"_s);
  Begin();
  Tick(2);
  Session().EndSession();
  EXPECT_EQ(settings.values[u"ETimer/2001 Examination - Part I"_s], u"2"_s);
  EXPECT_FALSE(settings.values.contains(kStoredTime));
}

TEST_F(StudyTimerTest, ASessionWithoutATickLeavesTheStoredTime) {
  StoreTime(77);
  Begin();
  Session().EndSession();
  EXPECT_EQ(settings.values[kStoredTime], u"77"_s);
  EXPECT_TRUE(settings.writes.isEmpty());
}

TEST_F(StudyTimerTest, TheTimeReachesTheSettingsAtLeastEveryThirtySeconds) {
  Begin();
  Tick(29);
  ASSERT_TRUE(settings.values.contains(kStoredTime));
  EXPECT_GE(settings.values[kStoredTime].toInt(), 1);
  Tick(100);
  EXPECT_GE(settings.values[kStoredTime].toInt(), 129 - 30);
}

TEST_F(StudyTimerTest, ASessionPastMidnightKeepsCounting) {
  clock.now = QDateTime(QDate(2001, 6, 15), QTime(23, 59, 58));
  Begin();
  Tick(5);
  EXPECT_EQ(Shown(), u"Time Elapsed: 00:00:05"_s);
}

TEST_F(StudyTimerTest, TheElapsedTimeIsCorrectModuloOneDay) {
  StoreTime(86399);
  Begin();
  Tick(2);
  EXPECT_EQ(Shown(), u"Time Elapsed: 00:00:01"_s);
  Session().EndSession();
  EXPECT_EQ(settings.values[kStoredTime], u"1"_s);
}

TEST_F(StudyTimerTest, TheAlarmWarnsOnceOnTheTickThatUsesTheTimeUp) {
  SetOption(u"AlarmSetting"_s, u"1"_s);
  StoreTime(10790);
  Begin();
  Tick(9);
  EXPECT_EQ(Shown(), u"Time Remaining: 00:00:01"_s);
  EXPECT_TRUE(boxes.shown.isEmpty());
  Tick();
  EXPECT_EQ(Shown(), u"Time Remaining: 00:00:00"_s);
  EXPECT_EQ(boxes.shown, QStringList{u"Tessaly - 2002 Edition|Study time for this section has "
                                     u"exceeded three hours"_s});
  Tick(3);
  EXPECT_EQ(Shown(), u"Study time has exceeded three hours"_s);
  EXPECT_EQ(boxes.shown.size(), 1);
}

TEST_F(StudyTimerTest, TheWarningComesOnceThoughTheTimerTicksBehindIt) {
  SetOption(u"AlarmSetting"_s, u"1"_s);
  StoreTime(10799);
  Begin();
  boxes.whenShown = [this] {
    boxes.whenShown = {};
    Tick();
  };
  Tick();
  EXPECT_EQ(boxes.shown.size(), 1);
}

TEST_F(StudyTimerTest, AStoredTimeOfExactlyThreeHoursCountsBelowZeroWithoutAWarning) {
  SetOption(u"AlarmSetting"_s, u"1"_s);
  StoreTime(10800);
  Begin();
  Tick();
  EXPECT_EQ(Shown(), u"Time Remaining: 00:00:01"_s);
  Tick();
  EXPECT_EQ(Shown(), u"Time Remaining: 00:00:02"_s);
  EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(StudyTimerTest, AStoredTimeAboveThreeHoursReadsAsExceededFromTheFirstTick) {
  SetOption(u"AlarmSetting"_s, u"1"_s);
  StoreTime(10801);
  Begin();
  Tick();
  EXPECT_EQ(Shown(), u"Study time has exceeded three hours"_s);
  EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(StudyTimerTest, AnotherSectionIsNotExceededByTheOneBefore) {
  SetOption(u"AlarmSetting"_s, u"1"_s);
  StoreTime(10801);
  Begin();
  Session().EndSession();
  settings.values[kStoredTime] = u"0"_s;
  Session().BeginSession();
  Tick();
  EXPECT_EQ(Shown(), u"Time Remaining: 02:59:59"_s);
}

TEST(TimeOfDayTextTest, DropsWholeDaysAndTheSign) {
  EXPECT_EQ(TimeOfDayText(0), u"00:00:00"_s);
  EXPECT_EQ(TimeOfDayText(86400 + 61), u"00:01:01"_s);
  EXPECT_EQ(TimeOfDayText(-5), u"00:00:05"_s);
}

TEST(SecondsSinceTest, CountsFromTheZeroDate) {
  EXPECT_EQ(SecondsSince(QTime(10, 0), QDateTime(QDate(1899, 12, 31), QTime(10, 0, 1))), 86401);
}

}  // namespace
}  // namespace tessaly::test
