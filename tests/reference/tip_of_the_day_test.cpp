#include "reference/tip_of_the_day.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "store/options.h"
#include "tests/support/fakes.h"
#include "tests/support/file_contents.h"
#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class TipOfTheDayTest : public ::testing::Test {
protected:
  [[nodiscard]] QString FileName() const { return folder.filePath(kTipFileName); }
  void WriteTips(const QByteArray& content) { WriteBytes(FileName(), content); }
  bool LoadFromMenu() { return tips.Load(folder.path(), TipOccasion::Menu); }
  // Every tip in the order in which it comes, beginning with the one that follows tip 1.
  QStringList TipsOf(const QByteArray& content, int count) {
    WriteTips(content);
    settings.values.clear();
    EXPECT_TRUE(LoadFromMenu());
    QStringList shown{tips.Text()};
    for (int i = 1; i < count; ++i) {
      tips.ShowNextTip();
      shown.append(tips.Text());
    }
    return shown;
  }

  QTemporaryDir folder;
  FakeSettings settings;
  Options options;
  TipOfTheDay tips{settings, options};
};

TEST_F(TipOfTheDayTest, AFreshInstallationBeginsWithTheSecondTipAndComesToTheFirstLast) {
  WriteTips("one\ntwo\nthree\n");
  EXPECT_TRUE(LoadFromMenu());
  EXPECT_EQ(tips.Text(), u"two"_s);
  tips.ShowNextTip();
  EXPECT_EQ(tips.Text(), u"three"_s);
  tips.ShowNextTip();
  EXPECT_EQ(tips.Text(), u"one"_s);
  EXPECT_EQ(settings.writes, (QStringList{u"Settings/CurrentTip=2"_s, u"Settings/CurrentTip=3"_s,
                                          u"Settings/CurrentTip=1"_s}));
}

TEST_F(TipOfTheDayTest, TheNextOpeningGoesOnWhereTheLastOneEnded) {
  WriteTips("one\ntwo\nthree\n");
  settings.values[u"Settings/CurrentTip"_s] = u"2"_s;
  EXPECT_TRUE(LoadFromMenu());
  EXPECT_EQ(tips.Text(), u"three"_s);
  TipOfTheDay later(settings, options);
  EXPECT_TRUE(later.Load(folder.path(), TipOccasion::Menu));
  EXPECT_EQ(later.Text(), u"one"_s);
}

TEST_F(TipOfTheDayTest, AFileOfOneLineShowsItEveryTime) {
  EXPECT_EQ(TipsOf("only\n", 3), (QStringList{u"only"_s, u"only"_s, u"only"_s}));
  EXPECT_EQ(settings.values.value(u"Settings/CurrentTip"_s), u"1"_s);
}

TEST_F(TipOfTheDayTest, LinesMayEndInAnyWayAndTheLastNeedsNoEnd) {
  const QStringList expected{u"two"_s, u"three"_s, u"one"_s};
  for (const char* content : {"one\ntwo\nthree\n", "one\r\ntwo\r\nthree\r\n", "one\rtwo\rthree\r",
                              "one\r\ntwo\nthree", "\xEF\xBB\xBFone\ntwo\nthree"}) {
    EXPECT_EQ(TipsOf(content, 3), expected) << content;
  }
}

TEST_F(TipOfTheDayTest, EmptyLinesAreEmptyTips) {
  EXPECT_EQ(TipsOf("one\n\nthree\n\n", 4), (QStringList{u""_s, u"three"_s, u""_s, u"one"_s}));
}

TEST_F(TipOfTheDayTest, TipsAreReadAsUtf8) {
  EXPECT_EQ(TipsOf("\xC2\xA7 351\n", 1), QStringList{u"\u00A7 351"_s});
}

TEST_F(TipOfTheDayTest, AnEmptyFileShowsNothing) {
  EXPECT_EQ(TipsOf("", 2), (QStringList{u""_s, u""_s}));
}

TEST_F(TipOfTheDayTest, AMissingFileIsExplainedInPlaceOfATip) {
  const QString explanation =
      u"That the TIPOFDAY.TXT file was not found? \r\n\r\nCreate a text file named TIPOFDAY.TXT "
      u"using NotePad with 1 tip per line. Then place it in the same directory as the "
      u"application. "_s;
  EXPECT_TRUE(LoadFromMenu());
  EXPECT_EQ(tips.Text(), explanation);
  EXPECT_TRUE(settings.writes.isEmpty());
  tips.ShowNextTip();
  EXPECT_EQ(tips.Text(), explanation);
}

TEST_F(TipOfTheDayTest, LoadingTellsWhetherThereIsAFile) {
  WriteTips("one\n");
  EXPECT_FALSE(tips.LoadTips({}));
  EXPECT_FALSE(tips.LoadTips(folder.filePath(u"other.txt"_s)));
  EXPECT_TRUE(tips.LoadTips(FileName()));
}

TEST_F(TipOfTheDayTest, AFileThatCannotBeReadIsAnError) {
  EXPECT_RUNTIME_ERROR(static_cast<void>(tips.LoadTips(folder.path())),
                       ErrorNumber::PermissionDenied);
}

TEST_F(TipOfTheDayTest, ANumberOutsideTheFileLeadsToTheFirstTip) {
  WriteTips("one\ntwo\n");
  for (const QString& number : {u"2"_s, u"7"_s, u"2147483647"_s, u"-3"_s, u"0"_s}) {
    settings.values[u"Settings/CurrentTip"_s] = number;
    EXPECT_TRUE(LoadFromMenu());
    EXPECT_EQ(tips.Text(), u"one"_s) << number.toStdString();
  }
}

TEST_F(TipOfTheDayTest, ASettingThatIsNoNumberIsATypeMismatch) {
  WriteTips("one\n");
  settings.values[u"Settings/CurrentTip"_s] = u"first"_s;
  EXPECT_RUNTIME_ERROR(tips.ShowNextTip(), ErrorNumber::TypeMismatch);
  settings.values[u"Options/TipofDay"_s] = u"no"_s;
  EXPECT_RUNTIME_ERROR(static_cast<void>(LoadFromMenu()), ErrorNumber::TypeMismatch);
}

TEST_F(TipOfTheDayTest, TurnedOffItShowsNothingAtStartUpButATipFromTheMenu) {
  WriteTips("one\ntwo\n");
  settings.values[u"Options/TipofDay"_s] = u"0"_s;
  EXPECT_FALSE(tips.Load(folder.path(), TipOccasion::Start));
  EXPECT_TRUE(settings.writes.isEmpty());
  EXPECT_TRUE(LoadFromMenu());
  EXPECT_EQ(tips.Text(), u"two"_s);
  EXPECT_FALSE(tips.ShowsAtStart());
}

TEST_F(TipOfTheDayTest, WithNothingStoredItCountsAsTurnedOn) {
  EXPECT_TRUE(tips.Load(folder.path(), TipOccasion::Start));
  EXPECT_TRUE(tips.ShowsAtStart());
}

TEST_F(TipOfTheDayTest, TheCheckBoxIsStoredAtOnceAndTakenOverWithOk) {
  options.TipofDay = 1;
  tips.SetShowsAtStart(false);
  EXPECT_EQ(settings.writes, QStringList{u"Options/TipofDay=0"_s});
  EXPECT_EQ(options.TipofDay, 1);
  tips.Confirm();
  EXPECT_EQ(options.TipofDay, 0);
  EXPECT_EQ(settings.writes, (QStringList{u"Options/TipofDay=0"_s, u"Options/TipofDay=0"_s}));
}

}  // namespace
}  // namespace tessaly::test
