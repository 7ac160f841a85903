#ifndef TESSALY_PLATFORM_PRINTER_H_
#define TESSALY_PLATFORM_PRINTER_H_

#include <QString>
#include <memory>

namespace tessaly {

struct PrintFont {
  QString Name;
  int Points = 10;
  bool Bold = false;
};

// A document on its way to the printer. Positions and sizes are twips from the upper left corner of
// the page's printable area. A document that is destroyed before its end prints nothing.
class PrintDocument {
public:
  PrintDocument() = default;
  PrintDocument(const PrintDocument&) = delete;
  PrintDocument& operator=(const PrintDocument&) = delete;
  virtual ~PrintDocument() = default;

  // Of the printable area.
  [[nodiscard]] virtual int Width() const = 0;
  [[nodiscard]] virtual int Height() const = 0;

  virtual void SetFont(const PrintFont& font) = 0;
  // In the current font; of a text with line breaks, the width of its longest line.
  [[nodiscard]] virtual int TextWidth(const QString& text) const = 0;
  [[nodiscard]] virtual int LineHeight() const = 0;

  virtual void MoveTo(int x, int y) = 0;
  [[nodiscard]] virtual int CurrentY() const = 0;
  // Prints the text at the current position, each of its lines below the one before, and goes to
  // the beginning of the next line. A line that no longer fits the page goes to a new one.
  virtual void Print(const QString& text) = 0;
  virtual void NewPage() = 0;

  // Sends the document to the printer and waits a while for what becomes of it, handling events.
  // Raises 482 where it cannot be printed; once.
  virtual void End() = 0;
};

// The system's default printer.
class Printer {
public:
  Printer() = default;
  Printer(const Printer&) = delete;
  Printer& operator=(const Printer&) = delete;
  virtual ~Printer() = default;

  // `title` names the job in the printer's queue. Raises 482, with the reason, where there is no
  // default printer or its queue is stopped or rejects jobs.
  [[nodiscard]] virtual std::unique_ptr<PrintDocument> BeginDocument(const QString& title) = 0;
};

}  // namespace tessaly

#endif  // TESSALY_PLATFORM_PRINTER_H_
