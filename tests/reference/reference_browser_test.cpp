#include "reference/reference_browser.h"

#include "reference/browser_address.h"
#include "tests/support/program_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class ReferenceBrowserTest : public ProgramTest {
protected:
  ReferenceBrowserTest() { State().ProgramOptions.PubSource = u"1"_s; }

  ReferenceBrowser& Browser() { return program.Browser(); }
  BrowserState& BrowserFlags() { return State().Browser; }
  [[nodiscard]] QString NavigateTo(const QString& path) const {
    return u"navigate "_s + Page(path).toString();
  }
  [[nodiscard]] QUrl Page(const QString& path) const {
    return QUrl::fromLocalFile(bank.Folder() + u'/' + path);
  }
  void PageArrives(const QString& title = u"A page"_s, int httpStatus = 0) {
    browserWindow.events->DocumentComplete(title, browserWindow.address, httpStatus);
  }
  void UserCloses() { browserWindow.events->cmdClose_Click(); }
  void ExpectState(std::int16_t mode, std::int16_t formCode, bool research) {
    EXPECT_EQ(BrowserFlags().Mode, mode);
    EXPECT_EQ(BrowserFlags().FormCode, formCode);
    EXPECT_EQ(BrowserFlags().Research, research);
  }
};

TEST_F(ReferenceBrowserTest, NothingIsLoadedBeforeTheFirstCommand) {
  EXPECT_TRUE(browserWindow.told.isEmpty());
  EXPECT_FALSE(BrowserFlags().Loaded);
}

struct Opening {
  void (ReferenceBrowser::*open)();
  std::int16_t mode;
  QString page;
  QString listCaption;
  bool listVisibleLater;
};

const QList<Opening> kOpenings{
    {&ReferenceBrowser::OpenReferences, 0, u"pubmenu.html"_s, u"Pub List"_s, true},
    {&ReferenceBrowser::OpenKovrins, 1, u"kovrins/kovrin.html"_s, u"Kovrin List"_s, true},
    {&ReferenceBrowser::OpenDefinitions, 2, u"glossary/glossary.html"_s, u"Definition List"_s,
     false}};

TEST_F(ReferenceBrowserTest, TheFirstOpeningLoadsTheWindowWithItsStartAddress) {
  for (const Opening& opening : kOpenings) {
    browserWindow.loaded = false;
    browserWindow.told.clear();
    BrowserFlags() = {};
    (Browser().*opening.open)();
    EXPECT_EQ(browserWindow.told, (QStringList{u"load"_s, NavigateTo(opening.page), u"show"_s}));
    EXPECT_EQ(BrowserFlags().Mode, opening.mode);
    EXPECT_TRUE(BrowserFlags().Loaded);
    EXPECT_EQ(browserWindow.listCaption, opening.listCaption);
    // The load leaves the list button as it was designed.
    EXPECT_TRUE(browserWindow.listVisible);
    EXPECT_TRUE(browserWindow.timerEnabled);
  }
}

TEST_F(ReferenceBrowserTest, ALaterOpeningNavigatesTheWindowThatIsThere) {
  Browser().OpenReferences();
  PageArrives();
  for (const Opening& opening : kOpenings) {
    browserWindow.told.clear();
    (Browser().*opening.open)();
    EXPECT_EQ(browserWindow.told, (QStringList{NavigateTo(opening.page), u"show"_s}));
    EXPECT_EQ(browserWindow.listCaption, opening.listCaption);
    EXPECT_EQ(browserWindow.listVisible, opening.listVisibleLater);
    PageArrives();
  }
  Browser().OpenKovrins();
  EXPECT_TRUE(browserWindow.listVisible);
}

