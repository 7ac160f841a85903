#ifndef TESSALY_REFERENCE_HELP_BOOK_H_
#define TESSALY_REFERENCE_HELP_BOOK_H_

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>
#include <vector>

#include "reference/help_sitemap.h"

struct chmFile;

namespace tessaly {

// A page that a search has found.
struct HelpHit {
  QString Title;
  QString Page;
};

// A compiled help file (.chm): its pages, contents tree, index, and a search over all its text.
// Paths within the book have no leading slash.
class HelpBook {
public:
  // Raises 53 when the file is missing, 321 when it is no help file or has no contents.
  explicit HelpBook(const QString& path);

  [[nodiscard]] const QString& Title() const { return title_; }
  // The page to begin with.
  [[nodiscard]] const QString& DefaultPage() const { return defaultPage_; }
  [[nodiscard]] const std::vector<HelpEntry>& Contents() const { return contents_; }
  // In alphabetical order.
  [[nodiscard]] const std::vector<HelpEntry>& Index() const { return index_; }

  // The bytes of a page, picture or sheet; none when the book does not have it.
  [[nodiscard]] std::optional<QByteArray> Read(const QString& page) const;
  // The pages that hold every word of the query, those with a word in their title first, then in
  // the order of the contents. Upper and lower case are the same; an empty query finds nothing.
  [[nodiscard]] std::vector<HelpHit> Search(const QString& query) const;

private:
  struct Closer {
    void operator()(chmFile* file) const;
  };
  // A page as the search sees it.
  struct PageText {
    HelpHit page;
    QString text;
  };

  void ReadSystem();
  [[nodiscard]] std::vector<HelpEntry> ReadSitemap(const QString& name) const;
  void CollectTexts(const std::vector<HelpEntry>& entries);

  std::unique_ptr<chmFile, Closer> file_;
  QString contentsName_;
  QString indexName_;
  QString defaultPage_;
  QString title_;
  std::vector<HelpEntry> contents_;
  std::vector<HelpEntry> index_;
  std::vector<PageText> texts_;
};

// The page of a link without its anchor.
[[nodiscard]] QString PageOf(const QString& link);

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_HELP_BOOK_H_
