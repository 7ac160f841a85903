#include <QElapsedTimer>

#include "tests/end_to_end/end_to_end_test.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class StartUpTest : public EndToEndTest {};

TEST_F(StartUpTest, AFirstStartShowsTheMainWindowAtItsDefaultPlaceAndStoresNoSelection) {
  QElapsedTimer sinceStart;
  sinceStart.start();
  program.StartToMainWindow();
  EXPECT_GE(sinceStart.elapsed(), 4000);
  EXPECT_EQ(program.Windows(), QStringList{u"frmMain"_s});
  EXPECT_EQ(program.Get(u"frmMain"_s, u"windowTitle"_s), kApplicationTitle);
  // 1000 by 1000 twips from the corner, 11500 by 7000 twips large.
  EXPECT_EQ(program.Placement(), u"67,67,767,467"_s);
  EXPECT_EQ(program.Panel(1), u"Tutorial Mode"_s);
  EXPECT_EQ(program.Panel(2), u"2001 Examination - Part I"_s);
  EXPECT_EQ(program.Panel(3), u"Timer Disabled"_s);
  EXPECT_FALSE(program.IsEnabled(u"mnuFileNext"_s));
  EXPECT_FALSE(program.IsEnabled(u"mnuFileClose"_s));
  program.Close(u"frmMain"_s);
  EXPECT_EQ(program.WaitForExit(), 0);
  EXPECT_FALSE(ReadBytes(installation.SettingsPath()).contains("StudyMode"));
}

TEST_F(StartUpTest, ASecondInstanceSaysSoAndEndsWhileTheFirstGoesOn) {
  Begin();
  ProgramDriver second(installation);
  second.Start();
  const BoxContent box = second.WaitForBox();
  EXPECT_EQ(box.title, kApplicationTitle);
  EXPECT_EQ(box.text, u"Tessaly is already running!"_s);
  EXPECT_EQ(box.icon, u"Warning"_s);
  EXPECT_EQ(box.buttons, QStringList{u"OK"_s});
  second.AnswerBox(u"OK"_s);
  EXPECT_EQ(second.WaitForExit(), 0);
  program.Click(u"cmdA"_s);
  EXPECT_TRUE(program.IsVisible(u"txtAnswer"_s));
}

TEST_F(StartUpTest, AnInstanceThatWasKilledDoesNotStopTheNextStart) {
  program.StartToMainWindow();
  program.Kill();
  program.StartToMainWindow();
  EXPECT_EQ(program.Windows(), QStringList{u"frmMain"_s});
}

TEST_F(StartUpTest, AMissingSplashPictureIsReported) {
  ASSERT_TRUE(QFile::remove(installation.Folder() + u"/splash01.bmp"_s));
  ExpectErrorAtStart(53, u"File not found"_s);
}

struct DamagedSettings {
  const char* name;
  const char* content;
  int number;
  const char* text;
};

void PrintTo(const DamagedSettings& settings, std::ostream* out) {
  *out << settings.name;
}

class DamagedSettingsTest : public EndToEndTest,
                            public ::testing::WithParamInterface<DamagedSettings> {};

TEST_P(DamagedSettingsTest, AreReportedAndLeftAsTheyAre) {
  const QByteArray content(GetParam().content);
  WriteBytes(installation.SettingsPath(), content);
  ExpectErrorAtStart(GetParam().number, QString::fromUtf8(GetParam().text));
  EXPECT_EQ(ReadBytes(installation.SettingsPath()), content);
}

INSTANTIATE_TEST_SUITE_P(
    Each, DamagedSettingsTest,
    ::testing::Values(
        DamagedSettings{"AModeThatIsNoNumber", "[StudyMode]\nMode=two\n", 13, "Type mismatch"},
        DamagedSettings{"AnOptionTooLarge", "[Options]\nTimerStatus=256\n", 6, "Overflow"},
        DamagedSettings{"APlaceThatIsNoNumber",
                        "[Options]\nSuppress2587Msg=1\n\n[Settings]\nMainLeft=left\n", 13,
                        "Type mismatch"},
        DamagedSettings{"NoSettingsFileAtAll",
                        "\x7f"
                        "ELF\n[[]\n===\n",
                        321, "Invalid file format"}),
    [](const auto& parameter) { return std::string(parameter.param.name); });

}  // namespace
}  // namespace tessaly::test
