#include "reference/tip_form.h"

#include <QImage>
#include <QLabel>
#include <QTimer>

#include "tests/support/file_contents.h"
#include "tests/support/form_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class TipFormTest : public FormTest<frmTip> {
protected:
  TipFormTest() {
    WriteBytes(bank.Folder() + u"/TIPOFDAY.TXT"_s, "one\ntwo\nthree\n");
    QImage picture(96, 160, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    EXPECT_TRUE(picture.save(PicturePath()));
  }

  [[nodiscard]] QString PicturePath() const { return bank.Folder() + u"/tips.bmp"_s; }
  [[nodiscard]] QString Text(const QString& label) const { return Find<QLabel>(label)->text(); }
  // Shows the dialog and runs `use` while it is up; the dialog is closed afterwards.
  void ShowAnd(TipOccasion occasion, const std::function<void()>& use) {
    form = std::make_unique<frmTip>(program, errors, nullptr);
    QTimer::singleShot(0, form.get(), [&] {
      EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
      use();
      form->close();
    });
    form->LoadAndShow(occasion);
  }
};

TEST_F(TipFormTest, ShowsThePictureTheNextTipAndTheSetting) {
  SetOption(u"TipofDay"_s, u"1"_s);
  ShowAnd(TipOccasion::Start, [this] {
    EXPECT_TRUE(form->isModal());
    EXPECT_EQ(form->windowTitle(), u"Tip of the Day"_s);
    EXPECT_EQ(Text(u"lblDidYouKnow"_s), u"Did you know..."_s);
    EXPECT_EQ(Text(u"lblTipText"_s), u"two"_s);
    EXPECT_EQ(Find<QLabel>(u"Picture1"_s)->pixmap().deviceIndependentSize().toSize(),
              QSize(96, 160));
    EXPECT_EQ(CaptionOf(u"chkLoadTipsAtStartup"_s), u"Show tips at start up"_s);
    EXPECT_TRUE(IsChecked(u"chkLoadTipsAtStartup"_s));
    EXPECT_EQ(CaptionOf(u"cmdNextTip"_s), u"&Next Tip"_s);
    EXPECT_EQ(CaptionOf(u"cmdOK"_s), u"OK"_s);
    EXPECT_TRUE(Find<QWidget>(u"cmdOK"_s)->hasFocus());
  });
}

TEST_F(TipFormTest, NextTipGoesOn) {
  ShowAnd(TipOccasion::Menu, [this] {
    Click(u"cmdNextTip"_s);
    EXPECT_EQ(Text(u"lblTipText"_s), u"three"_s);
    Click(u"cmdNextTip"_s);
    EXPECT_EQ(Text(u"lblTipText"_s), u"one"_s);
  });
  EXPECT_EQ(settings.values.value(u"Settings/CurrentTip"_s), u"1"_s);
}

TEST_F(TipFormTest, TheCheckBoxIsStoredAtOnce) {
  State().ProgramOptions.TipofDay = 1;
  ShowAnd(TipOccasion::Menu, [this] {
    Click(u"chkLoadTipsAtStartup"_s);
    EXPECT_EQ(settings.writes.last(), u"Options/TipofDay=0"_s);
    EXPECT_EQ(State().ProgramOptions.TipofDay, 1);
    Press(Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
  });
  EXPECT_EQ(State().ProgramOptions.TipofDay, 1);
}

TEST_F(TipFormTest, EnterIsOkAndTakesTheSettingOver) {
  ShowAnd(TipOccasion::Menu, [this] {
    EXPECT_TRUE(IsChecked(u"chkLoadTipsAtStartup"_s));
    Press(Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
  });
  EXPECT_EQ(State().ProgramOptions.TipofDay, 1);
  EXPECT_EQ(settings.writes.last(), u"Options/TipofDay=1"_s);
}

TEST_F(TipFormTest, TurnedOffItDoesNothingAtStartUp) {
  SetOption(u"TipofDay"_s, u"0"_s);
  form = std::make_unique<frmTip>(program, errors, nullptr);
  form->LoadAndShow(TipOccasion::Start);
  EXPECT_FALSE(form->isVisible());
  EXPECT_TRUE(settings.writes.isEmpty());
}

TEST_F(TipFormTest, AMissingTipFileIsExplainedAndTheButtonsStayUsable) {
  ASSERT_TRUE(QFile::remove(bank.Folder() + u"/TIPOFDAY.TXT"_s));
  ShowAnd(TipOccasion::Menu, [this] {
    EXPECT_TRUE(Text(u"lblTipText"_s).startsWith(u"That the TIPOFDAY.TXT file was not found? "_s));
    Click(u"cmdNextTip"_s);
    EXPECT_TRUE(Text(u"lblTipText"_s).startsWith(u"That the TIPOFDAY.TXT file was not found? "_s));
    Click(u"chkLoadTipsAtStartup"_s);
    EXPECT_EQ(settings.writes.last(), u"Options/TipofDay=0"_s);
  });
  EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(TipFormTest, AMissingPictureIsAnErrorAtStartUpAndLeftOutFromTheMenu) {
  ASSERT_TRUE(QFile::remove(PicturePath()));
  form = std::make_unique<frmTip>(program, errors, nullptr);
  EXPECT_RUNTIME_ERROR(form->LoadAndShow(TipOccasion::Start), ErrorNumber::FileNotFound);
  EXPECT_FALSE(form->isVisible());
  ShowAnd(TipOccasion::Menu, [this] {
    EXPECT_FALSE(IsShown(u"Picture1"_s));
    EXPECT_TRUE(IsShown(u"lblTipText"_s));
  });
}

TEST_F(TipFormTest, ALongTipCanBeScrolled) {
  WriteBytes(bank.Folder() + u"/TIPOFDAY.TXT"_s, QByteArray("word ").repeated(500));
  ShowAnd(TipOccasion::Menu, [this] {
    EXPECT_LT(form->height(), 400);
    EXPECT_GT(Find<QLabel>(u"lblTipText"_s)->height(), form->height());
    // Past the check box and Next Tip.
    for (int tabs = 0; tabs < 3; ++tabs) {
      Press(Qt::Key_Tab);
    }
    const int before = Find<QLabel>(u"lblTipText"_s)->y();
    QTest::keyClick(form->focusWidget(), Qt::Key_PageDown);
    EXPECT_LT(Find<QLabel>(u"lblTipText"_s)->y(), before);
  });
}

TEST_F(TipFormTest, TheKeyboardPassesByATipThatIsShownWhole) {
  ShowAnd(TipOccasion::Menu, [this] {
    for (const QString& next : {u"chkLoadTipsAtStartup"_s, u"cmdNextTip"_s, u"cmdOK"_s}) {
      Press(Qt::Key_Tab);
      EXPECT_TRUE(Find<QWidget>(next)->hasFocus()) << next.toStdString();
    }
  });
}

}  // namespace
}  // namespace tessaly::test
