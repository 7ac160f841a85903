#include "reference/browser/reference_page.h"

#include <QWebEngineNewWindowRequest>
#include <QWebEngineSettings>

namespace tessaly {

namespace {

PageStep StepOf(QWebEnginePage::NavigationType type) {
  switch (type) {
    case QWebEnginePage::NavigationTypeTyped:
      return PageStep::Command;
    case QWebEnginePage::NavigationTypeLinkClicked:
      return PageStep::Link;
    case QWebEnginePage::NavigationTypeBackForward:
    case QWebEnginePage::NavigationTypeReload:
      return PageStep::History;
    default:
      return PageStep::Page;
  }
}

}  // namespace

ReferencePage::ReferencePage(const PageRules& rules, QWebEngineProfile* profile, QObject* parent)
    : QWebEnginePage(profile, parent), rules_(rules) {
  QWebEngineSettings* const chosen = settings();
  chosen->setAttribute(QWebEngineSettings::JavascriptEnabled, false);
  chosen->setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, false);
  // Which files these are is for the request guard to say.
  chosen->setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, true);
  chosen->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
  chosen->setAttribute(QWebEngineSettings::DnsPrefetchEnabled, false);
  chosen->setAttribute(QWebEngineSettings::PluginsEnabled, true);
  chosen->setAttribute(QWebEngineSettings::PdfViewerEnabled, true);
  connect(this, &QWebEnginePage::newWindowRequested, this, &ReferencePage::OpenHere);
}

bool ReferencePage::acceptNavigationRequest(const QUrl& target, NavigationType type,
                                            bool isMainFrame) {
  if (!isMainFrame) {
    return rules_.MayLoad(target, url());
  }
  if (!Decide(target, StepOf(type))) {
    return false;
  }
  const bool runsScript = PageRules::RunsScript(target);
  // Setting it anew would go all the way to the page's process, in time that the page could use.
  if (settings()->testAttribute(QWebEngineSettings::JavascriptEnabled) != runsScript) {
    settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, runsScript);
  }
  return true;
}

// What the scripts of others have to say is of no use to the user.
void ReferencePage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int,
                                             const QString&) {}

void ReferencePage::OpenHere(QWebEngineNewWindowRequest& request) {
  const QUrl target = request.requestedUrl();
  if (Decide(target, request.isUserInitiated() ? PageStep::Link : PageStep::Page)) {
    load(target);
  }
}

bool ReferencePage::Decide(const QUrl& target, PageStep step) {
  const bool goes = rules_.MayOpen(target, url(), step);
  Q_EMIT Decided(goes);
  return goes;
}

}  // namespace tessaly
