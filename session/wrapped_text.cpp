#include "session/wrapped_text.h"

#include "platform/printer.h"

namespace tessaly {

namespace {

// The length of the first line of a text that does not fit on one.
qsizetype FirstLineLength(const PrintDocument& target, const QString& text, int maximumWidth) {
  qsizetype fits = -1;
  qsizetype blank = text.indexOf(u' ');
  const qsizetype firstWord = blank < 0 ? text.size() : blank;
  while (blank >= 0 && target.TextWidth(text.left(blank)) <= maximumWidth) {
    fits = blank;
    blank = text.indexOf(u' ', blank + 1);
  }
  return fits < 0 ? firstWord : fits;
}

qsizetype LeadingBlanks(const QString& text) {
  qsizetype count = 0;
  while (count < text.size() && text[count] == u' ') {
    ++count;
  }
  return count;
}

void PrintLine(PrintDocument& target, const TextBlock& block, const QString& line) {
  if (target.CurrentY() + target.LineHeight() > block.LowerLimit) {
    target.NewPage();
  }
  target.MoveTo(block.X, target.CurrentY());
  target.Print(line);
}

}  // namespace

void PrintWrapped(PrintDocument& target, const TextBlock& block, const QString& text) {
  target.MoveTo(block.X, block.Y);
  QString rest = text;
  while (target.TextWidth(rest) > block.MaximumWidth) {
    const qsizetype length = FirstLineLength(target, rest, block.MaximumWidth);
    PrintLine(target, block, rest.left(length));
    rest.remove(0, length);
    rest.remove(0, LeadingBlanks(rest));
  }
  if (!rest.isEmpty()) {
    PrintLine(target, block, rest);
  }
}

}  // namespace tessaly
