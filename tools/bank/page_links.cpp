#include "tools/bank/page_links.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

namespace tessaly::bank {

namespace {

// The pages that links name, each read once.
class Pages {
public:
  explicit Pages(const QString& folder) : folder_(folder) {}

  [[nodiscard]] bool Has(const QString& page) const {
    return !page.isEmpty() && QFileInfo(folder_.filePath(page)).isFile();
  }

  [[nodiscard]] bool HasAnchor(const QString& page, const QString& anchor) {
    auto known = anchors_.find(page);
    if (known == anchors_.end()) {
      known = anchors_.insert(page, AnchorsOf(folder_.filePath(page)));
    }
    return known->contains(anchor);
  }

private:
  static QSet<QString> AnchorsOf(const QString& path) {
    static const QRegularExpression attribute(
        u"\\s(?:id|name)\\s*=\\s*(?:\"([^\"]*)\"|'([^']*)')"_s,
        QRegularExpression::CaseInsensitiveOption);
    QSet<QString> anchors;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
      return anchors;
    }
    const QString html = QString::fromUtf8(file.readAll());
    for (const QRegularExpressionMatch& match : attribute.globalMatch(html)) {
      anchors.insert(match.captured(match.lastCapturedIndex()));
    }
    return anchors;
  }

  QDir folder_;
  QHash<QString, QSet<QString>> anchors_;
};

void CheckLink(const Place& place, const QString& link, Pages& pages, Findings& findings) {
  const QString page = link.section(u'#', 0, 0);
  if (!pages.Has(page)) {
    findings.push_back({place, u"the link's page '%1' does not exist"_s.arg(page)});
    return;
  }
  const QString anchor = link.mid(page.size() + 1);
  if (link.contains(u'#') && !pages.HasAnchor(page, anchor)) {
    findings.push_back({place, u"the page '%1' has no anchor '%2'"_s.arg(page, anchor)});
  }
}

}  // namespace

void CheckPageLinks(const BankSource& bank, const QString& pagesFolder, Findings& findings) {
  Pages pages(pagesFolder);
  for (const PartSource& part : bank.parts) {
    for (const QuestionSource& question : part.questions) {
      if (question.link) {
        CheckLink(PlaceOf(part, question), *question.link, pages, findings);
      }
    }
  }
}

}  // namespace tessaly::bank
