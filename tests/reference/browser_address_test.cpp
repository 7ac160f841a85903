#include "reference/browser_address.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "app/program_state.h"
#include "tests/support/file_contents.h"
#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class BrowserAddressTest : public ::testing::Test {
protected:
  BrowserAddressTest() {
    state.Paths.ProgramFolder = folder.path();
    EXPECT_TRUE(QDir(folder.path()).mkpath(u"pubs"_s));
    WriteBytes(folder.filePath(u"pubs/p501.html"_s), "<p>501</p>");
    WriteBytes(folder.filePath(u"secret.html"_s), "<p>secret</p>");
    state.ProgramOptions.PubSource = u"1"_s;
  }

  [[nodiscard]] QUrl Page(const QString& path) const {
    return QUrl::fromLocalFile(folder.filePath(path));
  }
  QUrl Research(const QString& link) {
    state.Browser.Research = true;
    state.ResearchLink = link;
    return AddressOfMode(state);
  }

  QTemporaryDir folder;
  ProgramState state;
};

TEST_F(BrowserAddressTest, TheMenuOfPublicationsFollowsTheSetting) {
  EXPECT_EQ(AddressOfMode(state), Page(u"pubmenu.html"_s));
  for (const QString& source : {u"0"_s, u"2"_s, u"-1"_s}) {
    state.ProgramOptions.PubSource = source;
    EXPECT_EQ(AddressOfMode(state), Page(u"ipubmenu.html"_s));
    EXPECT_EQ(PublicationsMenu(state), Page(u"ipubmenu.html"_s));
  }
}

TEST_F(BrowserAddressTest, TheSettingIsComparedAsANumber) {
  state.ProgramOptions.PubSource = u" 1.0"_s;
  EXPECT_EQ(AddressOfMode(state), Page(u"pubmenu.html"_s));
  for (const QString& source : {u""_s, u"disk"_s}) {
    state.ProgramOptions.PubSource = source;
    EXPECT_RUNTIME_ERROR(static_cast<void>(AddressOfMode(state)), ErrorNumber::TypeMismatch);
  }
}

TEST_F(BrowserAddressTest, KovrinsAndDefinitionsNeedNoSetting) {
  state.ProgramOptions.PubSource.clear();
  state.Browser.Mode = kKovrinsPages;
  EXPECT_EQ(AddressOfMode(state), Page(u"kovrins/kovrin.html"_s));
  state.Browser.Mode = kDefinitions;
  EXPECT_EQ(AddressOfMode(state), Page(u"glossary/glossary.html"_s));
}

TEST_F(BrowserAddressTest, TheResearchFlagCountsInTheModeOfReferencesOnly) {
  state.ResearchLink = u"p501.html"_s;
  state.Browser.Research = true;
  state.Browser.Mode = kKovrinsPages;
  EXPECT_EQ(AddressOfMode(state), Page(u"kovrins/kovrin.html"_s));
}

TEST_F(BrowserAddressTest, AnotherModeHasNoAddress) {
  for (const std::int16_t mode : std::initializer_list<std::int16_t>{-1, 3}) {
    state.Browser.Mode = mode;
    EXPECT_FALSE(AddressOfMode(state).isValid());
  }
}

TEST_F(BrowserAddressTest, WithoutALinkThePageThatSaysSoIsShownWhateverTheSetting) {
  for (const QString& source : {u"0"_s, u"1"_s, u"7"_s}) {
    state.ProgramOptions.PubSource = source;
    EXPECT_EQ(Research({}), Page(u"notfound.html"_s));
  }
}

TEST_F(BrowserAddressTest, ALinkOpensTheLocalCopy) {
  EXPECT_EQ(Research(u"p501.html"_s), Page(u"pubs/p501.html"_s));
  EXPECT_EQ(Research(u"p501.html#who must file"_s).toEncoded(),
            Page(u"pubs/p501.html"_s).toEncoded() + "#who%20must%20file");
}

TEST_F(BrowserAddressTest, AMissingLocalCopyHasItsAddressAllTheSame) {
  EXPECT_EQ(Research(u"p9.html"_s), Page(u"pubs/p9.html"_s));
}

