#ifndef TESSALY_BENCH_BENCH_BANK_H_
#define TESSALY_BENCH_BENCH_BANK_H_

#include "tests/support/test_bank.h"

namespace tessaly::bench {

inline constexpr int kExaminationRows = 80;
inline constexpr int kGrownRows = 32000;

// Fills all 24 tables of both files with this many questions of the length that real ones have
// (about 1,100 characters), the subjects in turn.
void FillBank(test::TestBank& bank, int rowsATable);

}  // namespace tessaly::bench

#endif  // TESSALY_BENCH_BENCH_BANK_H_
