#include "reference/page_rules.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "tests/support/file_contents.h"
#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

const QUrl kWeb(u"https://www.irs.gov/pub/irs-pdf/p501.pdf"_s);
const QUrl kOtherWeb(u"http://127.0.0.1:8080/x.png"_s);
const QList<PageStep> kSteps{PageStep::Command, PageStep::Link, PageStep::History, PageStep::Page};

class PageRulesTest : public ::testing::Test {
protected:
  PageRulesTest() {
    EXPECT_TRUE(QDir(parent.path()).mkpath(u"program/pubs"_s));
    WriteBytes(parent.filePath(u"program/pubs/p501.html"_s), "p");
    WriteBytes(parent.filePath(u"program/tessaly.css"_s), "c");
    WriteBytes(parent.filePath(u"secret.html"_s), "s");
    EXPECT_TRUE(QDir(parent.path()).mkpath(u"program2"_s));
    WriteBytes(parent.filePath(u"program2/x.html"_s), "x");
  }

  [[nodiscard]] QUrl File(const QString& path) const {
    return QUrl::fromLocalFile(parent.filePath(path));
  }
  [[nodiscard]] bool OpensFromDisk(const QUrl& target, PageStep step = PageStep::Link) const {
    return rules().MayOpen(target, File(u"program/pubs/p501.html"_s), step);
  }
  [[nodiscard]] bool LoadsOnDisk(const QUrl& resource) const {
    return rules().MayLoad(resource, File(u"program/pubs/p501.html"_s));
  }
  [[nodiscard]] PageRules rules() const { return PageRules(parent.filePath(u"program"_s)); }

  QTemporaryDir parent;
};

TEST_F(PageRulesTest, ThePagesOfTheProgramFolderOpen) {
  for (const PageStep step : kSteps) {
    EXPECT_TRUE(OpensFromDisk(File(u"program/pubs/p501.html"_s), step));
    EXPECT_TRUE(rules().MayOpen(File(u"program/pubs/p501.html"_s), {}, step));
  }
}

TEST_F(PageRulesTest, AMissingPageOfTheProgramFolderOpensToSaySo) {
  EXPECT_TRUE(OpensFromDisk(File(u"program/pubs/none.html"_s)));
  EXPECT_TRUE(OpensFromDisk(File(u"program/nowhere/none.html"_s)));
}

TEST_F(PageRulesTest, NothingElseOfTheDiskIsOpenedOrLoaded) {
  for (const QUrl& target :
       {File(u"secret.html"_s), File(u"program2/x.html"_s), File(u"missing.html"_s),
        QUrl(u"file:///etc/passwd"_s), QUrl(File(u"program"_s).toString() + u"/../secret.html"_s),
        QUrl(File(u"program"_s).toString() + u"/pubs/%2e%2e/%2e%2e/secret.html"_s),
        QUrl(File(u"program"_s).toString() + u"/none/../../secret.html"_s), File(u"program"_s),
        File(u"program/pubs"_s), QUrl(u"file://host/share/x.html"_s), QUrl(u"file:///"_s)}) {
    for (const PageStep step : kSteps) {
      EXPECT_FALSE(OpensFromDisk(target, step)) << target.toString().toStdString();
    }
    EXPECT_FALSE(LoadsOnDisk(target)) << target.toString().toStdString();
  }
}

TEST_F(PageRulesTest, SymbolicLinksLeadNowhereElse) {
  ASSERT_TRUE(
      QFile::link(parent.filePath(u"secret.html"_s), parent.filePath(u"program/pubs/way.html"_s)));
  ASSERT_TRUE(QFile::link(u"/etc"_s, parent.filePath(u"program/etc"_s)));
  EXPECT_FALSE(OpensFromDisk(File(u"program/pubs/way.html"_s)));
  EXPECT_FALSE(OpensFromDisk(File(u"program/etc/passwd"_s)));
  EXPECT_FALSE(OpensFromDisk(File(u"program/etc/missing"_s)));
}

