#include "reference/reference_browser.h"

#include "app/program_state.h"
#include "reference/browser_address.h"
#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kHttpNotFound = 404;

}  // namespace

ReferenceBrowser::ReferenceBrowser(ProgramState& state, BrowserWindow& window)
    : state_(state), window_(window) {
  window_.SetEvents(*this);
}

void ReferenceBrowser::OpenReferences() {
  state_.Browser.Mode = kIrsReferences;
  Open();
  ShowWithList(u"Pub List"_s);
}

void ReferenceBrowser::OpenKovrins() {
  state_.Browser.Mode = kKovrinsPages;
  Open();
  ShowWithList(u"Kovrin List"_s);
}

void ReferenceBrowser::OpenDefinitions() {
  state_.Browser.Mode = kDefinitions;
  Open();
  ShowWithList(u"Definition List"_s);
}

void ReferenceBrowser::OpenResearch() {
  state_.Browser.Research = true;
  OpenReferences();
}

void ReferenceBrowser::OpenForm(std::int16_t formCode) {
  state_.Browser.Mode = kDefinitions;
  if (!state_.Browser.Loaded) {
    Form_Load();
  }
  state_.Browser.FormCode = formCode;
  NavigateApplicationForm();
  ShowWithList(u"Pub List"_s);
}

void ReferenceBrowser::NavigateReferenceBrowser() {
  EnsureLoaded();
  shown_.listVisible = state_.Browser.Mode != kDefinitions;
  window_.ShowListButton(shown_.listVisible);
  Navigate(AddressOfMode(state_));
}

void ReferenceBrowser::NavigateApplicationForm() {
  EnsureLoaded();
  Navigate(AddressOfForm(state_.Browser.FormCode));
}

void ReferenceBrowser::cmdPubList_Click() {
  Navigate(state_.Browser.Mode == kKovrinsPages ? KovrinsStartPage(state_)
                                                : PublicationsMenu(state_));
}

void ReferenceBrowser::cmdClose_Click() {
  ResetState();
  window_.Unload();
}

void ReferenceBrowser::timTimer_Timer(bool busy, const QString& locationName) {
  if (busy) {
    window_.SetCaption(u"Working..."_s);
    return;
  }
  window_.EnableTimer(false);
  window_.SetCaption(locationName);
}

void ReferenceBrowser::NavigateComplete(const QString& locationName) {
  window_.SetCaption(locationName);
}

void ReferenceBrowser::DocumentComplete(const QString& locationName, const QUrl& address,
                                        int httpStatus) {
  awaitingPage_ = false;
  broughtBack_ = false;
  window_.SetCaption(locationName);
  const QUrl document = DocumentInsteadOfPage(address);
  if (httpStatus == kHttpNotFound && document.isValid()) {
    Navigate(document);
  }
}

void ReferenceBrowser::WindowGone(bool pageLost) {
  const bool neverShown = awaitingPage_;
  if ((neverShown || pageLost) && !broughtBack_) {
    broughtBack_ = true;
    ShowAgain();
    return;
  }
  ResetState();
  if (neverShown) {
    throw RuntimeError(ErrorNumber::CannotCreateObject,
                       u"The reference browser ended twice before it could show the page."_s);
  }
}

void ReferenceBrowser::Open() {
  if (state_.Browser.Loaded) {
    NavigateReferenceBrowser();
  } else {
    Form_Load();
  }
}

void ReferenceBrowser::Form_Load() {
  const QUrl startAddress = AddressOfMode(state_);
  window_.Load();
  shown_ = {};
  awaitingPage_ = false;
  broughtBack_ = false;
  if (startAddress.isValid()) {
    window_.EnableTimer(true);
    Navigate(startAddress);
  }
  state_.Browser.Loaded = true;
}

void ReferenceBrowser::EnsureLoaded() {
  if (!window_.IsLoaded()) {
    Form_Load();
  }
}

// A page that is on its way already is not asked for again.
void ReferenceBrowser::Navigate(const QUrl& address) {
  if (!address.isValid() || (awaitingPage_ && address == shown_.address)) {
    return;
  }
  shown_.address = address;
  awaitingPage_ = true;
  window_.Navigate(address);
}

void ReferenceBrowser::ShowWithList(const QString& listCaption) {
  shown_.listCaption = listCaption;
  window_.SetListCaption(listCaption);
  window_.Show();
}

void ReferenceBrowser::ShowAgain() {
  window_.Load();
  window_.EnableTimer(true);
  window_.ShowListButton(shown_.listVisible);
  awaitingPage_ = false;
  Navigate(shown_.address);
  ShowWithList(shown_.listCaption);
}

void ReferenceBrowser::ResetState() {
  state_.Browser = {.Loaded = state_.Browser.Loaded};
  awaitingPage_ = false;
}

}  // namespace tessaly
