#include "tools/bank/page_links.h"

#include <gtest/gtest.h>

#include <QDir>

#include "tests/support/file_contents.h"
#include "tests/support/printers.h"
#include "tests/tools/bank_folder.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class PageLinksTest : public ::testing::Test {
protected:
  PageLinksTest() {
    WriteBytes(pages.filePath(u"p551.html"_s),
               "<h2 id=\"cost\">Cost</h2><a class='x' NAME='gifts'></a><p data-id=\"other\">"_ba);
  }

  // The findings of a bank whose one question has this link.
  [[nodiscard]] QStringList Findings(const QString& link) {
    sources.Write(u"01Part1.yaml"_s, QuestionYaml(u"01Part1"_s, 1) + u"  link: '%1'\n"_s.arg(link));
    bank::Findings findings;
    bank::CheckPageLinks(sources.Read(), pages.path(), findings);
    QStringList texts;
    for (const bank::Finding& finding : findings) {
      texts.append(ToText(finding));
    }
    return texts;
  }

  BankFolder sources;
  QTemporaryDir pages;
};

TEST_F(PageLinksTest, AnAnchorIsAnIdOrANameOnThePage) {
  for (const QString& link : {u"p551.html"_s, u"p551.html#cost"_s, u"p551.html#gifts"_s}) {
    EXPECT_EQ(Findings(link), QStringList()) << link.toStdString();
  }
  for (const QString& anchor : {u"Cost"_s, u"other"_s, u"x"_s, u""_s}) {
    EXPECT_EQ(
        Findings(u"p551.html#"_s + anchor),
        QStringList(
            u"01Part1.yaml:1: question 1: the page 'p551.html' has no anchor '%1'"_s.arg(anchor)));
  }
}

TEST_F(PageLinksTest, APageIsAFileOfTheFolder) {
  ASSERT_TRUE(QDir(pages.path()).mkdir(u"folder"_s));
  for (const QString& page : {u"p552.html"_s, u"P551.html"_s, u"folder"_s, u""_s}) {
    EXPECT_EQ(Findings(page + u"#cost"_s),
              QStringList(
                  u"01Part1.yaml:1: question 1: the link's page '%1' does not exist"_s.arg(page)));
  }
}

TEST_F(PageLinksTest, LinksAreLookedUpOnlyWhenPagesAreGiven) {
  sources.WritePart(u"01Part1"_s);
  sources.Replace(u"01Part1.yaml"_s, u"  hint: Hint 1\n"_s, u"  hint: Hint 1\n  link: p1.html\n"_s);
  EXPECT_EQ(RunTool({u"check"_s, sources.Path()}).err, QStringList());
  EXPECT_EQ(RunTool({u"check"_s, sources.Path(), u"--pages"_s, pages.path()}).err,
            QStringList(u"01Part1.yaml:1: question 1: the link's page 'p1.html' does not exist"_s));
}

}  // namespace
}  // namespace tessaly::test
