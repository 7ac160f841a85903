#include "app/general_settings.h"

#include <QGroupBox>

#include "tests/support/form_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

struct CheckBox {
  QString name;
  QString caption;
  QString option;  // its key, empty where it has none
};

const std::array kCheckBoxes{
    CheckBox{u"chkMessages"_s, u"Reset reminder messages"_s, {}},
    CheckBox{u"chkPubSource"_s, u"View publications on hard drive"_s, u"PubSource"_s},
    CheckBox{u"chkTipofDay"_s, u"Display Tip of the Day at startup"_s, u"TipofDay"_s},
    CheckBox{u"chkAlarm"_s, u"Set alarm for 3 hours"_s, u"AlarmSetting"_s},
    CheckBox{u"chkTimer"_s, u"Enable timer"_s, u"TimerStatus"_s},
    CheckBox{u"chkFonts"_s, u"Use small screen fonts"_s, u"DisplaySmallFonts"_s},
    CheckBox{u"chkGraphic"_s, u"Use graphical statistics"_s, u"GraphicStats"_s},
};

class GeneralSettingsTest : public FormTest<frmOptions> {
protected:
  [[nodiscard]] QStringList Checked() const {
    QStringList names;
    for (const CheckBox& box : kCheckBoxes) {
      if (IsChecked(box.name)) {
        names.append(box.name);
      }
    }
    return names;
  }
};

TEST_F(GeneralSettingsTest, TheTabKeyFollowsTheEye) {
  Open();
  Find<QWidget>(u"chkMessages"_s)->setFocus();
  for (const QString& next : {u"cmdResetOptions"_s, u"cmdSaveOptions"_s, u"cmdCancel"_s}) {
    Press(Qt::Key_Tab);
    EXPECT_TRUE(Find<QWidget>(next)->hasFocus()) << next.toStdString();
  }
}

TEST_F(GeneralSettingsTest, HasACheckBoxForEverySettingAndThreeButtons) {
  Open();
  EXPECT_EQ(form->windowTitle(), u"General Settings"_s);
  EXPECT_EQ(Find<QGroupBox>(u"fraMMOptions"_s)->title(), u"Select Settings"_s);
  for (const CheckBox& box : kCheckBoxes) {
    EXPECT_EQ(CaptionOf(box.name), box.caption);
  }
  EXPECT_EQ(CaptionOf(u"cmdResetOptions"_s), u"Default"_s);
  EXPECT_EQ(CaptionOf(u"cmdCancel"_s), u"Cancel"_s);
  EXPECT_EQ(CaptionOf(u"cmdSaveOptions"_s), u"Save"_s);
}

TEST_F(GeneralSettingsTest, EachCheckBoxShowsAndSavesItsSetting) {
  for (const CheckBox& box : kCheckBoxes) {
    if (box.option.isEmpty()) {
      continue;
    }
    settings.values.clear();
    SetOption(box.option, u"1"_s);
    program.Settings().LoadSettings();
    Open();
    EXPECT_EQ(Checked(), QStringList{box.name});
    Click(u"cmdSaveOptions"_s);
    EXPECT_EQ(settings.values.value(u"Options/"_s + box.option), u"1"_s);
    EXPECT_EQ(settings.values.keys(u"1"_s).size(), 1);
    EXPECT_FALSE(form->isVisible());
  }
}

TEST_F(GeneralSettingsTest, EnterSavesAndRefreshesTheTimerPanel) {
  Open();
  Press(Qt::Key_Space);
  EXPECT_EQ(Checked(), QStringList{u"chkTimer"_s});
  Press(Qt::Key_Return);
  EXPECT_EQ(form->result(), QDialog::Accepted);
  EXPECT_EQ(PanelText(Panel::Timer), u"Timer Enabled"_s);
}

TEST_F(GeneralSettingsTest, EscapeAndCancelSaveNothing) {
  Open();
  Click(u"chkTimer"_s);
  Press(Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible());
  Open();
  Click(u"chkTimer"_s);
  Click(u"cmdCancel"_s);
  EXPECT_FALSE(form->isVisible());
  EXPECT_TRUE(settings.writes.isEmpty());
  EXPECT_EQ(State().ProgramOptions.TimerStatus, 0);
}

TEST_F(GeneralSettingsTest, TheRemindersBoxOpensUncheckedWhateverWasChosen) {
  Open();
  Click(u"chkMessages"_s);
  Click(u"cmdSaveOptions"_s);
  EXPECT_EQ(settings.writes.last(), u"Options/Suppress2587Msg=0"_s);
  Open();
  EXPECT_FALSE(IsChecked(u"chkMessages"_s));
}

TEST_F(GeneralSettingsTest, DefaultAnsweredNoLeavesEveryBoxAsItWas) {
  boxes.answers = {BoxAnswer::No};
  Open();
  Click(u"chkGraphic"_s);
  Click(u"chkMessages"_s);
  Click(u"cmdResetOptions"_s);
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(Checked(), (QStringList{u"chkMessages"_s, u"chkGraphic"_s}));
  EXPECT_TRUE(settings.writes.isEmpty());
}

TEST_F(GeneralSettingsTest, DefaultAnsweredYesSavesTheDefaultsAndCloses) {
  Open();
  Click(u"chkMessages"_s);
  Click(u"cmdResetOptions"_s);
  EXPECT_EQ(boxes.shown, QStringList{u"Tessaly Options|Reset options to default values?"_s});
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(settings.values.keys(u"1"_s),
            (QStringList{u"Options/PubSource"_s, u"Options/TimerStatus"_s, u"Options/TipofDay"_s}));
  EXPECT_EQ(settings.writes.size(), 6);
}

TEST_F(GeneralSettingsTest, AnOptionThatIsNoNumberIsRaisedByOpening) {
  State().ProgramOptions.PubSource = u"both"_s;
  EXPECT_RUNTIME_ERROR(frmOptions(program, errors, nullptr), ErrorNumber::TypeMismatch);
}

}  // namespace
}  // namespace tessaly::test
