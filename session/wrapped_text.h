#ifndef TESSALY_SESSION_WRAPPED_TEXT_H_
#define TESSALY_SESSION_WRAPPED_TEXT_H_

#include <QString>

namespace tessaly {

class PrintDocument;

// Where a wrapped text stands on the page, in twips.
struct TextBlock {
  int X = 0;
  int Y = 0;
  int MaximumWidth = 0;
  int LowerLimit = 0;  // a line that would reach below it goes to a new page
};

// Prints the text from (X, Y) in lines as long as the width allows, broken at blanks; line breaks
// in it stay. A word that is longer than a line is printed on a line of its own, uncut.
void PrintWrapped(PrintDocument& target, const TextBlock& block, const QString& text);

}  // namespace tessaly

#endif  // TESSALY_SESSION_WRAPPED_TEXT_H_
