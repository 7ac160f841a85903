#include "app/main_window_commands.h"

#include <QString>
#include <cstddef>

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr auto kLine = kSeparatorCaption;

constexpr std::array kFileItems{
    MenuItem{"mnuFileBegin"_L1, "&Begin Session"_L1, "Ctrl+B"_L1},
    MenuItem{"mnuFileNext"_L1, "&Next Question"_L1, "Ctrl+N"_L1},
    MenuItem{"mnuFileClose"_L1, "&End Session"_L1, "Ctrl+E"_L1},
    MenuItem{"mnuFilePrint"_L1, "&Print"_L1, "Ctrl+P"_L1},
    MenuItem{"mnuFileResearch"_L1, "Research"_L1, "Ctrl+R"_L1},
    MenuItem{"divider6"_L1, kLine},
    MenuItem{"mnuUpdates"_L1, "&Update Tessaly..."_L1},
    MenuItem{"mnuFileExit"_L1, "E&xit"_L1, "Ctrl+X"_L1},
};

constexpr std::array kOptionsItems{
    MenuItem{"mnuViewExamChoices"_L1, "Study Mode Wizard..."_L1, "Ctrl+M"_L1},
    MenuItem{"mnuViewOptions"_L1, "&General Settings..."_L1, "Ctrl+S"_L1},
    MenuItem{"mnuOptionsNavBar"_L1, "Customize Navigation Bar"_L1},
    MenuItem{"mnuOptionsTip"_L1, "Display Next Tip of the Day"_L1},
    MenuItem{"mnuViewStatusBar"_L1, "Status &Bar"_L1},
};

constexpr std::array kStatisticsItems{
    MenuItem{"mnuFileExport"_L1, "Back Up Statistics..."_L1},
    MenuItem{"mnuFileImport"_L1, "Restore Statistics..."_L1},
    MenuItem{"div"_L1, kLine},
    MenuItem{"mnuViewStats"_L1, "View Statistics..."_L1, "Ctrl+A"_L1},
    MenuItem{"mnuStatsReset"_L1, "Reset Statistics..."_L1},
};

constexpr std::array kWebLinkItems{
    MenuItem{"mnuHomePage"_L1, "Tessaly Home Page"_L1},
    MenuItem{"mnuSupportPage"_L1, "Tessaly Support Page"_L1},
    MenuItem{"mnuCandidateResources"_L1, "Enrolled Agent Candidate Resources"_L1},
    MenuItem{"mnuWebBugs"_L1, "Bug Report/Enhancement Suggestion"_L1},
    MenuItem{"mnuMakerHome"_L1, "Tessaly Press Home Page"_L1},
    MenuItem{"divider4"_L1, kLine},
    MenuItem{"mnuEmail"_L1, "Tessaly Support Request"_L1},
    MenuItem{"divider3"_L1, kLine},
    MenuItem{"mnuPubs"_L1, "IRS Forms and  Pubs on the Web"_L1},
    MenuItem{"mnuAdobe"_L1, "Adobe Acrobat Reader Download Page"_L1},
};

constexpr std::array kHelpItems{
    MenuItem{"mnuHelpContents"_L1, "&Contents"_L1},
    MenuItem{"break"_L1, kLine},
    MenuItem{"mnuHelpPubs"_L1, "IRS References"_L1},
    MenuItem{"mnuHelpKovrins"_L1, "Kovrins"_L1},
    MenuItem{"mnuHelpGlossary"_L1, "Definitions"_L1},
    MenuItem{"break2"_L1, kLine},
    MenuItem{"mnu2587"_L1, "Exam Application"_L1},
    MenuItem{"mnu23"_L1, "Practice Application"_L1},
    MenuItem{"mnudash"_L1, kLine},
    MenuItem{"mnuHelpWebLinks"_L1, "Web Links"_L1, {}, kWebLinkItems},
    MenuItem{"mnuHelpAbout"_L1, "&About Tessaly..."_L1},
};

constexpr std::array kMenuBar{
    MenuEntry{"mnuFile"_L1, "&File"_L1, kFileItems},
    MenuEntry{"mnuView"_L1, "&Options"_L1, kOptionsItems},
    MenuEntry{"mnuStats"_L1, "St&atistics"_L1, kStatisticsItems},
    MenuEntry{"mnuHelp"_L1, "&Help"_L1, kHelpItems},
};

