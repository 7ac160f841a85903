#include "reference/form_2587_notice.h"

#include <QImage>
#include <QLabel>

#include "tests/support/form_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class Form2587NoticeTest : public FormTest<frmForm2587> {
protected:
  Form2587NoticeTest() {
    EXPECT_TRUE(QImage(96, 160, QImage::Format_RGB32).save(bank.Folder() + u"/tips.bmp"_s));
  }
  [[nodiscard]] QString TextOf(const QString& name) { return Find<QLabel>(name)->text(); }
};

TEST_F(Form2587NoticeTest, ItsTextsAreExact) {
  Open();
  EXPECT_EQ(form->windowTitle(), u"Form 2587 May Now be Available"_s);
  EXPECT_EQ(TextOf(u"Label1"_s),
            u"The updated version of Form 2587, Application for the Special Enrollment "
            "Examination, may now be available on the IRS web site."_s);
  EXPECT_EQ(TextOf(u"Label2"_s),
            u"To view and print Form 2587 from Tessaly, click Help | Exam Application.  Form 2587 "
            "will be downloaded from the internet.."_s);
  EXPECT_EQ(CaptionOf(u"Check1"_s), u"Do not show this message again"_s);
  EXPECT_FALSE(IsChecked(u"Check1"_s));
}

TEST_F(Form2587NoticeTest, OkWithoutTheCheckWritesNothing) {
  Open();
  settings.writes.clear();
  Click(u"cmdOK"_s);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(settings.writes, QStringList());
}

TEST_F(Form2587NoticeTest, OkWithTheCheckKeepsItFromBeingShownAgain) {
  Open();
  settings.writes.clear();
  Click(u"Check1"_s);
  Click(u"cmdOK"_s);
  EXPECT_EQ(settings.writes, QStringList{u"Options/Suppress2587Msg=1"_s});
  EXPECT_EQ(State().ProgramOptions.Suppress2587Msg, 1);
}

TEST_F(Form2587NoticeTest, EscapeClosesItAndWritesNothing) {
  Open();
  settings.writes.clear();
  Click(u"Check1"_s);
  Press(Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(settings.writes, QStringList());
}

TEST_F(Form2587NoticeTest, ItIsWantedFromItsDateOnUnlessItWasDismissed) {
  clock.now = QDateTime(QDate(2002, 5, 31), QTime(23, 59));
  EXPECT_FALSE(IsForm2587NoticeWanted(program));
  clock.now = QDateTime(QDate(2002, 6, 1), QTime(0, 0));
  EXPECT_TRUE(IsForm2587NoticeWanted(program));
  SetOption(u"Suppress2587Msg"_s, u"1"_s);
  EXPECT_FALSE(IsForm2587NoticeWanted(program));
  SetOption(u"Suppress2587Msg"_s, u"0"_s);
  EXPECT_TRUE(IsForm2587NoticeWanted(program));
}

}  // namespace
}  // namespace tessaly::test
