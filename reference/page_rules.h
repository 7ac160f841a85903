#ifndef TESSALY_REFERENCE_PAGE_RULES_H_
#define TESSALY_REFERENCE_PAGE_RULES_H_

#include <QString>
#include <QUrl>

namespace tessaly {

// How the browser comes to open a page.
enum class PageStep {
  Command,  // the program says so
  Link,     // the user clicked
  History,  // back, forward or reload
  Page,     // the page's own doing: a redirection, a form
};

// What the reference browser may open and load. A page from the disk sees the program folder's
// files and nothing else; what comes from the web never sees the disk. Links of a page on the disk
// lead to the web only when they are clicked.
class PageRules {
public:
  explicit PageRules(const QString& programFolder);

  // Whether the window may go to `target` from the page `from`, which is empty at first.
  [[nodiscard]] bool MayOpen(const QUrl& target, const QUrl& from, PageStep step) const;
  // Whether the page may load this picture, style sheet, frame or the like.
  [[nodiscard]] bool MayLoad(const QUrl& resource, const QUrl& page) const;
  // Only pages of the web run scripts, and the page by which the browser itself says that a file is
  // missing.
  [[nodiscard]] static bool RunsScript(const QUrl& page);

  // How a page is called in the window: by its place in the program folder, or its web address.
  [[nodiscard]] QString PlaceOf(const QUrl& page) const;

private:
  [[nodiscard]] bool IsInProgramFolder(const QUrl& file) const;

  QString folder_;  // canonical, with a separator at its end
};

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_PAGE_RULES_H_
