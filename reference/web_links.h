#ifndef TESSALY_REFERENCE_WEB_LINKS_H_
#define TESSALY_REFERENCE_WEB_LINKS_H_

#include <QLatin1StringView>
#include <array>

namespace tessaly {

struct Platform;

// A menu item of the Help menu that opens something outside the program.
struct WebLink {
  QLatin1StringView command;  // control name of the menu item
  QLatin1StringView target;   // web or mail address
  QLatin1StringView failure;  // what is said when it cannot be opened
};

extern const std::array<WebLink, 8> kWebLinks;

// Opens the link, or says that it could not be opened.
void OpenWebLink(const WebLink& link, const Platform& machine);

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_WEB_LINKS_H_
