#include "tests/end_to_end/end_to_end_test.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

constexpr int kTwipsPerPixel = 15;

int Pixels(double twips) {
  return qRound(twips / kTwipsPerPixel);
}

QString Place(double left, double top, double width, double height) {
  return u"%1,%2,%3,%4"_s.arg(Pixels(left)).arg(Pixels(top)).arg(Pixels(width)).arg(Pixels(height));
}

// Everything is counted from the client area, whose height depends on the menu bar's.
class WindowLayoutTest : public EndToEndTest {
protected:
  void ResizeTo(int width, int height) {
    program.Resize(width, height);
    program.WaitFor(u"frmMain"_s, u"placement"_s, u"67,67,%1,%2"_s.arg(width).arg(height));
    const QStringList client = program.Geometry(u"client"_s).split(u',');
    scaleWidth_ = client.value(2).toInt() * kTwipsPerPixel;
    scaleHeight_ = client.value(3).toInt() * kTwipsPerPixel;
    ASSERT_EQ(scaleWidth_, width * kTwipsPerPixel);
    ASSERT_LT(scaleHeight_, height * kTwipsPerPixel);
  }
  [[nodiscard]] double PaneHeight() const { return std::abs(scaleHeight_ - 1540) / 2.0; }

  void ExpectFrameOfTheQuestion() {
    EXPECT_EQ(program.Geometry(u"txtRightWrong"_s), Place(1200, 120, scaleWidth_ - 1600, 435));
    const double top = scaleHeight_ - 860;
    EXPECT_EQ(program.Geometry(u"cmdA"_s), Place(1560, top, 1200, 375));
    EXPECT_EQ(program.Geometry(u"cmdB"_s), Place(3000, top, 1200, 375));
    EXPECT_EQ(program.Geometry(u"cmdC"_s), Place(4440, top, 1200, 375));
    EXPECT_EQ(program.Geometry(u"cmdD"_s), Place(5880, top, 1200, 375));
    EXPECT_EQ(program.Geometry(u"txtHintLink"_s), Place(8760, top, 2500, 375));
  }
  void ExpectOnePane() {
    ExpectFrameOfTheQuestion();
    EXPECT_EQ(program.Geometry(u"txtQuestion"_s),
              Place(1200, 540, scaleWidth_ - 1600, 2 * PaneHeight()));
  }
  void ExpectTwoPanes() {
    ExpectFrameOfTheQuestion();
    EXPECT_EQ(program.Geometry(u"txtQuestion"_s),
              Place(1200, 540, scaleWidth_ - 1600, PaneHeight()));
    EXPECT_EQ(program.Geometry(u"txtAnswer"_s),
              Place(1200, PaneHeight() + 540, scaleWidth_ - 1600, PaneHeight()));
  }
  void ExpectSkipAt(int left) {
    EXPECT_EQ(program.Geometry(u"cmdSkip"_s), Place(left, scaleHeight_ - 860, 1200, 375));
  }

private:
  int scaleWidth_ = 0;
  int scaleHeight_ = 0;
};

TEST_F(WindowLayoutTest, FollowsTheWindowsSizeBeforeAndAfterAnAnswer) {
  Begin();
  ResizeTo(800, 500);
  ExpectOnePane();
  ExpectSkipAt(4440);
  ResizeTo(1000, 700);
  ExpectOnePane();
  program.Click(u"cmdA"_s);
  ExpectTwoPanes();
  ResizeTo(800, 500);
  ExpectTwoPanes();
  program.Press(u"Ctrl+N"_s);
  ExpectOnePane();
}

TEST_F(WindowLayoutTest, SkipStandsBesideTheLastAnswerButton) {
  Bank().AddQuestion(u"01Part2"_s, {21, {}, 0, u"Which?"_s, u"A is."_s, {}, {}});
  installation.Store(u"StudyMode/Section"_s, u"1"_s);
  Begin();
  ResizeTo(800, 500);
  ExpectOnePane();
  ExpectSkipAt(7320);
}

TEST_F(WindowLayoutTest, AShortWindowStillHasPanesOfAHeight) {
  Begin();
  ResizeTo(800, 110);
  ExpectOnePane();
  program.Press(u"Alt+T"_s);
  program.WaitForVisible(u"txtAnswer"_s);
  ExpectTwoPanes();
}

}  // namespace
}  // namespace tessaly::test
