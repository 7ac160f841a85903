#ifndef TESSALY_SESSION_STUDY_TIMER_H_
#define TESSALY_SESSION_STUDY_TIMER_H_

#include <QDateTime>
#include <QString>
#include <QTime>
#include <cstdint>

namespace tessaly {

class Clock;
class MainWindowView;
class MessageBoxes;
class SettingsStore;
struct ProgramState;

// The study time of an exam section, in seconds, against which the alarm counts.
inline constexpr std::int32_t kSectionLimitSeconds = 10800;

// A number of seconds as the time of day "hh:mm:ss" that they make: whole days are dropped, and a
// negative number reads as its amount.
[[nodiscard]] QString TimeOfDayText(std::int64_t seconds);

// Seconds from a time of day without a date, which lies on the platform's zero date (30 December
// 1899), to a moment. Off by the whole days in between, which the time of day drops again.
[[nodiscard]] std::int64_t SecondsSince(QTime start, const QDateTime& now);

// Measures the study time of a section while a session by exam section runs, shows it, warns once
// when three hours are used up, and keeps it in the settings.
class StudyTimer {
public:
  StudyTimer(ProgramState& state, SettingsStore& settings, Clock& clock, MessageBoxes& boxes,
             MainWindowView& view);

  // Reads the section's stored time and forgets the last session's.
  void LoadSectionTime();
  // Starts ticking where the option is on.
  void Start();
  void Stop();
  // One second's tick; does nothing when studying by subject.
  void Tick();
  // Stores the time that was shown last. A session without one leaves the stored time.
  void SaveSectionTime();

private:
  void ShowRemaining();
  void SaveNowAndThen();

  ProgramState& state_;
  SettingsStore& settings_;
  Clock& clock_;
  MessageBoxes& boxes_;
  MainWindowView& view_;
  QTime sessionStart_;
  QString elapsedText_;
  std::int16_t tickCounter_ = 0;
  QDateTime savedAt_;
};

}  // namespace tessaly

#endif  // TESSALY_SESSION_STUDY_TIMER_H_
