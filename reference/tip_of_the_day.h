#ifndef TESSALY_REFERENCE_TIP_OF_THE_DAY_H_
#define TESSALY_REFERENCE_TIP_OF_THE_DAY_H_

#include <QLatin1StringView>
#include <QString>
#include <QStringList>
#include <cstdint>

namespace tessaly {

class SettingsStore;
struct Options;

// In the program folder: one tip a line, in UTF-8, its lines ended in any way.
inline constexpr QLatin1StringView kTipFileName{"TIPOFDAY.TXT"};

// Whether the user asked for the tip or the program's start would show it.
enum class TipOccasion { Start, Menu };

// The tips in the order of their file, one further each time, and the number of the last one kept
// between runs. A fresh installation begins with the second; the first follows the last.
class TipOfTheDay {
public:
  TipOfTheDay(SettingsStore& settings, Options& options);

  // Reads whether tips show at start-up and, unless that is off and nobody asked for one, the tips
  // of the program folder, and moves on to the next. False when nothing is to be shown. Raises 13
  // or 6 for a setting that is no number, 70 for a file that cannot be read.
  [[nodiscard]] bool Load(const QString& programFolder, TipOccasion occasion);
  // Reads the tips and moves on to the next; false when there is no such file.
  [[nodiscard]] bool LoadTips(const QString& fileName);
  void ShowNextTip();

  // The tip, or what to do about a file that is missing.
  [[nodiscard]] const QString& Text() const { return text_; }
  [[nodiscard]] bool ShowsAtStart() const { return showsAtStart_; }
  // Stored at once.
  void SetShowsAtStart(bool shows);
  // What the dialog ends with: takes the setting over into the options in memory as well.
  void Confirm();

private:
  void DisplayCurrentTip();

  SettingsStore& settings_;
  Options& options_;
  QStringList tips_;
  std::int32_t current_ = 0;  // from 1
  QString text_;
  bool showsAtStart_ = false;
};

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_TIP_OF_THE_DAY_H_
