#ifndef TESSALY_REFERENCE_HELP_SITEMAP_H_
#define TESSALY_REFERENCE_HELP_SITEMAP_H_

#include <QString>
#include <vector>

namespace tessaly {

// An entry of a help book's contents or index. A heading that only groups others has no page.
struct HelpEntry {
  QString Title;
  QString Page;  // path within the book, without a leading slash; may carry an anchor
  std::vector<HelpEntry> Children;
};

// Reads a contents or index file of a compiled help book: nested lists of objects with a name and a
// page. What it does not know is skipped; a damaged file yields the entries up to the damage.
[[nodiscard]] std::vector<HelpEntry> ParseSitemap(const QString& sitemap);

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_HELP_SITEMAP_H_
