#ifndef TESSALY_APP_MAIN_WINDOW_COMMANDS_H_
#define TESSALY_APP_MAIN_WINDOW_COMMANDS_H_

#include <QLatin1StringView>
#include <array>
#include <span>

#include "app/main_window_view.h"

namespace tessaly {

// The main window's commands as tables: the menu bar with its captions and shortcuts, and the
// toolbar with the keys that its buttons are dispatched by.

struct MenuItem {
  QLatin1StringView name;     // control name
  QLatin1StringView caption;  // "-" for a separator
  QLatin1StringView shortcut{};
  std::span<const MenuItem> submenu{};
};

struct MenuEntry {
  QLatin1StringView name;
  QLatin1StringView caption;
  std::span<const MenuItem> items;
};

inline constexpr QLatin1StringView kSeparatorCaption{"-"};

[[nodiscard]] std::span<const MenuEntry> MenuBarEntries();
// A context menu that nothing opens, kept for later use.
[[nodiscard]] const MenuEntry& PopUpMenu();

[[nodiscard]] QLatin1StringView NameOf(Command command);

struct ToolButtonEntry {
  ToolButton button = ToolButton::Start;
  QLatin1StringView caption;
  QLatin1StringView key;
  QLatin1StringView description;  // in the Customize dialog; may be empty
  QLatin1StringView toolTip;
  QLatin1StringView picture;  // resource name
};

inline constexpr std::size_t kToolButtonCount = 8;
extern const std::array<ToolButtonEntry, kToolButtonCount> kToolButtons;

// The menu command that a toolbar button's key stands for, compared case-sensitively; empty for a
// key that matches none.
[[nodiscard]] QLatin1StringView CommandOfKey(const QString& key);

}  // namespace tessaly

#endif  // TESSALY_APP_MAIN_WINDOW_COMMANDS_H_
