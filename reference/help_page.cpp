#include "reference/help_page.h"

#include "reference/help_book.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

// The pages' own sheet speaks to browsers; this one says in the little that a text box knows how
// they look here. Colours that are not named are the desktop's, light or dark.
constexpr QLatin1StringView kSheet(
    "h1 { font-size: x-large; margin-bottom: 8px; }"
    "h2 { font-size: large; margin-top: 16px; margin-bottom: 4px; }"
    "p, li, td, th { line-height: 130%; }"
    "td, th { padding: 4px 8px; }"
    "th { text-align: left; }");

constexpr int kMargin = 18;

}  // namespace

HelpPage::HelpPage(const HelpBook& book, QWidget* parent) : QTextBrowser(parent), book_(book) {
  document()->setDefaultStyleSheet(kSheet);
  document()->setDocumentMargin(kMargin);
  setOpenExternalLinks(false);
  setAccessibleName(u"Help page"_s);
}

QVariant HelpPage::loadResource(int type, const QUrl& name) {
  if (type == QTextDocument::StyleSheetResource) {
    return QString(kSheet);
  }
  const auto bytes = book_.Read(name.path());
  if (!bytes) {
    return type == QTextDocument::HtmlResource
               ? QVariant(u"<h1>Page not found</h1><p>This page is missing in the help file.</p>"_s)
               : QVariant();
  }
  return type == QTextDocument::HtmlResource ? QVariant(QString::fromUtf8(*bytes))
                                             : QVariant(*bytes);
}

void HelpPage::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
  if (name.scheme().isEmpty() || name.scheme() == u"help"_s) {
    QTextBrowser::doSetSource(
        name, type == QTextDocument::UnknownResource ? QTextDocument::HtmlResource : type);
  }
}

}  // namespace tessaly
