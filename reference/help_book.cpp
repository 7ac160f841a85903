#include "reference/help_book.h"

#include <chm_lib.h>

#include <QFile>
#include <QRegularExpression>
#include <QtEndian>
#include <algorithm>

#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

// Entries of the book's own description: a code, a length and a text each. Figures from the open
// documentation of the format.
constexpr qsizetype kSystemHeaderSize = 4;
constexpr qsizetype kEntryHeaderSize = 4;
enum SystemCode : quint16 { kContentsFile = 0, kIndexFile = 1, kDefaultPage = 2, kTitle = 3 };

QString TextOf(const QByteArray& html) {
  static const QRegularExpression head(
      u"<head>.*</head>"_s,
      QRegularExpression::DotMatchesEverythingOption | QRegularExpression::CaseInsensitiveOption);
  static const QRegularExpression tag(u"<[^>]*>"_s);
  QString text = QString::fromUtf8(html);
  return text.remove(head).replace(tag, u" "_s).simplified();
}

bool Holds(const QString& text, const QString& word) {
  return text.contains(word, Qt::CaseInsensitive);
}

bool HoldsAll(const QString& text, const QStringList& words) {
  return std::all_of(words.begin(), words.end(),
                     [&text](const QString& word) { return Holds(text, word); });
}

void SortByTitle(std::vector<HelpEntry>& entries) {
  std::stable_sort(entries.begin(), entries.end(),
                   [](const HelpEntry& one, const HelpEntry& other) {
                     return one.Title.compare(other.Title, Qt::CaseInsensitive) < 0;
                   });
}

}  // namespace

void HelpBook::Closer::operator()(chmFile* file) const {
  chm_close(file);
}

HelpBook::HelpBook(const QString& path) {
  if (!QFile::exists(path)) {
    throw RuntimeError(ErrorNumber::FileNotFound, path);
  }
  file_.reset(chm_open(QFile::encodeName(path).constData()));
  if (!file_) {
    throw RuntimeError(ErrorNumber::InvalidFileFormat, path);
  }
  ReadSystem();
  contents_ = ReadSitemap(contentsName_);
  if (contents_.empty()) {
    throw RuntimeError(ErrorNumber::InvalidFileFormat, path);
  }
  index_ = ReadSitemap(indexName_);
  SortByTitle(index_);
  CollectTexts(contents_);
}

std::optional<QByteArray> HelpBook::Read(const QString& page) const {
  chmUnitInfo unit{};
  const QByteArray path = '/' + page.toUtf8();
  if (chm_resolve_object(file_.get(), path.constData(), &unit) != CHM_RESOLVE_SUCCESS) {
    return std::nullopt;
  }
  QByteArray bytes(static_cast<qsizetype>(unit.length), Qt::Uninitialized);
  auto* buffer = reinterpret_cast<unsigned char*>(bytes.data());
  const auto length = static_cast<LONGINT64>(unit.length);
  if (chm_retrieve_object(file_.get(), &unit, buffer, 0, length) != length) {
    return std::nullopt;
  }
  return bytes;
}

void HelpBook::ReadSystem() {
  const QByteArray system = Read(u"#SYSTEM"_s).value_or(QByteArray());
  qsizetype at = kSystemHeaderSize;
  while (at + kEntryHeaderSize <= system.size()) {
    const auto code = qFromLittleEndian<quint16>(system.constData() + at);
    const auto length = qFromLittleEndian<quint16>(system.constData() + at + 2);
    const QString text =
        QString::fromUtf8(system.mid(at + kEntryHeaderSize, length).split('\0').first());
    switch (code) {
      case kContentsFile:
        contentsName_ = text;
        break;
      case kIndexFile:
        indexName_ = text;
        break;
      case kDefaultPage:
        defaultPage_ = text;
        break;
      case kTitle:
        title_ = text;
        break;
      default:
        break;
    }
    at += kEntryHeaderSize + length;
  }
}

std::vector<HelpEntry> HelpBook::ReadSitemap(const QString& name) const {
  return ParseSitemap(QString::fromUtf8(Read(name).value_or(QByteArray())));
}

void HelpBook::CollectTexts(const std::vector<HelpEntry>& entries) {
  for (const HelpEntry& entry : entries) {
    const QString page = PageOf(entry.Page);
    const auto isKnown = [&page](const PageText& known) { return known.page.Page == page; };
    if (!page.isEmpty() && std::none_of(texts_.begin(), texts_.end(), isKnown)) {
      texts_.push_back({{entry.Title, page}, TextOf(Read(page).value_or(QByteArray()))});
    }
    CollectTexts(entry.Children);
  }
}

std::vector<HelpHit> HelpBook::Search(const QString& query) const {
  const QStringList words = query.split(u' ', Qt::SkipEmptyParts);
  std::vector<HelpHit> hits;
  if (words.isEmpty()) {
    return hits;
  }
  for (const PageText& page : texts_) {
    if (HoldsAll(page.page.Title + u' ' + page.text, words)) {
      hits.push_back(page.page);
    }
  }
  std::stable_partition(hits.begin(), hits.end(), [&words](const HelpHit& hit) {
    return std::any_of(words.begin(), words.end(),
                       [&hit](const QString& word) { return Holds(hit.Title, word); });
  });
  return hits;
}

QString PageOf(const QString& link) {
  return link.section(u'#', 0, 0);
}

}  // namespace tessaly
