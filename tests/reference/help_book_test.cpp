// On the help file that the program is delivered with.
#include "reference/help_book.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <functional>

#include "tests/support/file_contents.h"
#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

const QString kHelpFile = QStringLiteral(TESSALY_HELP_FILE);

class HelpBookTest : public ::testing::Test {
protected:
  void ForEach(const std::vector<HelpEntry>& entries,
               const std::function<void(const HelpEntry&)>& see) {
    for (const HelpEntry& entry : entries) {
      see(entry);
      ForEach(entry.Children, see);
    }
  }
  [[nodiscard]] QStringList Titles(const QString& query) const {
    QStringList titles;
    for (const HelpHit& hit : book.Search(query)) {
      titles.append(hit.Title);
    }
    return titles;
  }

  HelpBook book{kHelpFile};
};

TEST_F(HelpBookTest, ItHasATitleAndBeginsWithAPageThatIsThere) {
  EXPECT_EQ(book.Title(), u"Tessaly Help"_s);
  EXPECT_TRUE(book.Read(book.DefaultPage()).has_value());
}

TEST_F(HelpBookTest, EveryEntryOfContentsAndIndexLeadsToAPage) {
  int pages = 0;
  const auto see = [&](const HelpEntry& entry) {
    EXPECT_FALSE(entry.Title.isEmpty());
    if (!entry.Page.isEmpty()) {
      ++pages;
      EXPECT_TRUE(book.Read(PageOf(entry.Page)).has_value()) << entry.Page.toStdString();
    }
  };
  ForEach(book.Contents(), see);
  EXPECT_GE(pages, 14);
  ForEach(book.Index(), see);
  EXPECT_GE(book.Index().size(), 90U);
}

TEST_F(HelpBookTest, EveryLinkAndPictureOfAPageIsInTheBook) {
  static const QRegularExpression reference(uR"re((?:href|src)="([^"]+)")re"_s);
  ForEach(book.Contents(), [&](const HelpEntry& entry) {
    if (entry.Page.isEmpty()) {
      return;
    }
    const QString html = QString::fromUtf8(*book.Read(PageOf(entry.Page)));
    for (const QRegularExpressionMatch& match : reference.globalMatch(html)) {
      const QString target = PageOf(match.captured(1));
      EXPECT_TRUE(target.isEmpty() || book.Read(target).has_value())
          << entry.Page.toStdString() << ": " << target.toStdString();
    }
  });
}

TEST_F(HelpBookTest, TheIndexIsInAlphabeticalOrder) {
  for (std::size_t i = 1; i < book.Index().size(); ++i) {
    EXPECT_LE(book.Index()[i - 1].Title.compare(book.Index()[i].Title, Qt::CaseInsensitive), 0);
  }
}

TEST_F(HelpBookTest, ASearchFindsThePagesWithAllItsWordsThoseInTitlesFirst) {
  EXPECT_TRUE(Titles(u"restoring"_s).first().contains(u"estor"_s));
  EXPECT_GT(Titles(u"statistics"_s).size(), Titles(u"statistics printer"_s).size());
  EXPECT_EQ(Titles(u"STATISTICS"_s), Titles(u"statistics"_s));
  EXPECT_EQ(Titles(u"zebra"_s), QStringList());
  EXPECT_EQ(Titles(u"  "_s), QStringList());
}

TEST_F(HelpBookTest, MarkupIsNotSearched) {
  EXPECT_EQ(Titles(u"stylesheet"_s), QStringList());
  EXPECT_EQ(Titles(u"href"_s), QStringList());
}

TEST_F(HelpBookTest, APageThatItDoesNotHaveIsNone) {
  EXPECT_EQ(book.Read(u"no such page.html"_s), std::nullopt);
}

TEST(HelpBookFileTest, AMissingFileAndAForeignOneAreDifferentErrors) {
  const QTemporaryDir folder;
  EXPECT_RUNTIME_ERROR(HelpBook(folder.filePath(u"help.chm"_s)), ErrorNumber::FileNotFound);
  WriteBytes(folder.filePath(u"help.chm"_s), "This is no help file.");
  EXPECT_RUNTIME_ERROR(HelpBook(folder.filePath(u"help.chm"_s)), ErrorNumber::InvalidFileFormat);
}

TEST(HelpBookFileTest, AFileThatIsCutOffIsAnErrorOrLacksPagesButNeverMore) {
  const QTemporaryDir folder;
  const QByteArray whole = ReadBytes(kHelpFile);
  for (const qsizetype length : {qsizetype(0), qsizetype(50), qsizetype(4096), whole.size() / 2}) {
    const QString path = folder.filePath(u"%1.chm"_s.arg(length));
    WriteBytes(path, whole.left(length));
    try {
      const HelpBook damaged(path);
      EXPECT_FALSE(damaged.Contents().empty());
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), ErrorNumber::InvalidFileFormat);
    }
  }
}

TEST(HelpLinkTest, ALinkHasAPageAndMayHaveAnAnchor) {
  EXPECT_EQ(PageOf(u"a.html#b"_s), u"a.html"_s);
  EXPECT_EQ(PageOf(u"a.html"_s), u"a.html"_s);
}

}  // namespace
}  // namespace tessaly::test
