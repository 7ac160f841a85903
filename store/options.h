#ifndef TESSALY_STORE_OPTIONS_H_
#define TESSALY_STORE_OPTIONS_H_

#include <QString>
#include <cstdint>

namespace tessaly {

inline constexpr int kQuestionFontPoints = 12;
inline constexpr int kSmallQuestionFontPoints = 8;

// The general options, 0 = off and 1 = on, held from start to exit.
struct Options {
  std::uint8_t TimerStatus = 0;
  std::uint8_t AlarmSetting = 0;
  std::uint8_t GraphicStats = 0;
  std::uint8_t DisplaySmallFonts = 0;
  std::uint8_t TipofDay = 0;
  QString PubSource;  // "1" for the local copies of the publications
  std::uint8_t Suppress2587Msg = 0;
  int QuestionFontSize = kQuestionFontPoints;  // points, follows DisplaySmallFonts
};

}  // namespace tessaly

#endif  // TESSALY_STORE_OPTIONS_H_
