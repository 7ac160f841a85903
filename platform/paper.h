#ifndef TESSALY_PLATFORM_PAPER_H_
#define TESSALY_PLATFORM_PAPER_H_

#include <QMarginsF>
#include <QSizeF>

namespace tessaly {

// A sheet of paper; all in points.
struct Paper {
  QSizeF Size;
  QMarginsF Margins;  // where the printer cannot print
};

}  // namespace tessaly

#endif  // TESSALY_PLATFORM_PAPER_H_
