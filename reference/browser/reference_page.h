#ifndef TESSALY_REFERENCE_BROWSER_REFERENCE_PAGE_H_
#define TESSALY_REFERENCE_BROWSER_REFERENCE_PAGE_H_

#include <QWebEnginePage>

#include "reference/page_rules.h"

class QWebEngineNewWindowRequest;

namespace tessaly {

// A page of the reference browser: goes where the rules let it go, and runs scripts only where they
// allow it.
class ReferencePage : public QWebEnginePage {
  Q_OBJECT

public:
  ReferencePage(const PageRules& rules, QWebEngineProfile* profile, QObject* parent);

Q_SIGNALS:
  // Whether the page goes where it was asked to go, by whomever.
  void Decided(bool goes);

protected:
  bool acceptNavigationRequest(const QUrl& target, NavigationType type, bool isMainFrame) override;
  void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message,
                                int line, const QString& source) override;

private:
  // There is one window; what asks for another opens in it.
  void OpenHere(QWebEngineNewWindowRequest& request);
  [[nodiscard]] bool Decide(const QUrl& target, PageStep step);

  const PageRules& rules_;
};

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_BROWSER_REFERENCE_PAGE_H_
