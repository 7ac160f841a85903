#include "app/program.h"

#include "app/main_window_view.h"
#include "app/version.h"
#include "session/session_commands.h"

using namespace Qt::StringLiterals;

namespace tessaly {

Program::Program(const Platform& platform, const QString& programFolder, MainWindowView& view)
    : platform_(platform),
      selector_(state_, platform.settings, workspace_, view),
      settings_(state_, platform.settings, selector_),
      compaction_(workspace_, platform.files, state_.Paths),
      session_(state_,
               {workspace_, platform.settings, platform.clock, platform.boxes, compaction_,
                settings_, selector_},
               view),
      browser_(state_, platform.browserWindow),
      view_(view) {
  state_.Paths.ProgramFolder = programFolder;
}

void Program::Prepare() {
  BuildDatabasePaths(state_.Paths);
  compaction_.FinishInterrupted();
  settings_.LoadSettings();
  selector_.RefreshStatus();
  LoadSubjectStats(workspace_, state_.Paths, state_.Selection.Mode, state_.Subjects);
}

void Program::ShowStartUpState() {
  selector_.ShowModeCaption();
  DisableSessionCommands(view_);
}

QString VersionCaption() {
  return u"2002"_s + u" Edition (Release "_s + kReleaseNumber + u")"_s;
}

}  // namespace tessaly
