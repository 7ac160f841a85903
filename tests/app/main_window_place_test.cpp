// Where the main window stands, and how it closes.

#include <QScreen>

#include "tests/app/main_window_fixture.h"

namespace tessaly::test {
namespace {

TEST_F(MainWindowTest, StartedMaximizedItGoesBackToTheLastNormalPlace) {
  for (const auto& [key, value] :
       {std::pair{u"MainLeft"_s, u"300"_s}, std::pair{u"MainTop"_s, u"450"_s},
        std::pair{u"MainWidth"_s, u"9000"_s}, std::pair{u"MainHeight"_s, u"6000"_s},
        std::pair{u"Maximized"_s, u"1"_s}}) {
    settings.values[u"Settings/"_s + key] = value;
  }
  Open();
  ASSERT_TRUE(mainWindow.isMaximized());
  mainWindow.showNormal();
  ASSERT_TRUE(QTest::qWaitFor([this] { return mainWindow.size() == QSize(600, 400); }))
      << mainWindow.width() << 'x' << mainWindow.height();
  EXPECT_EQ(mainWindow.pos(), QPoint(20, 30));
  EXPECT_EQ(RunUntilClosed([this] { mainWindow.close(); }), 0);
  EXPECT_EQ(settings.values.value(u"Settings/MainWidth"_s), u"9000"_s);
  EXPECT_EQ(settings.values.value(u"Settings/Maximized"_s), u"0"_s);
}

TEST_F(MainWindowTest, APlaceOnAScreenThatIsGoneIsMovedIntoTheOneThereIs) {
  settings.values[u"Settings/MainLeft"_s] = u"45000"_s;
  settings.values[u"Settings/MainTop"_s] = u"-30000"_s;
  Open();
  const QRect area = mainWindow.screen()->availableGeometry();
  EXPECT_TRUE(area.contains(QRect(mainWindow.pos(), mainWindow.size())));
  EXPECT_EQ(mainWindow.size(), QSize(767, 467));
}

TEST_F(MainWindowTest, ClosingItSavesItsPlaceAndEndsTheProgram) {
  Open();
  mainWindow.move(40, 50);
  mainWindow.resize(800, 600);
  EXPECT_EQ(RunUntilClosed([this] { mainWindow.close(); }), 0);
  EXPECT_EQ(settings.values.value(u"Settings/MainLeft"_s), u"600"_s);
  EXPECT_EQ(settings.values.value(u"Settings/MainWidth"_s), u"12000"_s);
  EXPECT_FALSE(mainWindow.isVisible());
}

TEST_F(MainWindowTest, ClosedWhileItPrintsItFinishesTheJobFirst) {
  OpenAndBegin();
  clock.whenWaiting = [this] { mainWindow.close(); };
  EXPECT_EQ(RunUntilClosed([this] { Trigger(u"mnuFilePrint"_s); }), 0);
  EXPECT_EQ(printer.done.count(u"end"_s), 1);
  EXPECT_TRUE(settings.values.contains(u"Settings/MainWidth"_s));
  EXPECT_FALSE(mainWindow.isVisible());
}

TEST_F(MainWindowTest, ClosedBeforeTheJobBeginsItFinishesTheJobToo) {
  OpenAndBegin();
  EXPECT_EQ(RunUntilClosed([this] {
              QTimer::singleShot(0, &mainWindow, [this] { mainWindow.close(); });
              Trigger(u"mnuFilePrint"_s);
            }),
            0);
  EXPECT_EQ(printer.done.count(u"end"_s), 1);
  EXPECT_FALSE(mainWindow.isVisible());
}

}  // namespace
}  // namespace tessaly::test