TEST_F(ReferenceBrowserTest, APageOnItsWayIsNotAskedForTwice) {
  Browser().OpenReferences();
  browserWindow.told.clear();
  Browser().OpenReferences();
  EXPECT_EQ(browserWindow.told, QStringList{u"show"_s});
  PageArrives();
  Browser().OpenReferences();
  EXPECT_EQ(browserWindow.told.count(NavigateTo(u"pubmenu.html"_s)), 1);
}

TEST_F(ReferenceBrowserTest, AFormIsOpenedByItsCode) {
  Browser().OpenReferences();
  PageArrives();
  Browser().OpenForm(kForm23);
  ExpectState(kDefinitions, kForm23, false);
  EXPECT_EQ(browserWindow.address, AddressOfForm(kForm23));
  EXPECT_EQ(browserWindow.listCaption, u"Pub List"_s);
  Browser().OpenForm(kForm2587);
  EXPECT_EQ(browserWindow.address, AddressOfForm(kForm2587));
  ExpectState(kDefinitions, kForm2587, false);
}

TEST_F(ReferenceBrowserTest, AFormIsTheFirstThingOpenedBehindTheGlossary) {
  Browser().OpenForm(kForm23);
  EXPECT_EQ(browserWindow.told,
            (QStringList{u"load"_s, NavigateTo(u"glossary/glossary.html"_s),
                         u"navigate "_s + AddressOfForm(kForm23).toString(), u"show"_s}));
  EXPECT_TRUE(browserWindow.visible);
}

TEST_F(ReferenceBrowserTest, AFormLeavesTheListButtonAsItIs) {
  Browser().OpenForm(kForm23);
  EXPECT_TRUE(browserWindow.listVisible);
  Browser().OpenDefinitions();
  EXPECT_FALSE(browserWindow.listVisible);
  Browser().OpenForm(kForm23);
  EXPECT_FALSE(browserWindow.listVisible);
  Browser().OpenReferences();
  EXPECT_TRUE(browserWindow.listVisible);
}

TEST_F(ReferenceBrowserTest, AnUnknownFormGoesNowhere) {
  Browser().OpenReferences();
  PageArrives();
  browserWindow.told.clear();
  Browser().OpenForm(9);
  EXPECT_EQ(browserWindow.told, QStringList{u"show"_s});
}

TEST_F(ReferenceBrowserTest, ResearchOpensThePublication) {
  State().ResearchLink = u"p501.html#a"_s;
  Browser().OpenResearch();
  ExpectState(kIrsReferences, kNoForm, true);
  EXPECT_EQ(browserWindow.address.toString(), Page(u"pubs/p501.html"_s).toString() + u"#a"_s);
  EXPECT_EQ(browserWindow.listCaption, u"Pub List"_s);
}

TEST_F(ReferenceBrowserTest, ResearchLeavesTheModeOfKovrins) {
  Browser().OpenKovrins();
  State().ResearchLink = u"p501.html"_s;
  Browser().OpenResearch();
  EXPECT_EQ(browserWindow.address, Page(u"pubs/p501.html"_s));
}

TEST_F(ReferenceBrowserTest, OnTheWebThePublicationHasTheSameAddressAtLoadAndLater) {
  State().ProgramOptions.PubSource = u"0"_s;
  State().ResearchLink = u"p501.pdf"_s;
  Browser().OpenResearch();
  const QUrl atLoad = browserWindow.address;
  EXPECT_EQ(atLoad, QUrl(u"https://www.irs.gov/pub/irs-pdf/p501.pdf"_s));
  PageArrives();
  Browser().OpenKovrins();
  Browser().OpenResearch();
  EXPECT_EQ(browserWindow.address, atLoad);
}

TEST_F(ReferenceBrowserTest, APageThatTheWebDoesNotHaveLeadsToItsDocument) {
  State().ProgramOptions.PubSource = u"0"_s;
  State().ResearchLink = u"p501.html"_s;
  Browser().OpenResearch();
  EXPECT_EQ(browserWindow.address, QUrl(u"https://www.irs.gov/pub/irs-pdf/p501.html"_s));
  PageArrives(u"Not found"_s, 404);
  EXPECT_EQ(browserWindow.address, QUrl(u"https://www.irs.gov/pub/irs-pdf/p501.pdf"_s));
  browserWindow.told.clear();
  PageArrives(u"Not found"_s, 404);
  EXPECT_TRUE(browserWindow.told.isEmpty());
}

