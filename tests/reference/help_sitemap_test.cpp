#include "reference/help_sitemap.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

// "Title=page(children)", one behind the other.
QString Outline(const std::vector<HelpEntry>& entries) {
  QStringList texts;
  for (const HelpEntry& entry : entries) {
    QString text = entry.Title + u'=' + entry.Page;
    if (!entry.Children.empty()) {
      text += u'(' + Outline(entry.Children) + u')';
    }
    texts.append(text);
  }
  return texts.join(u' ');
}

QString Object(const QString& name, const QString& local) {
  return uR"(<LI><OBJECT type="text/sitemap"><param name="Name" value="%1">)"_s.arg(name) +
         (local.isEmpty() ? QString() : uR"(<param name="Local" value="%1">)"_s.arg(local)) +
         u"</OBJECT>"_s;
}

TEST(HelpSitemapTest, EntriesNestAsTheirListsDo) {
  EXPECT_EQ(
      Outline(ParseSitemap(u"<HTML><BODY><UL>"_s + Object(u"One"_s, u"1.html"_s) +
                           Object(u"Book"_s, {}) + u"<UL>"_s + Object(u"In"_s, u"2.html#a"_s) +
                           u"</UL>"_s + Object(u"Last"_s, u"3.html"_s) + u"</UL></BODY></HTML>"_s)),
      u"One=1.html Book=(In=2.html#a) Last=3.html"_s);
}

TEST(HelpSitemapTest, TagsAndAttributesMayBeWrittenInAnyCase) {
  EXPECT_EQ(Outline(ParseSitemap(uR"(<ul><li><Object TYPE="text/sitemap">
                                     <PARAM NAME="name" VALUE="A &amp; B">
                                     <Param Name="local" Value="x.html"></object></ul>)"_s)),
            u"A & B=x.html"_s);
}

TEST(HelpSitemapTest, WhatItDoesNotKnowIsSkipped) {
  EXPECT_EQ(
      Outline(ParseSitemap(uR"(<UL><LI><OBJECT type="text/sitemap"><param name="Name" value="A">
                    <param name="ImageNumber" value="11"><param name="Local" value="a.html">
                    </OBJECT><B>bold</B></UL>)"_s)),
      u"A=a.html"_s);
}

TEST(HelpSitemapTest, AFileThatIsCutOffYieldsWhatComesBefore) {
  EXPECT_EQ(Outline(ParseSitemap(u"<UL>"_s + Object(u"One"_s, u"1.html"_s) + u"<LI><OBJ"_s)),
            u"One=1.html"_s);
  EXPECT_TRUE(ParseSitemap({}).empty());
}

}  // namespace
}  // namespace tessaly::test
