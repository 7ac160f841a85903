#include "tests/end_to_end/end_to_end_test.h"

#include <QTime>

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

constexpr auto kStoredTime = "TTimer/2001 Examination - Part I"_L1;

class TimedSessionTest : public EndToEndTest {
protected:
  TimedSessionTest() { installation.Store(u"Options/TimerStatus"_s, u"1"_s); }

  // The seconds that the timer panel shows.
  int ShownSeconds() {
    const QString time = program.Panel(3).mid(u"Time Elapsed: "_s.size());
    return QTime(0, 0).secsTo(QTime::fromString(time, u"hh:mm:ss"_s));
  }
  // Waits until the timer has ticked, then until it shows as much.
  void WaitForSeconds(int seconds) {
    program.WaitUntil(u"the timer's first tick"_s,
                      [this] { return program.Panel(3).startsWith(u"Time Elapsed: "_s); });
    program.WaitUntil(u"half of the time"_s, [&] { return ShownSeconds() >= seconds / 2; });
    program.WaitUntil(u"all of the time"_s, [&] { return ShownSeconds() >= seconds; });
  }
};

TEST_F(TimedSessionTest, TheTimeIsShownEverySecondAndSavedByTheEnd) {
  Begin();
  program.WaitUntil(u"the first ticks"_s, [this] {
    return program.Panel(3).startsWith(u"Time Elapsed: 00:00:0"_s) && ShownSeconds() >= 2;
  });
  program.Press(u"Ctrl+E"_s);
  const int shown = ShownSeconds();
  EXPECT_GE(shown, 2);
  EXPECT_EQ(installation.Stored(kStoredTime), QString::number(shown));
}

TEST_F(TimedSessionTest, TheTimeGoesOnWhereTheLastSessionLeftIt) {
  installation.Store(kStoredTime, u"3600"_s);
  Begin();
  WaitForSeconds(3601);
  EXPECT_TRUE(program.Panel(3).startsWith(u"Time Elapsed: 01:00:0"_s));
}

TEST_F(TimedSessionTest, WithTheAlarmOnTheTimeCountsDownToOneWarning) {
  installation.Store(u"Options/AlarmSetting"_s, u"1"_s);
  installation.Store(kStoredTime, u"10798"_s);
  Begin();
  const BoxContent box = program.WaitForBox();
  EXPECT_EQ(box.title, kApplicationTitle);
  EXPECT_EQ(box.text, u"Study time for this section has exceeded three hours"_s);
  program.AnswerBox(u"OK"_s);
  program.WaitFor(u"sbrStatusBar.3"_s, u"text"_s, u"Study time has exceeded three hours"_s);
  EXPECT_FALSE(program.HasBox());
}

TEST_F(TimedSessionTest, AKilledSessionLosesNoMoreThanHalfAMinute) {
  Begin();
  WaitForSeconds(35);
  const int shown = ShownSeconds();
  program.Kill();
  EXPECT_GE(installation.Stored(kStoredTime).toInt(), shown - 30);
}

}  // namespace
}  // namespace tessaly::test