TEST_F(PageRulesTest, AProgramFolderBehindASymbolicLinkIsTheSame) {
  ASSERT_TRUE(QFile::link(parent.filePath(u"program"_s), parent.filePath(u"link"_s)));
  const PageRules throughLink(parent.filePath(u"link"_s));
  for (const QString& folder : {u"link"_s, u"program"_s}) {
    EXPECT_TRUE(throughLink.MayOpen(File(folder + u"/pubs/p501.html"_s), {}, PageStep::Command));
    EXPECT_TRUE(throughLink.MayOpen(File(folder + u"/pubs/none.html"_s), {}, PageStep::Command));
  }
}

TEST_F(PageRulesTest, AClickLeadsFromTheDiskToTheWebAndNothingElseDoes) {
  EXPECT_TRUE(OpensFromDisk(kWeb, PageStep::Link));
  EXPECT_TRUE(OpensFromDisk(kWeb, PageStep::Command));
  EXPECT_TRUE(OpensFromDisk(kWeb, PageStep::History));
  EXPECT_FALSE(OpensFromDisk(kWeb, PageStep::Page));
}

TEST_F(PageRulesTest, TheWebLeadsWithinTheWebAndNeverToTheDisk) {
  for (const PageStep step : kSteps) {
    EXPECT_TRUE(rules().MayOpen(kOtherWeb, kWeb, step));
  }
  const QUrl page = File(u"program/pubs/p501.html"_s);
  EXPECT_FALSE(rules().MayOpen(page, kWeb, PageStep::Link));
  EXPECT_FALSE(rules().MayOpen(page, kWeb, PageStep::Page));
  EXPECT_TRUE(rules().MayOpen(page, kWeb, PageStep::History));
  EXPECT_TRUE(rules().MayOpen(page, kWeb, PageStep::Command));
}

TEST_F(PageRulesTest, OtherKindsOfAddressesAreNotOpened) {
  for (const QString& target :
       {u"javascript:alert(1)"_s, u"data:text/html,x"_s, u"view-source:file:///etc/passwd"_s,
        u"chrome://gpu"_s, u"ftp://127.0.0.1/"_s, u"mailto:a@b.example"_s, u"qrc:/x"_s,
        u"about:config"_s, u"devtools://x"_s, u""_s}) {
    EXPECT_FALSE(OpensFromDisk(QUrl(target), PageStep::Link)) << target.toStdString();
    EXPECT_FALSE(rules().MayOpen(QUrl(target), kWeb, PageStep::Command)) << target.toStdString();
  }
}

TEST_F(PageRulesTest, APageFromTheDiskLoadsFromTheProgramFolderOnly) {
  EXPECT_TRUE(LoadsOnDisk(File(u"program/tessaly.css"_s)));
  EXPECT_TRUE(LoadsOnDisk(QUrl(u"data:image/png;base64,AA=="_s)));
  for (const QString& resource : {u"http://127.0.0.1:1/x.png"_s, u"https://www.irs.gov/x.png"_s,
                                  u"ws://127.0.0.1:1/"_s, u"ftp://127.0.0.1/x"_s}) {
    EXPECT_FALSE(LoadsOnDisk(QUrl(resource))) << resource.toStdString();
  }
}

TEST_F(PageRulesTest, APageOfTheWebLoadsFromTheWebOnly) {
  EXPECT_TRUE(rules().MayLoad(kOtherWeb, kWeb));
  EXPECT_FALSE(rules().MayLoad(File(u"program/tessaly.css"_s), kWeb));
}

TEST_F(PageRulesTest, OnlyTheWebRunsScripts) {
  EXPECT_TRUE(PageRules::RunsScript(kWeb));
  EXPECT_TRUE(PageRules::RunsScript(kOtherWeb));
  EXPECT_FALSE(PageRules::RunsScript(File(u"program/pubs/p501.html"_s)));
  EXPECT_FALSE(PageRules::RunsScript(QUrl(u"about:blank"_s)));
  // What is shown there is the browser's own page.
  EXPECT_TRUE(PageRules::RunsScript(File(u"program/pubs/none.html"_s)));
}

TEST_F(PageRulesTest, APageIsCalledByItsPlace) {
  EXPECT_EQ(rules().PlaceOf(File(u"program/pubs/p501.html"_s)), u"pubs/p501.html"_s);
  EXPECT_EQ(rules().PlaceOf(File(u"program/none.html"_s)), u"none.html"_s);
  EXPECT_EQ(rules().PlaceOf(kWeb), kWeb.toString());
}

}  // namespace
}  // namespace tessaly::test
