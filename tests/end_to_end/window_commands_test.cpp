#include "tests/end_to_end/end_to_end_test.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

// "name|caption|shortcut", indented by depth.
const QStringList kMenuBar{
    u"mnuFile|&File"_s,
    u" mnuFileBegin|&Begin Session|Ctrl+B"_s,
    u" mnuFileNext|&Next Question|Ctrl+N"_s,
    u" mnuFileClose|&End Session|Ctrl+E"_s,
    u" mnuFilePrint|&Print|Ctrl+P"_s,
    u" mnuFileResearch|Research|Ctrl+R"_s,
    u" divider6|-"_s,
    u" mnuUpdates|&Update Tessaly..."_s,
    u" mnuFileExit|E&xit|Ctrl+X"_s,
    u"mnuView|&Options"_s,
    u" mnuViewExamChoices|Study Mode Wizard...|Ctrl+M"_s,
    u" mnuViewOptions|&General Settings...|Ctrl+S"_s,
    u" mnuOptionsNavBar|Customize Navigation Bar"_s,
    u" mnuOptionsTip|Display Next Tip of the Day"_s,
    u" mnuViewStatusBar|Status &Bar"_s,
    u"mnuStats|St&atistics"_s,
    u" mnuFileExport|Back Up Statistics..."_s,
    u" mnuFileImport|Restore Statistics..."_s,
    u" div|-"_s,
    u" mnuViewStats|View Statistics...|Ctrl+A"_s,
    u" mnuStatsReset|Reset Statistics..."_s,
    u"mnuHelp|&Help"_s,
    u" mnuHelpContents|&Contents"_s,
    u" break|-"_s,
    u" mnuHelpPubs|IRS References"_s,
    u" mnuHelpKovrins|Kovrins"_s,
    u" mnuHelpGlossary|Definitions"_s,
    u" break2|-"_s,
    u" mnu2587|Exam Application"_s,
    u" mnu23|Practice Application"_s,
    u" mnudash|-"_s,
    u" mnuHelpWebLinks|Web Links"_s,
    u"  mnuHomePage|Tessaly Home Page"_s,
    u"  mnuSupportPage|Tessaly Support Page"_s,
    u"  mnuCandidateResources|Enrolled Agent Candidate Resources"_s,
    u"  mnuWebBugs|Bug Report/Enhancement Suggestion"_s,
    u"  mnuMakerHome|Tessaly Press Home Page"_s,
    u"  divider4|-"_s,
    u"  mnuEmail|Tessaly Support Request"_s,
    u"  divider3|-"_s,
    u"  mnuPubs|IRS Forms and  Pubs on the Web"_s,
    u"  mnuAdobe|Adobe Acrobat Reader Download Page"_s,
    u" mnuHelpAbout|&About Tessaly..."_s,
    u"PopUp|PopUp|hidden"_s,
    u" mnuPopupTrue|True"_s,
    u" mnuPopupFalse|False"_s,
    u" mnuPopupA|A."_s,
    u" mnuPopupB|B."_s,
    u" mnuPopupC|C."_s,
    u" mnuPopupD|D."_s,
    u" mnuPopupNext|Next"_s,
    u" mnuPopupSkip|Skip"_s,
    u" mnuPopupHint|Hint"_s,
};

class WindowCommandsTest : public EndToEndTest {};

TEST_F(WindowCommandsTest, TheMenuBarIsComplete) {
  program.StartToMainWindow();
  EXPECT_EQ(program.Menus(), kMenuBar) << program.Menus().join(u'\n').toStdString();
}

struct ButtonOfCommand {
  QString button;
  QString command;
};

const QList<ButtonOfCommand> kButtons{
    {u"Toolbar1.Start"_s, u"mnuFileBegin"_s},      {u"Toolbar1.Stop"_s, u"mnuFileClose"_s},
    {u"Toolbar1.Hint"_s, u"mnuFileResearch"_s},    {u"Toolbar1.Print"_s, u"mnuFilePrint"_s},
    {u"Toolbar1.Mode"_s, u"mnuViewExamChoices"_s}, {u"Toolbar1.Settings"_s, u"mnuViewOptions"_s},
    {u"Toolbar1.Stats"_s, u"mnuViewStats"_s},      {u"Toolbar1.Next"_s, u"mnuFileNext"_s}};

