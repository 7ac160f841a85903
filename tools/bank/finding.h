#ifndef TESSALY_TOOLS_BANK_FINDING_H_
#define TESSALY_TOOLS_BANK_FINDING_H_

#include <QString>
#include <vector>

namespace tessaly::bank {

// Where in the sources something was found.
struct Place {
  QString file;    // its name without the folder
  int line = 0;    // 0 where no line can be named
  int number = 0;  // of the question; 0 outside questions
};

// Something wrong with the sources, told to their writer.
struct Finding {
  Place place;
  QString text;
};

using Findings = std::vector<Finding>;

// As compilers write it, "01Part1.yaml:123: question 21: the hint is empty", so that editors can
// jump to it.
[[nodiscard]] QString ToText(const Finding& finding);

}  // namespace tessaly::bank

#endif  // TESSALY_TOOLS_BANK_FINDING_H_
