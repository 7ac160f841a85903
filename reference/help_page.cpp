#include "reference/help_page.h"

#include <QRegularExpression>
#include <QResizeEvent>
#include <QScrollBar>
#include <algorithm>

#include "reference/help_book.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

// The pages' own sheet speaks to browsers; this one says in the little that a text box knows how
// they look here. Colours that are not named are the desktop's, light or dark.
constexpr QLatin1StringView kSheet(
    "h1 { font-size: x-large; margin-bottom: 8px; }"
    "h2 { font-size: large; margin-top: 16px; margin-bottom: 4px; }"
    "td, th { padding: 4px 8px; }"
    "th { text-align: left; }");

constexpr int kMargin = 18;
constexpr int kSmallestPicture = 200;  // pixels

// Says of each picture that is wider than `widest` pixels to be shown in that width.
QString WithFittingPictures(const QString& html, int widest) {
  static const QRegularExpression size(
      uR"re((<img\b[^>]*?)\swidth="(\d+)"([^>]*?)\sheight="(\d+)")re"_s);
  QString fitting;
  qsizetype copied = 0;
  for (const QRegularExpressionMatch& match : size.globalMatch(html)) {
    const int width = match.captured(2).toInt();
    if (width <= widest) {
      continue;
    }
    const int height = match.captured(4).toInt() * widest / width;
    fitting += html.mid(copied, match.capturedStart() - copied) + match.captured(1) +
               uR"( width="%1")"_s.arg(widest) + match.captured(3) +
               uR"( height="%1")"_s.arg(height);
    copied = match.capturedEnd();
  }
  return fitting + html.mid(copied);
}

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
  if (type == QTextDocument::HtmlResource) {
    return WithFittingPictures(QString::fromUtf8(*bytes), WidestPicture());
  }
  return *bytes;
}

void HelpPage::resizeEvent(QResizeEvent* event) {
  QTextBrowser::resizeEvent(event);
  if (event->oldSize().width() != event->size().width()) {
    const int position = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(position);
  }
}

int HelpPage::WidestPicture() const {
  return std::max(kSmallestPicture, viewport()->width() - 2 * kMargin);
}

void HelpPage::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
  if (name.scheme().isEmpty() || name.scheme() == u"help"_s) {
    QTextBrowser::doSetSource(
        name, type == QTextDocument::UnknownResource ? QTextDocument::HtmlResource : type);
  }
}

}  // namespace tessaly
