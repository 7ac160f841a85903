#include "tests/end_to_end/end_to_end_test.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class PlacementOfTheWindowTest : public EndToEndTest {
protected:
  void StoreSmallPlacement() {
    installation.Store(u"Settings/MainLeft"_s, u"300"_s);
    installation.Store(u"Settings/MainTop"_s, u"450"_s);
    installation.Store(u"Settings/MainWidth"_s, u"9000"_s);
    installation.Store(u"Settings/MainHeight"_s, u"6000"_s);
    installation.Store(u"Settings/Maximized"_s, u"0"_s);
  }
  // "left top width height maximized" in twips.
  [[nodiscard]] QString StoredPlacement() const {
    QStringList values;
    for (const QString& key :
         {u"MainLeft"_s, u"MainTop"_s, u"MainWidth"_s, u"MainHeight"_s, u"Maximized"_s}) {
      values.append(installation.Stored(u"Settings/"_s + key));
    }
    return values.join(u' ');
  }
  // Not where any stored or default placement would put it.
  void MoveAndResize() {
    program.Move(40, 50);
    program.Resize(700, 420);
    program.WaitFor(u"frmMain"_s, u"placement"_s, u"40,50,700,420"_s);
  }

  static constexpr auto kSmall = "300 450 9000 6000 0"_L1;
  static constexpr auto kMoved = "600 750 10500 6300 0"_L1;
};

TEST_F(PlacementOfTheWindowTest, IsSavedWhenTheFrameIsClosedAndComesBack) {
  program.StartToMainWindow();
  MoveAndResize();
  program.Close(u"frmMain"_s);
  EXPECT_EQ(program.WaitForExit(), 0);
  EXPECT_EQ(StoredPlacement(), kMoved);
  program.StartToMainWindow();
  EXPECT_EQ(program.Placement(), u"40,50,700,420"_s);
}

TEST_F(PlacementOfTheWindowTest, IsSavedByTheExitCommand) {
  program.StartToMainWindow();
  MoveAndResize();
  program.Trigger(u"mnuFileExit"_s);
  EXPECT_EQ(program.WaitForExit(), 0);
  EXPECT_EQ(StoredPlacement(), kMoved);
}

TEST_F(PlacementOfTheWindowTest, IsSavedByTheExitShortcut) {
  program.StartToMainWindow();
  MoveAndResize();
  program.Press(u"Ctrl+X"_s);
  EXPECT_EQ(program.WaitForExit(), 0);
  EXPECT_EQ(StoredPlacement(), kMoved);
}

TEST_F(PlacementOfTheWindowTest, IsNotSavedWhileTheWindowIsMinimized) {
  StoreSmallPlacement();
  program.StartToMainWindow();
  MoveAndResize();
  program.Minimize();
  program.WaitFor(u"frmMain"_s, u"minimized"_s, u"true"_s);
  program.Close(u"frmMain"_s);
  EXPECT_EQ(program.WaitForExit(), 0);
  EXPECT_EQ(StoredPlacement(), kSmall);
}

TEST_F(PlacementOfTheWindowTest, MaximizedComesBackMaximizedAndKeepsTheNormalPlacement) {
  StoreSmallPlacement();
  program.StartToMainWindow();
  EXPECT_EQ(program.Placement(), u"20,30,600,400"_s);
  program.Maximize();
  program.WaitFor(u"frmMain"_s, u"maximized"_s, u"true"_s);
  program.Close(u"frmMain"_s);
  EXPECT_EQ(program.WaitForExit(), 0);
  EXPECT_EQ(StoredPlacement(), u"300 450 9000 6000 1"_s);
  program.StartToMainWindow();
  EXPECT_EQ(program.Get(u"frmMain"_s, u"maximized"_s), u"true"_s);
}

}  // namespace
}  // namespace tessaly::test
