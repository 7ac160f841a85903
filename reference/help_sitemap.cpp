#include "reference/help_sitemap.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

QString PlainText(QString html) {
  return html.replace(u"&lt;"_s, u"<"_s)
      .replace(u"&gt;"_s, u">"_s)
      .replace(u"&quot;"_s, u"\""_s)
      .replace(u"&#39;"_s, u"'"_s)
      .replace(u"&amp;"_s, u"&"_s);
}

// Lists open and close as nested calls.
class SitemapReader {
public:
  explicit SitemapReader(const QString& sitemap) : tags_(Tag().globalMatch(sitemap)) {}

  // The entries up to the end of the list that is open.
  std::vector<HelpEntry> ReadList() {
    std::vector<HelpEntry> entries;
    while (tags_.hasNext()) {
      const QRegularExpressionMatch tag = tags_.next();
      const QString name = tag.captured(1).toLower();
      if (name == u"/ul"_s) {
        break;
      }
      if (name == u"object"_s) {
        entries.push_back(ReadObject());
      } else if (name == u"ul"_s) {
        AddNested(entries, ReadList());
      }
    }
    return entries;
  }

private:
  static const QRegularExpression& Tag() {
    static const QRegularExpression tag(uR"(<\s*(/?ul|/?object|param)\b([^>]*)>)"_s,
                                        QRegularExpression::CaseInsensitiveOption);
    return tag;
  }
  static QString Attribute(const QString& attributes, const QString& name) {
    const QRegularExpression attribute(name + uR"re(\s*=\s*"([^"]*)")re"_s,
                                       QRegularExpression::CaseInsensitiveOption);
    return PlainText(attribute.match(attributes).captured(1));
  }
  // A list belongs to the entry before it; the outermost one to none.
  static void AddNested(std::vector<HelpEntry>& entries, std::vector<HelpEntry> nested) {
    auto& target = entries.empty() ? entries : entries.back().Children;
    for (HelpEntry& entry : nested) {
      target.push_back(std::move(entry));
    }
  }

  HelpEntry ReadObject() {
    HelpEntry entry;
    while (tags_.hasNext()) {
      const QRegularExpressionMatch tag = tags_.next();
      if (tag.captured(1).toLower() != u"param"_s) {
        break;
      }
      const QString name = Attribute(tag.captured(2), u"name"_s).toLower();
      const QString value = Attribute(tag.captured(2), u"value"_s);
      if (name == u"name"_s && entry.Title.isEmpty()) {
        entry.Title = value;
      } else if (name == u"local"_s && entry.Page.isEmpty()) {
        entry.Page = value;
      }
    }
    return entry;
  }

  QRegularExpressionMatchIterator tags_;
};

}  // namespace

std::vector<HelpEntry> ParseSitemap(const QString& sitemap) {
  return SitemapReader(sitemap).ReadList();
}

}  // namespace tessaly
