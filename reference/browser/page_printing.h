#ifndef TESSALY_REFERENCE_BROWSER_PAGE_PRINTING_H_
#define TESSALY_REFERENCE_BROWSER_PAGE_PRINTING_H_

#include <QObject>

#include "app/error_boundary.h"
#include "platform/cups_printer.h"
#include "platform/qt_message_boxes.h"

class QWebEnginePage;

namespace tessaly {

// Prints what a page shows: a page of text on the default printer's own paper, a document (PDF) as
// it is, without the viewer around it. What fails is told in a box.
class PagePrinting : public QObject {
  Q_OBJECT

public:
  // `programFolder` holds `tessaly-print`.
  PagePrinting(const QString& programFolder, QWebEnginePage& page);

  // Does nothing while a page is being printed.
  void Print();

Q_SIGNALS:
  void Printing(bool isPrinting);

private:
  void SetPrinting(bool isPrinting);
  void MakeDocument();
  void ReadDocument(const QString& path);
  void FetchDocument();
  // Prints it, or tells why there is none.
  void Deliver(const QByteArray& pdf);

  QWebEnginePage& page_;
  CupsPrinter printer_;
  QtMessageBoxes boxes_;
  ErrorBoundary errors_{boxes_};
  bool printing_ = false;
};

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_BROWSER_PAGE_PRINTING_H_
