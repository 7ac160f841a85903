#ifndef TESSALY_REFERENCE_BROWSER_STATE_H_
#define TESSALY_REFERENCE_BROWSER_STATE_H_

#include <cstdint>

namespace tessaly {

// What the reference browser shows.
inline constexpr std::int16_t kIrsReferences = 0;
inline constexpr std::int16_t kKovrinsPages = 1;
inline constexpr std::int16_t kDefinitions = 2;  // and the application forms

// Which application form it shows.
inline constexpr std::int16_t kNoForm = 0;
inline constexpr std::int16_t kForm2587 = 3;
inline constexpr std::int16_t kForm23 = 4;

// What the commands of the program leave for the browser's window. Closing the window sets all but
// Loaded back.
struct BrowserState {
  std::int16_t Mode = kIrsReferences;
  std::int16_t FormCode = kNoForm;
  bool Research = false;  // opened from a research hint
  bool Loaded = false;    // the window was loaded once; stays set when it is closed
};

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_BROWSER_STATE_H_
