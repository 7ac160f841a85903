#include "reference/web_links.h"

#include "app/program.h"
#include "platform/desktop.h"
#include "platform/message_boxes.h"
#include "store/settings_store.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr auto kNoWebsite = "Tessaly could not access the requested website."_L1;
constexpr auto kNoMailClient = "Tessaly could not access your e-mail client."_L1;

}  // namespace

const std::array<WebLink, 8> kWebLinks{{
    {"mnuHomePage"_L1, "https://www.tessaly.example/tessaly/"_L1, kNoWebsite},
    {"mnuSupportPage"_L1, "https://www.tessaly.example/support/"_L1, kNoWebsite},
    {"mnuCandidateResources"_L1, "https://www.tessaly.example/candidates/"_L1, kNoWebsite},
    {"mnuWebBugs"_L1, "https://www.tessaly.example/support/report/"_L1, kNoWebsite},
    {"mnuMakerHome"_L1, "https://www.tessaly.example/"_L1, kNoWebsite},
    {"mnuEmail"_L1, "mailto:support@tessaly.example?subject=Tessaly%20Support%20Request"_L1,
     kNoMailClient},
    {"mnuPubs"_L1, "https://www.irs.gov/forms-instructions"_L1, kNoWebsite},
    {"mnuAdobe"_L1, "https://get.adobe.com/reader/"_L1, kNoWebsite},
}};

void OpenWebLink(const WebLink& link, const Platform& machine) {
  if (!machine.desktop.OpenLink(link.target)) {
    machine.boxes.ShowMessage(link.failure, kApplicationTitle);
  }
}

}  // namespace tessaly