TEST_F(ReferenceBrowserTest, APageThatTheWebCannotBeAskedForStaysWhereItIs) {
  State().ProgramOptions.PubSource = u"0"_s;
  State().ResearchLink = u"p501.html"_s;
  Browser().OpenResearch();
  browserWindow.told.clear();
  PageArrives(u"www.irs.gov"_s, 0);
  EXPECT_TRUE(browserWindow.told.isEmpty());
}

TEST_F(ReferenceBrowserTest, TheResearchFlagStaysUntilTheWindowIsClosed) {
  State().ResearchLink = u"p501.html"_s;
  Browser().OpenResearch();
  PageArrives();
  Browser().OpenKovrins();
  Browser().OpenReferences();
  EXPECT_EQ(browserWindow.address, Page(u"pubs/p501.html"_s));
  UserCloses();
  Browser().OpenReferences();
  EXPECT_EQ(browserWindow.address, Page(u"pubmenu.html"_s));
}

TEST_F(ReferenceBrowserTest, WithoutAnAddressTheWindowShowsWithoutATimer) {
  State().ProgramOptions.PubSource = u"2"_s;
  State().ResearchLink = u"p501.html"_s;
  Browser().OpenResearch();
  EXPECT_EQ(browserWindow.told, (QStringList{u"load"_s, u"show"_s}));
  EXPECT_FALSE(browserWindow.timerEnabled);
  EXPECT_TRUE(BrowserFlags().Loaded);
}

TEST_F(ReferenceBrowserTest, ClosingResetsAllButTheLoadedFlag) {
  State().ResearchLink = u"p501.html"_s;
  Browser().OpenResearch();
  Browser().OpenForm(kForm23);
  UserCloses();
  ExpectState(kIrsReferences, kNoForm, false);
  EXPECT_TRUE(BrowserFlags().Loaded);
  EXPECT_FALSE(browserWindow.loaded);
  EXPECT_EQ(State().ResearchLink, u"p501.html"_s);
}

TEST_F(ReferenceBrowserTest, AClosedWindowIsLoadedAnewByTheNextCommand) {
  Browser().OpenReferences();
  PageArrives();
  UserCloses();
  browserWindow.told.clear();
  Browser().OpenDefinitions();
  // The load and the navigation ask for the same page, which is asked for once.
  EXPECT_EQ(browserWindow.told,
            (QStringList{u"load"_s, NavigateTo(u"glossary/glossary.html"_s), u"show"_s}));
  EXPECT_FALSE(browserWindow.listVisible);
  EXPECT_TRUE(browserWindow.timerEnabled);
  UserCloses();
  Browser().OpenForm(kForm23);
  EXPECT_EQ(browserWindow.address, AddressOfForm(kForm23));
  EXPECT_TRUE(browserWindow.visible);
}

TEST_F(ReferenceBrowserTest, TheListButtonLeadsToTheListOfTheMode) {
  Browser().OpenKovrins();
  PageArrives();
  browserWindow.events->cmdPubList_Click();
  EXPECT_EQ(browserWindow.address, Page(u"kovrins/kovrin.html"_s));
  Browser().OpenForm(kForm23);
  browserWindow.events->cmdPubList_Click();
  EXPECT_EQ(browserWindow.address, Page(u"pubmenu.html"_s));
  State().ProgramOptions.PubSource = u"0"_s;
  State().ResearchLink = u"p501.html"_s;
  Browser().OpenResearch();
  browserWindow.events->cmdPubList_Click();
  EXPECT_EQ(browserWindow.address, Page(u"ipubmenu.html"_s));
  ExpectState(kIrsReferences, kForm23, true);
}

