#include "reference/hint_form.h"

#include <QAction>
#include <QLabel>
#include <QPointer>
#include <QToolBar>

#include "app/main_window.h"
#include "tests/support/form_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

// The command of the main window, and the dialog that it opens.
class HintFormTest : public ProgramTest {
protected:
  HintFormTest() {
    AddQuestion(1, u"Publication 501"_s, u"p501.html"_s);
    AddQuestion(2, u"Circular <b>230</b>"_s, {});
    SetOption(u"PubSource"_s, u"1"_s);
    windowed.Prepare();
    mainWindow.Attach(windowed);
    windowed.Session().BeginSession();
    mainWindow.show();
  }

  void AddQuestion(int no, const QString& hint, const QString& link) {
    bank.AddQuestion(u"01Part1"_s, {.no = no,
                                    .subject = TestBank::SubjectName(1),
                                    .question = u"Question"_s,
                                    .explanation = u"Explanation"_s,
                                    .hint = hint,
                                    .link = link});
  }
  [[nodiscard]] QAction* MenuItem() const {
    return mainWindow.findChild<QAction*>(u"mnuFileResearch"_s);
  }
  [[nodiscard]] QAction* ToolbarButton() const {
    return mainWindow.findChild<QAction*>(u"Toolbar1.Hint"_s);
  }
  [[nodiscard]] frmHint* Form() const { return mainWindow.findChild<frmHint*>(); }
  template <typename Widget>
  [[nodiscard]] Widget* Find(const QString& name) const {
    return Form()->findChild<Widget*>(name);
  }
  [[nodiscard]] QString Hint() const { return Find<QLabel>(u"lblHintLink"_s)->text(); }
  void Research() {
    MenuItem()->trigger();
    ASSERT_NE(Form(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(Form()));
  }
  void ExpectClosed() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Form(), nullptr);
    EXPECT_TRUE(ToolbarButton()->isEnabled());
    EXPECT_FALSE(MenuItem()->isEnabled());
  }
  [[nodiscard]] QUrl Publication() const {
    return QUrl::fromLocalFile(bank.Folder() + u"/pubs/p501.html"_s);
  }

  frmMain mainWindow{boxes};
  Program windowed{{settings, clock, boxes, files, drives, printer, desktop, browserWindow},
                   bank.Folder(),
                   mainWindow};
};

TEST_F(HintFormTest, ShowsTheHintBesideTheMainWindow) {
  Research();
  EXPECT_EQ(Form()->objectName(), u"frmHint"_s);
  EXPECT_EQ(Form()->windowTitle(), u"Research"_s);
  EXPECT_FALSE(Form()->isModal());
  EXPECT_EQ(Hint(), u"Publication 501"_s);
  EXPECT_EQ(Find<QAbstractButton>(u"cmdView"_s)->text(), u"Open IRS Reference"_s);
  EXPECT_EQ(Find<QAbstractButton>(u"cmdClose"_s)->text(), u"Close"_s);
  EXPECT_FALSE(ToolbarButton()->isEnabled());
  EXPECT_FALSE(MenuItem()->isEnabled());
}

TEST_F(HintFormTest, EveryWayOfClosingBringsTheToolbarButtonBack) {
  Research();
  QTest::mouseClick(Find<QAbstractButton>(u"cmdClose"_s), Qt::LeftButton);
  ExpectClosed();
  ToolbarButton()->trigger();
  QTest::keyClick(Form(), Qt::Key_Escape);
  ExpectClosed();
  ToolbarButton()->trigger();
  Form()->close();
  ExpectClosed();
  EXPECT_TRUE(browserWindow.told.isEmpty());
}

TEST_F(HintFormTest, ViewAndAClickOnTheHintOpenThePublication) {
  const std::array<std::function<void()>, 3> ways{
      [this] { QTest::mouseClick(Find<QAbstractButton>(u"cmdView"_s), Qt::LeftButton); },
      [this] { QTest::mouseClick(Find<QLabel>(u"lblHintLink"_s), Qt::LeftButton); },
      [this] { QTest::keyClick(Form(), Qt::Key_Return); }};
  for (const auto& openPublication : ways) {
    ToolbarButton()->trigger();
    openPublication();
    ExpectClosed();
    EXPECT_EQ(browserWindow.address, Publication());
    EXPECT_TRUE(browserWindow.visible);
    EXPECT_TRUE(windowed.State().Browser.Research);
    browserWindow.events->cmdClose_Click();
  }
}

TEST_F(HintFormTest, OnlyAClickWithTheLeftButtonThatEndsOnTheHintCounts) {
  Research();
  auto* hint = Find<QLabel>(u"lblHintLink"_s);
  QTest::mouseClick(hint, Qt::RightButton);
  QTest::mousePress(hint, Qt::LeftButton);
  QTest::mouseRelease(hint, Qt::LeftButton, {}, {-50, -50});
  EXPECT_TRUE(browserWindow.told.isEmpty());
  EXPECT_TRUE(Form()->isVisible());
}

