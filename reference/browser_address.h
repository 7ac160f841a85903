#ifndef TESSALY_REFERENCE_BROWSER_ADDRESS_H_
#define TESSALY_REFERENCE_BROWSER_ADDRESS_H_

#include <QLatin1StringView>
#include <QUrl>
#include <cstdint>

namespace tessaly {

struct ProgramState;

// Where the reference browser goes. Pages on the disk lie in the program folder, publications and
// application forms on the web in one folder of the IRS. An address that is not valid means none.

inline constexpr QLatin1StringView kIrsPdfFolder{"https://www.irs.gov/pub/irs-pdf/"};

// The page that the browser's mode asks for. With a research link, the publication on the disk or
// on the web; without one, or where the link would lead out of the publications' folder, the page
// that says that there is none. Raises 13 or 6 when the setting PubSource is no number.
[[nodiscard]] QUrl AddressOfMode(const ProgramState& state);

// The list of publications on the disk, or the one that leads to the web, as the setting says.
// Raises like AddressOfMode.
[[nodiscard]] QUrl PublicationsMenu(const ProgramState& state);

[[nodiscard]] QUrl KovrinsStartPage(const ProgramState& state);

// The application form on the web; none for another code.
[[nodiscard]] QUrl AddressOfForm(std::int16_t formCode);

// The IRS folder holds documents only: where a page of the folder is not to be found, the document
// of the same name is. None for every other address.
[[nodiscard]] QUrl DocumentInsteadOfPage(const QUrl& address);

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_BROWSER_ADDRESS_H_