TEST_F(ReferenceBrowserTest, TheCaptionSaysWorkingUntilThePageIsThere) {
  Browser().OpenReferences();
  browserWindow.events->timTimer_Timer(true, u"pubmenu.html"_s);
  EXPECT_EQ(browserWindow.caption, u"Working..."_s);
  EXPECT_TRUE(browserWindow.timerEnabled);
  browserWindow.events->timTimer_Timer(false, u"Publications"_s);
  EXPECT_EQ(browserWindow.caption, u"Publications"_s);
  EXPECT_FALSE(browserWindow.timerEnabled);
}

TEST_F(ReferenceBrowserTest, TheCaptionFollowsEveryPage) {
  Browser().OpenReferences();
  browserWindow.events->NavigateComplete(u"On the way"_s);
  EXPECT_EQ(browserWindow.caption, u"On the way"_s);
  PageArrives(u"There"_s);
  EXPECT_EQ(browserWindow.caption, u"There"_s);
}

TEST_F(ReferenceBrowserTest, AWindowThatCannotBeMadeIsAnErrorAndTheNextOpeningWorks) {
  browserWindow.loadError = ErrorNumber::FileNotFound;
  EXPECT_RUNTIME_ERROR(Browser().OpenReferences(), ErrorNumber::FileNotFound);
  EXPECT_FALSE(BrowserFlags().Loaded);
  browserWindow.loadError.reset();
  Browser().OpenReferences();
  EXPECT_TRUE(browserWindow.visible);
}

TEST_F(ReferenceBrowserTest, ASettingThatIsNoNumberOpensNoWindow) {
  State().ProgramOptions.PubSource = u"disk"_s;
  EXPECT_RUNTIME_ERROR(Browser().OpenReferences(), ErrorNumber::TypeMismatch);
  EXPECT_TRUE(browserWindow.told.isEmpty());
}

TEST_F(ReferenceBrowserTest, AWindowThatWasEndedCountsAsClosed) {
  State().ResearchLink = u"p501.html"_s;
  Browser().OpenResearch();
  PageArrives();
  browserWindow.told.clear();
  browserWindow.Break(false);
  EXPECT_TRUE(browserWindow.told.isEmpty());
  ExpectState(kIrsReferences, kNoForm, false);
  Browser().OpenReferences();
  EXPECT_EQ(browserWindow.address, Page(u"pubmenu.html"_s));
  EXPECT_TRUE(browserWindow.visible);
}

TEST_F(ReferenceBrowserTest, AWindowThatGoesWhileItOpensAPageComesBackOnce) {
  Browser().OpenReferences();
  PageArrives();
  Browser().OpenDefinitions();
  browserWindow.told.clear();
  browserWindow.Break(false);
  EXPECT_EQ(browserWindow.told,
            (QStringList{u"load"_s, NavigateTo(u"glossary/glossary.html"_s), u"show"_s}));
  EXPECT_EQ(browserWindow.listCaption, u"Definition List"_s);
  EXPECT_FALSE(browserWindow.listVisible);
  EXPECT_EQ(BrowserFlags().Mode, kDefinitions);
  EXPECT_RUNTIME_ERROR(browserWindow.Break(false), ErrorNumber::CannotCreateObject);
  ExpectState(kIrsReferences, kNoForm, false);
}

TEST_F(ReferenceBrowserTest, AWindowThatLostItsPageComesBackAndMayAgainAfterAPage) {
  Browser().OpenKovrins();
  for (int times = 0; times < 3; ++times) {
    PageArrives();
    browserWindow.Break(true);
    EXPECT_TRUE(browserWindow.visible);
    EXPECT_EQ(browserWindow.address, Page(u"kovrins/kovrin.html"_s));
  }
}

}  // namespace
}  // namespace tessaly::test
