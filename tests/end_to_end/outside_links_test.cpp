#include <QFile>

#include "tests/end_to_end/end_to_end_test.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

constexpr auto kRunnable = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

// The program with a desktop whose opener and updater are scripts of the test's.
class OutsideLinksTest : public EndToEndTest {
protected:
  OutsideLinksTest() {
    EXPECT_TRUE(QDir().mkpath(Tools()));
    installation.SetVariable(u"PATH"_s, Tools() + u":/usr/bin:/bin"_s);
  }
  [[nodiscard]] QString Tools() const { return installation.Folder() + u"/tools"_s; }
  [[nodiscard]] QString Record() const { return installation.Folder() + u"/asked"_s; }
  // A program that notes its argument and ends so; "sleep 60" in `then` makes it stay.
  void MakeProgram(const QString& path, const QString& then) {
    WriteBytes(path, u"#!/bin/sh\necho \"$1\" >> %1\n%2\n"_s.arg(Record(), then).toUtf8());
    ASSERT_TRUE(QFile::setPermissions(path, kRunnable));
  }
  void MakeOpener(const QString& then) { MakeProgram(Tools() + u"/xdg-open"_s, then); }
  void ExpectBox(const QString& text) {
    const BoxContent box = program.WaitForBox();
    EXPECT_EQ(box.text, text);
    EXPECT_EQ(box.title, kApplicationTitle);
    EXPECT_EQ(box.buttons, QStringList{u"OK"_s});
    program.AnswerBox(u"OK"_s);
  }
  void WaitForRecord(const QString& text) {
    program.WaitUntil(u"a start of another program"_s,
                      [&] { return QString::fromUtf8(ReadIfThere()).contains(text); });
  }
  [[nodiscard]] QByteArray ReadIfThere() const {
    return QFile::exists(Record()) ? ReadBytes(Record()) : QByteArray();
  }
};

TEST_F(OutsideLinksTest, ALinkGoesToTheDesktopsOpener) {
  MakeOpener(u"exit 0"_s);
  program.StartToMainWindow();
  program.Trigger(u"mnuPubs"_s);
  WaitForRecord(u"https://www.irs.gov/"_s);
  program.Trigger(u"mnuEmail"_s);
  WaitForRecord(u"mailto:support@tessaly.example?subject=Tessaly%20Support%20Request"_s);
  EXPECT_FALSE(program.HasBox());
}

TEST_F(OutsideLinksTest, AnOpenerThatBecomesTheBrowserIsASuccess) {
  MakeOpener(u"sleep 60"_s);
  program.StartToMainWindow();
  program.Trigger(u"mnuAdobe"_s);
  WaitForRecord(u"https://get.adobe.com/reader/"_s);
  EXPECT_FALSE(program.HasBox());
}

TEST_F(OutsideLinksTest, AMachineWithoutABrowserOrMailClientSaysSo) {
  MakeOpener(u"exit 3"_s);
  program.StartToMainWindow();
  program.Trigger(u"mnuHomePage"_s);
  ExpectBox(u"Tessaly could not access the requested website."_s);
  program.Trigger(u"mnuEmail"_s);
  ExpectBox(u"Tessaly could not access your e-mail client."_s);
}

TEST_F(OutsideLinksTest, AMachineWithoutAnOpenerSaysSo) {
  installation.SetVariable(u"PATH"_s, Tools());
  program.StartToMainWindow();
  program.Trigger(u"mnuMakerHome"_s);
  ExpectBox(u"Tessaly could not access the requested website."_s);
}

TEST_F(OutsideLinksTest, AnUpdateClosesTheProgramAndStartsTheUpdater) {
  MakeProgram(installation.Folder() + u"/wiseupdt.exe"_s, u"exit 0"_s);
  program.StartToMainWindow();
  program.Send({u"trigger"_s, u"mnuUpdates"_s});
  EXPECT_EQ(program.WaitForExit(), 0);
  WaitForRecord(u"\n"_s);
}

TEST_F(OutsideLinksTest, AMissingUpdaterGivesAMessageAndTheProgramStays) {
  program.StartToMainWindow();
  program.Trigger(u"mnuUpdates"_s);
  EXPECT_EQ(program.Text(u"Label1"_s),
            u"Closing Tessaly to check for and download program updates.  You will need to "
            "manually restart Tessaly after the update is complete."_s);
  ExpectBox(
      u"The program to update Tessaly could not be found, so no update was made.  Please contact "
      "technical support for assistance."_s);
  EXPECT_FALSE(program.Windows().contains(u"frmLoadUpdater"_s));
  EXPECT_TRUE(program.IsVisible(u"frmMain"_s));
}

TEST_F(OutsideLinksTest, TheNoticeAboutTheFormComesAtEveryStartUntilItIsDismissed) {
  installation.Store(u"Options/Suppress2587Msg"_s, u"0"_s);
  program.Start();
  program.WaitForWindow(u"frmForm2587"_s);
  EXPECT_TRUE(program.IsVisible(u"frmMain"_s));
  program.Click(u"Check1"_s);
  program.Click(u"cmdOK"_s);
  EXPECT_EQ(installation.Stored(u"Options/Suppress2587Msg"_s), u"1"_s);
  program.Close(u"frmMain"_s);
  EXPECT_EQ(program.WaitForExit(), 0);
  program.StartToMainWindow();
  EXPECT_FALSE(program.Windows().contains(u"frmForm2587"_s));
}

TEST_F(OutsideLinksTest, TheHelpOpensInAWindowOfItsOwn) {
  program.StartToMainWindow();
  program.Trigger(u"mnuHelpContents"_s);
  program.WaitForVisible(u"frmHelp"_s);
  EXPECT_EQ(program.Get(u"frmHelp"_s, u"windowTitle"_s), u"Tessaly Help"_s);
  program.Trigger(u"mnuHelpContents"_s);
  EXPECT_EQ(program.Windows().count(u"frmHelp"_s), 1);
}

TEST_F(OutsideLinksTest, AMissingHelpFileIsReported) {
  ASSERT_TRUE(QFile::remove(installation.Folder() + u"/help/tessaly2002.chm"_s));
  program.StartToMainWindow();
  program.Trigger(u"mnuHelpContents"_s);
  ExpectErrorBox(53, u"File not found"_s);
}

TEST_F(OutsideLinksTest, ADamagedHelpFileIsReported) {
  WriteBytes(installation.Folder() + u"/help/tessaly2002.chm"_s, "no help");
  program.StartToMainWindow();
  program.Trigger(u"mnuHelpContents"_s);
  ExpectErrorBox(321, u"Invalid file format"_s);
}

}  // namespace
}  // namespace tessaly::test
