#include "reference/browser/request_guard.h"

namespace tessaly {

// A page that is to take the place of another has passed ReferencePage. What is named as its first
// party is the page before it, which does not count any more.
void RequestGuard::interceptRequest(QWebEngineUrlRequestInfo& request) {
  const QUrl target = request.requestUrl();
  const bool isPage = request.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame;
  if (!rules_.MayLoad(target, isPage ? target : request.firstPartyUrl())) {
    request.block(true);
  }
}

}  // namespace tessaly
