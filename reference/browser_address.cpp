#include "reference/browser_address.h"

#include <QDir>
#include <QFileInfo>

#include "app/program_state.h"
#include "store/conversions.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kOnTheWeb = 0;
constexpr int kOnTheDisk = 1;

int PublicationSource(const ProgramState& state) {
  return ToInteger(state.ProgramOptions.PubSource, u"Options/PubSource"_s);
}

QUrl PageOfProgram(const ProgramState& state, const QString& path) {
  return QUrl::fromLocalFile(QDir(state.Paths.ProgramFolder).absoluteFilePath(path));
}

QUrl NotFoundPage(const ProgramState& state) {
  return PageOfProgram(state, u"notfound.html"_s);
}

// A file that is there must be one of the folder's own; one that is not there must be named so.
bool LiesWithin(const QDir& folder, const QString& path) {
  const QFileInfo file(path);
  if (file.exists()) {
    return file.isFile() &&
           file.canonicalFilePath().startsWith(folder.canonicalPath() + QDir::separator());
  }
  return QDir::cleanPath(path).startsWith(QDir::cleanPath(folder.path()) + QDir::separator());
}

// The link is a file name, and may carry an anchor. It comes out of a data file, so that nothing in
// it counts as more than a name.
QUrl PublicationOnTheDisk(const ProgramState& state) {
  QString page = state.ResearchLink.section(u'#', 0, 0);
  page.replace(u'\\', QDir::separator());
  const QDir folder(QDir(state.Paths.ProgramFolder).absoluteFilePath(u"pubs"_s));
  const QString path = folder.path() + QDir::separator() + page;
  if (!LiesWithin(folder, path)) {
    return NotFoundPage(state);
  }
  QUrl address = QUrl::fromLocalFile(QDir::cleanPath(path));
  const QString anchor = state.ResearchLink.section(u'#', 1);
  if (!anchor.isEmpty()) {
    address.setFragment(anchor);
  }
  return address;
}

QUrl ResearchAddress(const ProgramState& state) {
  if (state.ResearchLink.isEmpty()) {
    return NotFoundPage(state);
  }
  switch (PublicationSource(state)) {
    case kOnTheDisk:
      return PublicationOnTheDisk(state);
    case kOnTheWeb:
      return QUrl(kIrsPdfFolder + state.ResearchLink);
    default:
      return {};
  }
}

}  // namespace

QUrl AddressOfMode(const ProgramState& state) {
  switch (state.Browser.Mode) {
    case kIrsReferences:
      return state.Browser.Research ? ResearchAddress(state) : PublicationsMenu(state);
    case kKovrinsPages:
      return KovrinsStartPage(state);
    case kDefinitions:
      return PageOfProgram(state, u"glossary/glossary.html"_s);
    default:
      return {};
  }
}

QUrl PublicationsMenu(const ProgramState& state) {
  const bool onTheDisk = PublicationSource(state) == kOnTheDisk;
  return PageOfProgram(state, onTheDisk ? u"pubmenu.html"_s : u"ipubmenu.html"_s);
}

QUrl KovrinsStartPage(const ProgramState& state) {
  return PageOfProgram(state, u"kovrins/kovrin.html"_s);
}

QUrl AddressOfForm(std::int16_t formCode) {
  switch (formCode) {
    case kForm2587:
      return QUrl(kIrsPdfFolder + u"f2587.pdf"_s);
    case kForm23:
      return QUrl(kIrsPdfFolder + u"f23.pdf"_s);
    default:
      return {};
  }
}

QUrl DocumentInsteadOfPage(const QUrl& address) {
  const auto pageEnd = ".html"_L1;
  QString text = address.toString(QUrl::RemoveFragment | QUrl::RemoveQuery);
  if (!text.startsWith(kIrsPdfFolder) || !text.endsWith(pageEnd, Qt::CaseInsensitive)) {
    return {};
  }
  text.chop(pageEnd.size());
  return QUrl(text + u".pdf"_s);
}

}  // namespace tessaly
