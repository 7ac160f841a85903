#ifndef TESSALY_STATS_STATISTICS_PRINTING_H_
#define TESSALY_STATS_STATISTICS_PRINTING_H_

#include <QLatin1StringView>

namespace tessaly {

class Printer;
struct PrintBlocks;

// What the progress form says meanwhile; also the title of the print job.
inline constexpr QLatin1StringView kPrintingStatistics{"Printing Statistics..."};

// Prints a report's blocks as they stand. Long lists run on to further pages. Raises 482.
void PrintStatistics(const PrintBlocks& blocks, Printer& printer);

}  // namespace tessaly

#endif  // TESSALY_STATS_STATISTICS_PRINTING_H_
