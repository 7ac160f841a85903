#include "session/study_timer.h"

#include <cstdlib>

#include "app/main_window_view.h"
#include "app/program_state.h"
#include "platform/clock.h"
#include "platform/message_boxes.h"
#include "store/conversions.h"
#include "store/settings_store.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kTickMilliseconds = 1000;
constexpr std::int64_t kSecondsADay = 86400;
// A session that is killed loses no more than this of its study time.
constexpr qint64 kSaveEverySeconds = 15;

std::int64_t StoredSeconds(const SectionTime& time) {
  return ToLong(time.Stored, u"study time"_s);
}

}  // namespace

QString TimeOfDayText(std::int64_t seconds) {
  const auto ofDay = static_cast<int>(std::abs(seconds) % kSecondsADay);
  return QTime(0, 0).addSecs(ofDay).toString(u"hh:mm:ss"_s);
}

std::int64_t SecondsSince(QTime start, const QDateTime& now) {
  const QDate zeroDate(1899, 12, 30);
  return zeroDate.daysTo(now.date()) * kSecondsADay + now.time().msecsSinceStartOfDay() / 1000 -
         start.msecsSinceStartOfDay() / 1000;
}

StudyTimer::StudyTimer(ProgramState& state, SettingsStore& settings, Clock& clock,
                       MessageBoxes& boxes, MainWindowView& view)
    : state_(state), settings_(settings), clock_(clock), boxes_(boxes), view_(view) {}

void StudyTimer::LoadSectionTime() {
  state_.Time.Stored =
      settings_.Read(TimerSection(state_.Selection.Mode), TimerKey(state_.Selection), {});
  elapsedText_.clear();
  tickCounter_ = 0;
}

void StudyTimer::Start() {
  if (state_.ProgramOptions.TimerStatus != 1) {
    return;
  }
  elapsedText_.clear();
  view_.StartTestTimer(kTickMilliseconds);
  savedAt_ = clock_.Now();
  sessionStart_ = savedAt_.time();
}

void StudyTimer::Stop() {
  view_.StopTestTimer();
}

void StudyTimer::Tick() {
  if (state_.Selection.Method != kByExamSection) {
    return;
  }
  if (state_.Time.Stored.isEmpty()) {
    state_.Time.Stored = u"0"_s;
  }
  elapsedText_ =
      TimeOfDayText(StoredSeconds(state_.Time) + SecondsSince(sessionStart_, clock_.Now()));
  SaveNowAndThen();
  if (state_.ProgramOptions.AlarmSetting == 0) {
    view_.SetPanelText(Panel::Timer, u"Time Elapsed: "_s + elapsedText_);
  } else {
    ShowRemaining();
  }
}

void StudyTimer::SaveSectionTime() {
  if (elapsedText_.isEmpty()) {
    return;
  }
  const QTime elapsed = QTime::fromString(elapsedText_, u"hh:mm:ss"_s);
  settings_.Write(TimerSection(state_.Selection.Mode), TimerKey(state_.Selection),
                  QString::number(QTime(0, 0).secsTo(elapsed)));
}

// Counts ticks instead of reading the clock, so that the warning comes at a tick of its own.
void StudyTimer::ShowRemaining() {
  tickCounter_ = CheckedAdd(tickCounter_, 1);
  if (state_.Time.Exceeded) {
    view_.SetPanelText(Panel::Timer, u"Study time has exceeded three hours"_s);
    return;
  }
  const std::int64_t remaining = kSectionLimitSeconds - StoredSeconds(state_.Time) - tickCounter_;
  view_.SetPanelText(Panel::Timer, u"Time Remaining: "_s + TimeOfDayText(remaining));
  if (remaining == 0) {
    // Set first: the timer goes on ticking while the message is open.
    state_.Time.Exceeded = true;
    boxes_.ShowMessage(u"Study time for this section has exceeded three hours"_s,
                       kApplicationTitle);
  }
}

void StudyTimer::SaveNowAndThen() {
  const QDateTime now = clock_.Now();
  // A clock set back counts as well.
  if (std::abs(savedAt_.secsTo(now)) >= kSaveEverySeconds) {
    savedAt_ = now;
    SaveSectionTime();
  }
}

}  // namespace tessaly
