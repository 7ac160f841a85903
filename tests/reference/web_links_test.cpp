#include "reference/web_links.h"

#include <QUrl>
#include <QUrlQuery>

#include "tests/support/program_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class WebLinksTest : public ProgramTest {};

TEST_F(WebLinksTest, EachOfTheEightItemsHasAnAddressThatIsOne) {
  QStringList commands;
  for (const WebLink& link : kWebLinks) {
    commands.append(link.command);
    const QUrl address = QUrl(link.target, QUrl::StrictMode);
    EXPECT_TRUE(address.isValid()) << link.target.data();
    EXPECT_EQ(address.scheme(), link.command == "mnuEmail"_L1 ? u"mailto"_s : u"https"_s);
  }
  EXPECT_EQ(commands, (QStringList{u"mnuHomePage"_s, u"mnuSupportPage"_s,
                                   u"mnuCandidateResources"_s, u"mnuWebBugs"_s, u"mnuMakerHome"_s,
                                   u"mnuEmail"_s, u"mnuPubs"_s, u"mnuAdobe"_s}));
}

TEST_F(WebLinksTest, TheMailLinkHasItsSubject) {
  const QUrl address(kWebLinks[5].target);
  EXPECT_EQ(QUrlQuery(address).queryItemValue(u"subject"_s, QUrl::FullyDecoded),
            u"Tessaly Support Request"_s);
}

TEST_F(WebLinksTest, ALinkThatOpensSaysNothing) {
  OpenWebLink(kWebLinks[0], program.Machine());
  EXPECT_EQ(desktop.asked, QStringList{QString(kWebLinks[0].target)});
  EXPECT_EQ(boxes.shown, QStringList());
}

TEST_F(WebLinksTest, AFailureHasOneTextForWebPagesAndOneForMail) {
  desktop.works = false;
  for (const WebLink& link : kWebLinks) {
    OpenWebLink(link, program.Machine());
    EXPECT_EQ(
        boxes.shown.takeLast(),
        u"Tessaly - 2002 Edition|"_s +
            (link.command == "mnuEmail"_L1 ? u"Tessaly could not access your e-mail client."_s
                                           : u"Tessaly could not access the requested website."_s));
  }
}

}  // namespace
}  // namespace tessaly::test