constexpr std::array kPopUpItems{
    MenuItem{"mnuPopupTrue"_L1, "True"_L1}, MenuItem{"mnuPopupFalse"_L1, "False"_L1},
    MenuItem{"mnuPopupA"_L1, "A."_L1},      MenuItem{"mnuPopupB"_L1, "B."_L1},
    MenuItem{"mnuPopupC"_L1, "C."_L1},      MenuItem{"mnuPopupD"_L1, "D."_L1},
    MenuItem{"mnuPopupNext"_L1, "Next"_L1}, MenuItem{"mnuPopupSkip"_L1, "Skip"_L1},
    MenuItem{"mnuPopupHint"_L1, "Hint"_L1},
};

constexpr MenuEntry kPopUpMenu{"PopUp"_L1, "PopUp"_L1, kPopUpItems};

// In the order of the enumeration.
constexpr std::array kCommandNames{
    "mnuFileBegin"_L1,    "mnuFileNext"_L1,   "mnuFileClose"_L1,  "mnuFilePrint"_L1,
    "mnuFileResearch"_L1, "mnuUpdates"_L1,    "mnuFileExit"_L1,   "mnuViewExamChoices"_L1,
    "mnuViewOptions"_L1,  "mnuFileExport"_L1, "mnuFileImport"_L1, "mnuViewStats"_L1,
    "mnuStatsReset"_L1,   "mnuHelpAbout"_L1,
};

struct KeyEntry {
  QLatin1StringView key;
  QLatin1StringView command;
};

constexpr std::array kCommandsByKey{
    KeyEntry{"Start"_L1, "mnuFileBegin"_L1},      KeyEntry{"Stop"_L1, "mnuFileClose"_L1},
    KeyEntry{"Hint"_L1, "mnuFileResearch"_L1},    KeyEntry{"Print"_L1, "mnuFilePrint"_L1},
    KeyEntry{"Next"_L1, "mnuFileNext"_L1},        KeyEntry{"Mode"_L1, "mnuViewExamChoices"_L1},
    KeyEntry{"Settings"_L1, "mnuViewOptions"_L1}, KeyEntry{"Stats"_L1, "mnuViewStats"_L1},
};

}  // namespace

const std::array<ToolButtonEntry, kToolButtonCount> kToolButtons{{
    {ToolButton::Start, "Begin"_L1, "Start"_L1, "Begin Study Session"_L1,
     "Begin a new study session"_L1, "begin"_L1},
    {ToolButton::Stop, "End"_L1, "Stop"_L1, "End Study Session"_L1,
     "End the current study session"_L1, "end"_L1},
    {ToolButton::Hint, "Research"_L1, "Hint"_L1, "Research!"_L1,
     "Find where to research the answer"_L1, "research"_L1},
    {ToolButton::Print, "Print"_L1, "Print"_L1, "Print Question"_L1,
     "Print the current question"_L1, "print"_L1},
    {ToolButton::Mode, "Study Mode"_L1, "Mode"_L1, "Study Mode Wizard"_L1, "Select a study mode"_L1,
     "study_mode"_L1},
    {ToolButton::Settings, "Settings"_L1, "Settings"_L1, "General Program Settings"_L1,
     "Change general program preferences"_L1, "settings"_L1},
    {ToolButton::Stats, "View Stats"_L1, "Stats"_L1, "Statistics"_L1, "View study statistics"_L1,
     "statistics"_L1},
    {ToolButton::Next, "Next"_L1, "Next"_L1, {}, "Next Question"_L1, "next"_L1},
}};

std::span<const MenuEntry> MenuBarEntries() {
  return kMenuBar;
}

const MenuEntry& PopUpMenu() {
  return kPopUpMenu;
}

QLatin1StringView NameOf(Command command) {
  return kCommandNames[static_cast<std::size_t>(command)];
}

QLatin1StringView CommandOfKey(const QString& key) {
  for (const KeyEntry& entry : kCommandsByKey) {
    if (entry.key == key) {
      return entry.command;
    }
  }
  return {};
}

}  // namespace tessaly
