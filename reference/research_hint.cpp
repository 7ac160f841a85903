#include "reference/research_hint.h"

#include "app/main_window_view.h"
#include "app/program_state.h"

using namespace Qt::StringLiterals;

namespace tessaly {

void LoadResearchHint(const ResearchReference& reference, ProgramState& state,
                      MainWindowView& view) {
  view.SetBoxText(Box::txtHintLink, reference.Hint.isEmpty()
                                        ? u"The research link for this question is not "
                                          u"available in the current database release."_s
                                        : reference.Hint);
  if (!reference.Link.isEmpty()) {
    state.ResearchLink = reference.Link;
  }
}

QString HintToShow(const MainWindowView& view) {
  const QString hint = view.BoxText(Box::txtHintLink);
  // Worded differently from the text for a question without a hint.
  return hint.isEmpty() ? u"The research link for this question is not available in this database "
                          u"release"_s
                        : hint;
}

QString BeginResearch(MainWindowView& view) {
  view.EnableToolButton(ToolButton::Hint, false);
  view.EnableCommand(Command::mnuFileResearch, false);
  return HintToShow(view);
}

void EndResearch(MainWindowView& view, bool sessionRuns) {
  if (sessionRuns) {
    view.EnableToolButton(ToolButton::Hint, true);
  }
}

}  // namespace tessaly
