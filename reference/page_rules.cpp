#include "reference/page_rules.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

bool IsWeb(const QUrl& url) {
  return url.scheme() == "https"_L1 || url.scheme() == "http"_L1;
}

bool IsFile(const QUrl& url) {
  return url.scheme() == "file"_L1;
}

// What a page carries within itself, and the parts of the browser's own viewer of documents.
bool IsWithinPage(const QUrl& url) {
  static const QStringList schemes{u"data"_s, u"blob"_s, u"about"_s, u"chrome-extension"_s,
                                   u"chrome"_s};
  return schemes.contains(url.scheme());
}

// Of the nearest folder that there is, so that links in the way count for missing files as well.
QString CanonicalPath(const QString& path) {
  const QFileInfo file(QDir::cleanPath(path));
  if (file.exists() || file.isRoot()) {
    return file.canonicalFilePath();
  }
  return CanonicalPath(file.path()) + QDir::separator() + file.fileName();
}

}  // namespace

PageRules::PageRules(const QString& programFolder)
    : folder_(QDir(programFolder).canonicalPath() + QDir::separator()) {}

bool PageRules::MayOpen(const QUrl& target, const QUrl& from, PageStep step) const {
  const bool asked = step == PageStep::Command || step == PageStep::History;
  if (IsFile(target)) {
    return IsInProgramFolder(target) && (asked || !IsWeb(from));
  }
  if (IsWeb(target)) {
    return step != PageStep::Page || IsWeb(from);
  }
  return target == QUrl(u"about:blank"_s);
}

bool PageRules::MayLoad(const QUrl& resource, const QUrl& page) const {
  if (IsFile(resource)) {
    return !IsWeb(page) && IsInProgramFolder(resource);
  }
  return IsWithinPage(resource) || IsWeb(page);
}

bool PageRules::RunsScript(const QUrl& page) {
  return IsWeb(page) || (IsFile(page) && !QFileInfo::exists(page.toLocalFile()));
}

QString PageRules::PlaceOf(const QUrl& page) const {
  if (!IsFile(page)) {
    return page.toDisplayString();
  }
  const QString path = CanonicalPath(page.toLocalFile());
  return path.startsWith(folder_) ? path.mid(folder_.size()) : path;
}

bool PageRules::IsInProgramFolder(const QUrl& file) const {
  const QString path = file.toLocalFile();
  // Of what is there, only files are pages: the browser would list a folder.
  return file.host().isEmpty() && CanonicalPath(path).startsWith(folder_) &&
         !QFileInfo(path).isDir();
}

}  // namespace tessaly
