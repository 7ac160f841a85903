#include "reference/browser/page_printing.h"

#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPageLayout>
#include <QPageSize>
#include <QWebEnginePage>

#include "platform/paper.h"
#include "store/runtime_error.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr auto kDoing = "printing the page"_L1;
// A page of text wants more room around it than the printer does.
constexpr double kMarginPoints = 50;

constexpr int kPatienceMilliseconds = 30'000;  // without a byte of the document

bool IsDocument(const QUrl& address) {
  return address.path().endsWith(u".pdf"_s, Qt::CaseInsensitive);
}

QPageLayout LayoutOn(const Paper& paper) {
  const QMarginsF margins =
      paper.Margins | QMarginsF(kMarginPoints, kMarginPoints, kMarginPoints, kMarginPoints);
  return {QPageSize(paper.Size, QPageSize::Point), QPageLayout::Portrait, margins,
          QPageLayout::Point};
}

}  // namespace

PagePrinting::PagePrinting(const QString& programFolder, QWebEnginePage& page)
    : page_(page), printer_(programFolder) {}

void PagePrinting::Print() {
  if (printing_) {
    return;
  }
  SetPrinting(true);
  const bool begun = errors_.Run(kDoing, [this] {
    const QUrl address = page_.url();
    if (!IsDocument(address)) {
      MakeDocument();
    } else if (address.isLocalFile()) {
      ReadDocument(address.toLocalFile());
    } else {
      FetchDocument();
    }
  });
  if (!begun) {
    SetPrinting(false);
  }
}

void PagePrinting::SetPrinting(bool isPrinting) {
  printing_ = isPrinting;
  Q_EMIT Printing(isPrinting);
}

void PagePrinting::MakeDocument() {
  page_.printToPdf([this](const QByteArray& pdf) { Deliver(pdf); },
                   LayoutOn(printer_.DefaultPaper()));
}

void PagePrinting::ReadDocument(const QString& path) {
  QFile file(path);
  Deliver(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
}

// The viewer has the document, and does not hand it out. The engine would fetch it once more as
// well, but does not tell when it cannot.
void PagePrinting::FetchDocument() {
  auto* network = new QNetworkAccessManager(this);
  QNetworkProxyFactory::setUseSystemConfiguration(true);
  QNetworkRequest request(page_.url());
  request.setTransferTimeout(kPatienceMilliseconds);
  QNetworkReply* reply = network->get(request);
  connect(reply, &QNetworkReply::finished, this, [this, network, reply] {
    network->deleteLater();
    Deliver(reply->readAll());
  });
}

void PagePrinting::Deliver(const QByteArray& pdf) {
  errors_.Run(kDoing, [&] {
    if (!pdf.startsWith("%PDF")) {
      throw RuntimeError(ErrorNumber::Printer, u"The page cannot be made into a document."_s);
    }
    printer_.PrintPdf(page_.title(), pdf);
  });
  SetPrinting(false);
}

}  // namespace tessaly
