#include "session/session_commands.h"

#include <array>

#include "app/main_window_view.h"

namespace tessaly {

namespace {

// What an idle program offers and a running session does not.
constexpr std::array kIdleCommands{
    Command::mnuFileBegin,   Command::mnuViewStats,       Command::mnuFileExport,
    Command::mnuFileImport,  Command::mnuStatsReset,      Command::mnuUpdates,
    Command::mnuViewOptions, Command::mnuViewExamChoices, Command::mnuFileExit,
    Command::mnuHelpAbout,
};
constexpr std::array kIdleButtons{ToolButton::Start, ToolButton::Mode, ToolButton::Settings,
                                  ToolButton::Stats};

constexpr std::array kSessionCommands{Command::mnuFileClose, Command::mnuFilePrint,
                                      Command::mnuFileResearch};
constexpr std::array kSessionButtons{ToolButton::Stop, ToolButton::Hint, ToolButton::Print};

void EnableSessionCommands(MainWindowView& view, bool enabled) {
  for (const Command command : kSessionCommands) {
    view.EnableCommand(command, enabled);
  }
  for (const ToolButton button : kSessionButtons) {
    view.EnableToolButton(button, enabled);
  }
  // Next waits for an answer, in a running session as well.
  view.EnableCommand(Command::mnuFileNext, false);
  view.EnableToolButton(ToolButton::Next, false);
}

void EnableAll(MainWindowView& view, bool running) {
  for (const Command command : kIdleCommands) {
    view.EnableCommand(command, !running);
  }
  for (const ToolButton button : kIdleButtons) {
    view.EnableToolButton(button, !running);
  }
  EnableSessionCommands(view, running);
}

}  // namespace

void EnableRunningCommands(MainWindowView& view) {
  EnableAll(view, true);
}

void EnableIdleCommands(MainWindowView& view) {
  EnableAll(view, false);
}

void DisableSessionCommands(MainWindowView& view) {
  EnableSessionCommands(view, false);
}

}  // namespace tessaly
