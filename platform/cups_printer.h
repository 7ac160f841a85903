#ifndef TESSALY_PLATFORM_CUPS_PRINTER_H_
#define TESSALY_PLATFORM_CUPS_PRINTER_H_

#include <QStringList>

#include "platform/paper.h"
#include "platform/printer.h"

namespace tessaly {

// Prints through the system's printing service (CUPS), by way of the program `tessaly-print`. While
// the service thinks, events are handled: one that hangs does not hang the windows.
class CupsPrinter : public Printer {
public:
  // `programFolder` holds `tessaly-print`.
  explicit CupsPrinter(const QString& programFolder);

  [[nodiscard]] std::unique_ptr<PrintDocument> BeginDocument(const QString& title) override;

  // The default printer's; raises 482 as BeginDocument does.
  [[nodiscard]] Paper DefaultPaper();
  // Prints a finished document, as PrintDocument::End does.
  void PrintPdf(const QString& title, const QByteArray& pdf);

private:
  // Returns what the program printed; raises 482 with its reason.
  QByteArray Run(const QStringList& arguments, const QByteArray& input);

  QString program_;
};

}  // namespace tessaly

#endif  // TESSALY_PLATFORM_CUPS_PRINTER_H_
