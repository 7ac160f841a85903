#include <gtest/gtest.h>

#include "app/option_choices.h"
#include "tests/support/program_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

// Settings on a disk that is full from the n-th write on.
class FullSettings : public FakeSettings {
public:
  void Write(const QString& section, const QString& key, const QString& value) override {
    if (writes.size() >= room) {
      throw RuntimeError(ErrorNumber::DiskFull);
    }
    FakeSettings::Write(section, key, value);
  }

  qsizetype room = 0;
};

class SaveOptionsTest : public ProgramTest {
protected:
  SaveOptionsTest() { program.Settings().LoadSettings(); }

  OptionEditor editor{State(), program.Settings(), program.Selector(), boxes};
};

TEST_F(SaveOptionsTest, TheOptionsAreWrittenInOrderFromMemory) {
  Options& options = State().ProgramOptions;
  options.TimerStatus = 1;
  options.GraphicStats = 1;
  options.PubSource = u"1"_s;
  program.Settings().SaveOptions();
  EXPECT_EQ(settings.writes,
            (QStringList{u"Options/TimerStatus=1"_s, u"Options/AlarmSetting=0"_s,
                         u"Options/GraphicStats=1"_s, u"Options/DisplaySmallFonts=0"_s,
                         u"Options/TipofDay=0"_s, u"Options/PubSource=1"_s}));
}

TEST_F(SaveOptionsTest, RemindersShowAgainOnceWhenThatWasAskedFor) {
  State().ResetReminders = true;
  program.Settings().SaveOptions();
  EXPECT_EQ(settings.writes.size(), 7);
  EXPECT_EQ(settings.writes.last(), u"Options/Suppress2587Msg=0"_s);
  EXPECT_FALSE(State().ResetReminders);
  settings.writes.clear();
  program.Settings().SaveOptions();
  EXPECT_EQ(settings.writes.size(), 6);
}

TEST_F(SaveOptionsTest, TheChoicesShowTheOptionsInMemory) {
  EXPECT_EQ(editor.Choices(), OptionChoices{});
  State().ProgramOptions = {.TimerStatus = 1,
                            .AlarmSetting = 1,
                            .GraphicStats = 1,
                            .DisplaySmallFonts = 1,
                            .TipofDay = 1,
                            .PubSource = u"1"_s,
                            .Suppress2587Msg = 1};
  EXPECT_EQ(editor.Choices(), (OptionChoices{false, true, true, true, true, true, true}));
}

TEST_F(SaveOptionsTest, EachChoiceStandsForItsOption) {
  struct Case {
    bool OptionChoices::*choice;
    QString written;
  };
  const std::array cases{Case{&OptionChoices::TimerStatus, u"Options/TimerStatus=1"_s},
                         Case{&OptionChoices::AlarmSetting, u"Options/AlarmSetting=1"_s},
                         Case{&OptionChoices::GraphicStats, u"Options/GraphicStats=1"_s},
                         Case{&OptionChoices::DisplaySmallFonts, u"Options/DisplaySmallFonts=1"_s},
                         Case{&OptionChoices::TipofDay, u"Options/TipofDay=1"_s},
                         Case{&OptionChoices::PubSource, u"Options/PubSource=1"_s}};
  for (const Case& each : cases) {
    settings.writes.clear();
    OptionChoices choices;
    choices.*each.choice = true;
    editor.Save(choices);
    EXPECT_EQ(settings.writes.filter(u"=1"_s), QStringList{each.written});
    EXPECT_EQ(settings.writes.size(), 6);
    EXPECT_EQ(editor.Choices(), choices);
  }
}

TEST_F(SaveOptionsTest, ThePublicationsAreComparedAsANumber) {
  State().ProgramOptions.PubSource = u" 1.0"_s;
  EXPECT_TRUE(editor.Choices().PubSource);
  State().ProgramOptions.PubSource = u"2"_s;
  EXPECT_FALSE(editor.Choices().PubSource);
  for (const QString& text : {u""_s, u"yes"_s}) {
    State().ProgramOptions.PubSource = text;
    EXPECT_RUNTIME_ERROR(static_cast<void>(editor.Choices()), ErrorNumber::TypeMismatch);
  }
}

TEST_F(SaveOptionsTest, SavingRefreshesTheTimerPanel) {
  editor.Save({.TimerStatus = true});
  EXPECT_EQ(PanelText(Panel::Timer), u"Timer Enabled"_s);
  editor.Save({});
  EXPECT_EQ(PanelText(Panel::Timer), u"Timer Disabled"_s);
}

TEST_F(SaveOptionsTest, ADismissedReminderShowsAgainAfterItsResetWasSaved) {
  SetOption(u"Suppress2587Msg"_s, u"1"_s);
  editor.Save({});
  EXPECT_EQ(settings.values.value(u"Options/Suppress2587Msg"_s), u"1"_s);
  editor.Save({.ResetReminders = true});
  EXPECT_EQ(settings.values.value(u"Options/Suppress2587Msg"_s), u"0"_s);
  EXPECT_FALSE(editor.Choices().ResetReminders);
}

TEST_F(SaveOptionsTest, TheFontSizeFollowsWhenTheOptionsAreLoaded) {
  editor.Save({.DisplaySmallFonts = true});
  EXPECT_EQ(State().ProgramOptions.QuestionFontSize, 12);
  program.Settings().LoadSettings();
  EXPECT_EQ(State().ProgramOptions.QuestionFontSize, 8);
}

TEST_F(SaveOptionsTest, ResetAnsweredYesSavesTheDefaultsAtOnce) {
  editor.Save({.AlarmSetting = true, .DisplaySmallFonts = true, .GraphicStats = true});
  settings.writes.clear();
  EXPECT_TRUE(editor.Reset());
  EXPECT_EQ(boxes.shown, QStringList{u"Tessaly Options|Reset options to default values?"_s});
  EXPECT_EQ(boxes.lastIcon, BoxIcon::Question);
  EXPECT_EQ(settings.writes,
            (QStringList{u"Options/TimerStatus=1"_s, u"Options/AlarmSetting=0"_s,
                         u"Options/GraphicStats=0"_s, u"Options/DisplaySmallFonts=0"_s,
                         u"Options/TipofDay=1"_s, u"Options/PubSource=1"_s}));
}

TEST_F(SaveOptionsTest, ResetAnsweredNoSavesNothing) {
  boxes.answers = {BoxAnswer::No};
  EXPECT_FALSE(editor.Reset());
  EXPECT_TRUE(settings.writes.isEmpty());
  EXPECT_EQ(editor.Choices(), OptionChoices{});
}

TEST_F(SaveOptionsTest, AFailedSaveLeavesTheOptionsInMemory) {
  FullSettings full;
  full.room = 3;
  ProgramSettings settingsOnFullDisk(State(), full, program.Selector());
  OptionEditor failing(State(), settingsOnFullDisk, program.Selector(), boxes);
  EXPECT_RUNTIME_ERROR(failing.Save({.ResetReminders = true, .TimerStatus = true}),
                       ErrorNumber::DiskFull);
  EXPECT_EQ(State().ProgramOptions.TimerStatus, 0);
  EXPECT_FALSE(State().ResetReminders);
  EXPECT_EQ(PanelText(Panel::Timer), u"Timer Disabled"_s);
}

}  // namespace
}  // namespace tessaly::test