TEST_F(WindowCommandsTest, EveryToolbarButtonRunsTheCommandOfItsKey) {
  program.StartToMainWindow();
  QStringList order;
  for (const ButtonOfCommand& entry : kButtons) {
    order.append(entry.button);
    EXPECT_EQ(program.IsEnabled(entry.button), program.IsEnabled(entry.command));
  }
  EXPECT_EQ(program.Actions(u"Toolbar1"_s), order);
  program.Click(u"Toolbar1.Start"_s);
  program.WaitForVisible(u"txtQuestion"_s);
  for (const ButtonOfCommand& entry : kButtons) {
    EXPECT_EQ(program.IsEnabled(entry.button), program.IsEnabled(entry.command));
  }
  program.Click(u"cmdA"_s);
  program.Click(u"Toolbar1.Next"_s);
  EXPECT_EQ(program.Text(u"txtRightWrong"_s), u"     Question #2"_s);
  program.Click(u"Toolbar1.Stop"_s);
  EXPECT_FALSE(program.IsVisible(u"txtQuestion"_s));
}

TEST_F(WindowCommandsTest, AButtonTakenOffTheToolbarLeavesItsMenuItemAndShortcut) {
  program.StartToMainWindow();
  program.Trigger(u"mnuOptionsNavBar"_s);
  program.WaitForWindow(u"frmCustomize"_s);
  EXPECT_EQ(program.Items(u"lstCurrent"_s).value(0), u"Begin Study Session"_s);
  program.ClickItem(u"lstCurrent"_s, 0);
  program.Click(u"cmdRemove"_s);
  program.Click(u"cmdClose"_s);
  EXPECT_FALSE(program.Actions(u"Toolbar1"_s).contains(u"Toolbar1.Start"_s));
  program.Press(u"Ctrl+B"_s);
  program.WaitForVisible(u"txtQuestion"_s);
  program.Press(u"Ctrl+E"_s);
  program.Trigger(u"mnuFileBegin"_s);
  program.WaitForVisible(u"txtQuestion"_s);
  program.Press(u"Ctrl+E"_s);

  program.Trigger(u"mnuOptionsNavBar"_s);
  program.WaitForWindow(u"frmCustomize"_s);
  program.Click(u"cmdReset"_s);
  program.Click(u"cmdClose"_s);
  EXPECT_EQ(program.Actions(u"Toolbar1"_s).value(0), u"Toolbar1.Start"_s);
  program.Click(u"Toolbar1.Start"_s);
  program.WaitForVisible(u"txtQuestion"_s);
}

TEST_F(WindowCommandsTest, TheStatusBarIsHiddenAndShownByItsMenuItem) {
  program.StartToMainWindow();
  EXPECT_EQ(program.Get(u"mnuViewStatusBar"_s, u"checked"_s), u"true"_s);
  EXPECT_TRUE(program.IsVisible(u"sbrStatusBar"_s));
  program.Trigger(u"mnuViewStatusBar"_s);
  EXPECT_EQ(program.Get(u"mnuViewStatusBar"_s, u"checked"_s), u"false"_s);
  EXPECT_FALSE(program.IsVisible(u"sbrStatusBar"_s));
  program.Trigger(u"mnuViewStatusBar"_s);
  EXPECT_TRUE(program.IsVisible(u"sbrStatusBar"_s));
}

TEST_F(WindowCommandsTest, AboutShowsTheVersionAndTheReleaseOfTheQuestions) {
  program.StartToMainWindow();
  program.Trigger(u"mnuHelpAbout"_s);
  program.WaitForWindow(u"frmAbout"_s);
  EXPECT_TRUE(program.Text(u"lblVersion"_s).startsWith(u"2002 Edition (Release "_s));
  EXPECT_EQ(program.Text(u"lblDatabase"_s), u"Test release"_s);
  program.Click(u"cmdOK"_s);
  EXPECT_EQ(program.Windows(), QStringList{u"frmMain"_s});
}

TEST_F(WindowCommandsTest, TheWindowCanBePictured) {
  program.StartToMainWindow();
  const QString path = Bank().WorkingFolder() + u"/window.png"_s;
  program.SavePicture(u"frmMain"_s, path);
  EXPECT_TRUE(ReadBytes(path).startsWith("\x89PNG"));
}

}  // namespace
}  // namespace tessaly::test