TEST_F(BrowserAddressTest, ALinkOpensTheDocumentOnTheWeb) {
  state.ProgramOptions.PubSource = u"0"_s;
  EXPECT_EQ(Research(u"p501.pdf"_s), QUrl(u"https://www.irs.gov/pub/irs-pdf/p501.pdf"_s));
  EXPECT_EQ(Research(u"p501.html"_s), QUrl(u"https://www.irs.gov/pub/irs-pdf/p501.html"_s));
}

TEST_F(BrowserAddressTest, NoLinkLeadsToAnotherHost) {
  state.ProgramOptions.PubSource = u"0"_s;
  for (const QString& link : {u"//evil.example/x"_s, u"@evil.example/x"_s, u"\\\\evil.example\\x"_s,
                              u"../../x"_s, u"https://evil.example/"_s}) {
    const QUrl address = Research(link);
    EXPECT_EQ(address.host(), u"www.irs.gov"_s) << link.toStdString();
    EXPECT_EQ(address.scheme(), u"https"_s);
  }
}

TEST_F(BrowserAddressTest, AnyOtherSettingHasNoAddressForALink) {
  for (const QString& source : {u"2"_s, u"-1"_s}) {
    state.ProgramOptions.PubSource = source;
    EXPECT_FALSE(Research(u"p501.html"_s).isValid());
  }
}

TEST_F(BrowserAddressTest, ALinkThatLeadsOutOfThePublicationsIsNotFound) {
  for (const QString& link :
       {u"../secret.html"_s, u"../../../../../../etc/passwd"_s, u"sub/../../secret.html"_s,
        u"..\\secret.html"_s, u"./../secret.html"_s, u"../secret.html#x"_s, u".."_s, u"."_s,
        u"#x"_s, u"../pubs2/x.html"_s}) {
    EXPECT_EQ(Research(link), Page(u"notfound.html"_s)) << link.toStdString();
  }
}

TEST_F(BrowserAddressTest, ALinkIsANameAndNothingElse) {
  EXPECT_EQ(Research(u"/etc/passwd"_s), Page(u"pubs/etc/passwd"_s));
  EXPECT_EQ(Research(u"p501.html?a=b"_s).path(), folder.filePath(u"pubs/p501.html?a=b"_s));
  EXPECT_FALSE(Research(u"p501.html?a=b"_s).hasQuery());
  EXPECT_EQ(Research(u"%2e%2e/secret.html"_s).path(QUrl::FullyDecoded),
            folder.filePath(u"pubs/%2e%2e/secret.html"_s));
  EXPECT_EQ(Research(u"http://evil.example/"_s).scheme(), u"file"_s);
}

TEST_F(BrowserAddressTest, ASymbolicLinkOutOfThePublicationsIsNotFollowed) {
  ASSERT_TRUE(QFile::link(folder.filePath(u"secret.html"_s), folder.filePath(u"pubs/way.html"_s)));
  ASSERT_TRUE(QFile::link(u"/etc"_s, folder.filePath(u"pubs/etc"_s)));
  EXPECT_EQ(Research(u"way.html"_s), Page(u"notfound.html"_s));
  EXPECT_EQ(Research(u"etc/passwd"_s), Page(u"notfound.html"_s));
}

TEST_F(BrowserAddressTest, OnlyTwoFormsHaveAnAddress) {
  EXPECT_EQ(AddressOfForm(kForm2587), QUrl(u"https://www.irs.gov/pub/irs-pdf/f2587.pdf"_s));
  EXPECT_EQ(AddressOfForm(kForm23), QUrl(u"https://www.irs.gov/pub/irs-pdf/f23.pdf"_s));
  EXPECT_FALSE(AddressOfForm(kNoForm).isValid());
  EXPECT_FALSE(AddressOfForm(5).isValid());
}

TEST_F(BrowserAddressTest, APageOfTheWebFolderHasADocumentOfItsName) {
  EXPECT_EQ(DocumentInsteadOfPage(QUrl(u"https://www.irs.gov/pub/irs-pdf/p501.html#a"_s)),
            QUrl(u"https://www.irs.gov/pub/irs-pdf/p501.pdf"_s));
  for (const QString& address :
       {u"https://www.irs.gov/pub/irs-pdf/p501.pdf"_s, u"https://www.irs.gov/p501.html"_s,
        u"file:///pubs/p501.html"_s, u""_s}) {
    EXPECT_FALSE(DocumentInsteadOfPage(QUrl(address)).isValid()) << address.toStdString();
  }
}

}  // namespace
}  // namespace tessaly::test
