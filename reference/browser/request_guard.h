#ifndef TESSALY_REFERENCE_BROWSER_REQUEST_GUARD_H_
#define TESSALY_REFERENCE_BROWSER_REQUEST_GUARD_H_

#include <QWebEngineUrlRequestInterceptor>

#include "reference/page_rules.h"

namespace tessaly {

// Stops what a page may not load, before it is asked for.
class RequestGuard : public QWebEngineUrlRequestInterceptor {
  Q_OBJECT

public:
  explicit RequestGuard(const PageRules& rules) : rules_(rules) {}

  void interceptRequest(QWebEngineUrlRequestInfo& request) override;

private:
  const PageRules& rules_;
};

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_BROWSER_REQUEST_GUARD_H_