TEST_F(HintFormTest, AQuestionWithoutALinkOpensTheEarlierPublication) {
  windowed.Session().Skip();
  Research();
  EXPECT_EQ(Hint(), u"Circular <b>230</b>"_s);
  QTest::mouseClick(Find<QAbstractButton>(u"cmdView"_s), Qt::LeftButton);
  EXPECT_EQ(browserWindow.address, Publication());
}

TEST_F(HintFormTest, TheNextQuestionShowsItsHintInTheSameDialog) {
  Research();
  const QPointer<frmHint> first = Form();
  windowed.Session().GradeAnswer(0);
  EXPECT_EQ(Hint(), u"Publication 501"_s);
  windowed.Session().NextQuestion();
  EXPECT_TRUE(MenuItem()->isEnabled());
  EXPECT_EQ(Hint(), u"Circular <b>230</b>"_s);
  Research();
  EXPECT_EQ(Form(), first);
  EXPECT_EQ(mainWindow.findChildren<frmHint*>().size(), 1);
  EXPECT_EQ(Hint(), u"Circular <b>230</b>"_s);
  EXPECT_FALSE(MenuItem()->isEnabled());
}

TEST_F(HintFormTest, AfterASkipTheOpenDialogShowsAndOpensTheNewQuestionsHint) {
  windowed.Session().EndSession();
  AddQuestion(3, u"Publication 17"_s, u"p17.html"_s);
  windowed.Session().BeginSession();
  Research();
  windowed.Session().Skip();
  EXPECT_EQ(Hint(), u"Circular <b>230</b>"_s);
  windowed.Session().Skip();
  EXPECT_EQ(Hint(), u"Publication 17"_s);
  EXPECT_FALSE(MenuItem()->isEnabled());
  QTest::mouseClick(Find<QAbstractButton>(u"cmdView"_s), Qt::LeftButton);
  EXPECT_EQ(browserWindow.address, QUrl::fromLocalFile(bank.Folder() + u"/pubs/p17.html"_s));
}

TEST_F(HintFormTest, AQuestionWithoutAHintSaysSoInTheOpenDialogToo) {
  windowed.Session().EndSession();
  AddQuestion(3, {}, u"p17.html"_s);
  windowed.Session().BeginSession();
  Research();
  windowed.Session().Skip();
  windowed.Session().Skip();
  EXPECT_EQ(Hint(), mainWindow.BoxText(Box::txtHintLink));
  EXPECT_TRUE(Hint().startsWith(u"The research link for this question is not available"_s));
  mainWindow.SetBoxText(Box::txtHintLink, {});
  EXPECT_EQ(Hint(),
            u"The research link for this question is not available in this database release"_s);
}

TEST_F(HintFormTest, WithoutABrowserTheDialogClosesAndTheUserIsTold) {
  browserWindow.loadError = ErrorNumber::FileNotFound;
  Research();
  QTest::mouseClick(Find<QAbstractButton>(u"cmdView"_s), Qt::LeftButton);
  ASSERT_EQ(boxes.shown.size(), 1);
  EXPECT_TRUE(boxes.shown.first().contains(u"Run-time error '53'"_s));
  ExpectClosed();
}

TEST_F(HintFormTest, AnEndedSessionLeavesResearchOff) {
  Research();
  windowed.Session().EndSession();
  QTest::mouseClick(Find<QAbstractButton>(u"cmdClose"_s), Qt::LeftButton);
  EXPECT_FALSE(ToolbarButton()->isEnabled());
  EXPECT_FALSE(MenuItem()->isEnabled());
}

struct MenuPage {
  QString item;
  QString page;
};

TEST_F(HintFormTest, TheHelpMenuOpensTheReferencePages) {
  for (const MenuPage& entry : {MenuPage{u"mnuHelpPubs"_s, u"pubmenu.html"_s},
                                MenuPage{u"mnuHelpKovrins"_s, u"kovrins/kovrin.html"_s},
                                MenuPage{u"mnuHelpGlossary"_s, u"glossary/glossary.html"_s}}) {
    auto* item = mainWindow.findChild<QAction*>(entry.item);
    EXPECT_TRUE(item->isEnabled());
    item->trigger();
    EXPECT_EQ(browserWindow.address, QUrl::fromLocalFile(bank.Folder() + u'/' + entry.page));
    EXPECT_TRUE(browserWindow.visible);
  }
  mainWindow.findChild<QAction*>(u"mnu23"_s)->trigger();
  EXPECT_EQ(browserWindow.address, QUrl(u"https://www.irs.gov/pub/irs-pdf/f23.pdf"_s));
}

}  // namespace
}  // namespace tessaly::test
