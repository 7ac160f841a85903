#include "stats/reset_form.h"

#include <QWindow>

#include "stats/statistics_form.h"
#include "tests/support/form_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class ResetFormTest : public FormTest<frmResetChoices> {
protected:
  ResetFormTest() {
    owner.setGeometry(150, 450, 500, 250);
    owner.show();
  }
  // Before its parents.
  ~ResetFormTest() override { form.reset(); }

  // As from the menu: the statistics form is there, and hidden.
  void Open() {
    form = std::make_unique<frmResetChoices>(program, errors, statistics);
    Show();
  }
  // The controls that have the focus one after the other, from where it is.
  QStringList ReachedWith(Qt::Key key) {
    QStringList names;
    while (!names.contains(QApplication::focusWidget()->objectName())) {
      names.append(QApplication::focusWidget()->objectName());
      Press(key);
    }
    return names;
  }

  QWidget owner;
  frmStats statistics{program, errors, &owner};
};

TEST_F(ResetFormTest, TabReachesEveryControlInUseAndTheButtonsLast) {
  Open();
  EXPECT_EQ(ReachedWith(Qt::Key_Tab),
            (QStringList{u"chkResetAll"_s, u"chkAllDifficult"_s, u"optTCurrentSection"_s,
                         u"optECurrentSection"_s, u"cmdReset"_s, u"cmdCancel"_s}));
}

TEST_F(ResetFormTest, TheArrowKeysReachTheOtherOptionsOfAGroup) {
  Open();
  for (const QString& group : {u"optT"_s, u"optE"_s}) {
    Find<QWidget>(group + u"CurrentSection"_s)->setFocus();
    EXPECT_EQ(ReachedWith(Qt::Key_Down),
              (QStringList{group + u"CurrentSection"_s, group + u"CurrentExam"_s,
                           group + u"AllExams"_s}));
  }
}

TEST_F(ResetFormTest, ResetStandsBeforeCancelOnTheRight) {
  Open();
  const auto* reset = Find<QWidget>(u"cmdReset"_s);
  const auto* cancel = Find<QWidget>(u"cmdCancel"_s);
  EXPECT_GT(reset->x(), form->width() / 2);
  EXPECT_LT(reset->geometry().right(), cancel->x());
}

TEST_F(ResetFormTest, EnterCancelsEvenOnTheResetButton) {
  Open();
  Click(u"chkResetAll"_s);
  Find<QWidget>(u"cmdReset"_s)->setFocus();
  Press(Qt::Key_Return);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(boxes.shown, QStringList());
}

TEST_F(ResetFormTest, SpaceOnTheResetButtonResets) {
  Open();
  Click(u"chkResetAll"_s);
  Find<QWidget>(u"cmdReset"_s)->setFocus();
  Press(Qt::Key_Space);
  EXPECT_EQ(boxes.shown.size(), 2);
  EXPECT_FALSE(form->isVisible());
}

TEST_F(ResetFormTest, WhileTheStatisticsAreHiddenItIsCentredOverTheirParent) {
  Open();
  EXPECT_EQ(form->parentWidget(), &owner);
  constexpr int kWindowFrame = 40;
  const QPoint off = form->geometry().center() - owner.geometry().center();
  EXPECT_LT(off.manhattanLength(), kWindowFrame);
}

TEST_F(ResetFormTest, OverStatisticsThatAreShownItBelongsToThem) {
  statistics.show();
  Open();
  EXPECT_EQ(form->parentWidget(), &statistics);
}

TEST_F(ResetFormTest, ANoBringsTheStatisticsUpBehindTheDialogWhichStaysInUse) {
  Open();
  boxes.answers = {BoxAnswer::No};
  Click(u"chkResetAll"_s);
  Click(u"cmdReset"_s);
  EXPECT_TRUE(statistics.isVisible());
  EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
  EXPECT_EQ(form->windowHandle()->transientParent(), statistics.windowHandle());
  Click(u"cmdCancel"_s);
  EXPECT_FALSE(form->isVisible());
  EXPECT_TRUE(statistics.isVisible());
}

}  // namespace
}  // namespace tessaly::test
