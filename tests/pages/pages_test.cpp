// On the pages as they lie in data/, which is laid out as the program folder is.

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QUrl>

#include "tests/support/file_contents.h"
#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

const QDir kData(QStringLiteral(TESSALY_DATA_DIR));

QStringList Captures(const QString& text, const QString& pattern) {
  QStringList found;
  for (const auto& match : QRegularExpression(pattern).globalMatch(text)) {
    found.append(match.captured(1));
  }
  return found;
}

class PagesTest : public ::testing::Test {
protected:
  static void SetUpTestSuite() {
    ReadFolder(u"."_s, {u"*.html"_s});
    for (const QString& folder : {u"pubs"_s, u"kovrins"_s, u"glossary"_s}) {
      ReadFolder(folder, {u"*.html"_s});
    }
  }
  static void ReadFolder(const QString& folder, const QStringList& names) {
    for (const QString& name : QDir(kData.filePath(folder)).entryList(names, QDir::Files)) {
      const QString path = QDir::cleanPath(folder + u'/' + name);
      pages[path] = QString::fromUtf8(ReadBytes(kData.filePath(path)));
    }
  }
  static QStringList Anchors(const QString& page) {
    return Captures(pages.value(page), uR"re(\sid="([^"]+)")re"_s);
  }
  static QStringList PagesIn(const QString& folder) {
    QStringList found;
    for (auto page = pages.keyBegin(); page != pages.keyEnd(); ++page) {
      if (page->startsWith(folder + u'/')) {
        found.append(*page);
      }
    }
    return found;
  }

  // By path below data/.
  static inline QMap<QString, QString> pages;
};

TEST_F(PagesTest, ThePagesThatTheProgramOpensAreThere) {
  for (const QString& page :
       {u"pubmenu.html"_s, u"ipubmenu.html"_s, u"notfound.html"_s, u"noanswer.html"_s,
        u"kovrins/kovrin.html"_s, u"glossary/glossary.html"_s}) {
    EXPECT_TRUE(pages.contains(page)) << page.toStdString();
  }
  EXPECT_GE(PagesIn(u"pubs"_s).size(), 50);
}

TEST_F(PagesTest, EveryLinkAndAnchorResolves) {
  for (auto page = pages.begin(); page != pages.end(); ++page) {
    const QString folder = QFileInfo(page.key()).path();
    for (const QString& link : Captures(*page, uR"re((?:href|src)="([^"]*)")re"_s)) {
      const QUrl url(link);
      if (!url.scheme().isEmpty()) {
        EXPECT_EQ(url.scheme(), u"https"_s)
            << page.key().toStdString() << ": " << link.toStdString();
        continue;
      }
      const QString target =
          url.path().isEmpty() ? page.key() : QDir::cleanPath(folder + u'/' + url.path());
      EXPECT_TRUE(QFileInfo(kData.filePath(target)).isFile())
          << page.key().toStdString() << ": " << link.toStdString();
      if (url.hasFragment()) {
        EXPECT_TRUE(Anchors(target).contains(url.fragment()))
            << page.key().toStdString() << ": " << link.toStdString();
      }
    }
  }
}

TEST_F(PagesTest, NoAnchorIsThereTwice) {
  for (auto page = pages.begin(); page != pages.end(); ++page) {
    const QStringList anchors = Anchors(page.key());
    EXPECT_EQ(QSet<QString>(anchors.begin(), anchors.end()).size(), anchors.size())
        << page.key().toStdString();
  }
}

TEST_F(PagesTest, AllShareOneStylesheetAndHaveNoStyleOrScriptOfTheirOwn) {
  static const QRegularExpression own(uR"re(<script|<style|\sstyle=|\son[a-z]+=)re"_s);
  for (auto page = pages.begin(); page != pages.end(); ++page) {
    const QString sheet = page.key().contains(u'/') ? u"../tessaly.css"_s : u"tessaly.css"_s;
    EXPECT_EQ(page->count(u"<link rel=\"stylesheet\" href=\"%1\">"_s.arg(sheet)), 1)
        << page.key().toStdString();
    EXPECT_FALSE(page->contains(own)) << page.key().toStdString();
  }
}

TEST_F(PagesTest, ADigestSaysWhatItCoversWhoNeedsItTheFiguresAndTheTraps) {
  for (const QString& page : PagesIn(u"pubs"_s)) {
    for (const QString& anchor : {u"covers"_s, u"who"_s, u"figures"_s, u"traps"_s}) {
      EXPECT_TRUE(Anchors(page).contains(anchor))
          << page.toStdString() << "#" << anchor.toStdString();
    }
    EXPECT_TRUE(pages[page].contains(u"<table"_s)) << page.toStdString();
  }
}

TEST_F(PagesTest, EveryDigestIsInTheMenuOfLocalCopies) {
  for (const QString& page : PagesIn(u"pubs"_s)) {
    EXPECT_TRUE(pages[u"pubmenu.html"_s].contains(u"href=\"%1\""_s.arg(page)))
        << page.toStdString();
  }
}

TEST_F(PagesTest, EachPartOfTheExaminationHasAtLeastFourLessonsWithReviewQuestions) {
  const QString start = pages[u"kovrins/kovrin.html"_s];
  for (const QString& part : {u"part1"_s, u"part2"_s, u"part3"_s, u"part4"_s}) {
    const QStringList lessons = PagesIn(u"kovrins"_s).filter(u"kovrins/"_s + part);
    EXPECT_GE(lessons.size(), 4) << part.toStdString();
    for (const QString& lesson : lessons) {
      EXPECT_TRUE(start.contains(u"href=\"%1\""_s.arg(QFileInfo(lesson).fileName())))
          << lesson.toStdString();
      EXPECT_GE(pages[lesson].count(u"<summary>"_s), 5) << lesson.toStdString();
    }
  }
}

TEST_F(PagesTest, TheGlossaryHasItsTermsInAlphabeticalOrder) {
  const QStringList terms = Captures(pages[u"glossary/glossary.html"_s], u"<dt id=\"([^\"]+)\""_s);
  EXPECT_GE(terms.size(), 250);
  for (qsizetype i = 1; i < terms.size(); ++i) {
    EXPECT_LE(terms[i - 1].at(0), terms[i].at(0)) << terms[i].toStdString();
  }
}

TEST_F(PagesTest, ThereIsAnotherTipForEachDayOfTwoMonths) {
  const QStringList tips =
      QString::fromUtf8(ReadBytes(kData.filePath(u"TIPOFDAY.TXT"_s))).trimmed().split(u'\n');
  EXPECT_GE(QSet<QString>(tips.begin(), tips.end()).size(), 60);
  EXPECT_FALSE(tips.contains(QString()));
}

}  // namespace
}  // namespace tessaly::test
