#ifndef TESSALY_TOOLS_BANK_PAGE_LINKS_H_
#define TESSALY_TOOLS_BANK_PAGE_LINKS_H_

#include "tools/bank/bank_source.h"

namespace tessaly::bank {

// Checks every question's link against the folder of pages: the page must be a file there, and an
// anchor after "#" must be the id or name of something on it.
void CheckPageLinks(const BankSource& bank, const QString& pagesFolder, Findings& findings);

}  // namespace tessaly::bank

#endif  // TESSALY_TOOLS_BANK_PAGE_LINKS_H_
