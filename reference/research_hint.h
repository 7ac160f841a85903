#ifndef TESSALY_REFERENCE_RESEARCH_HINT_H_
#define TESSALY_REFERENCE_RESEARCH_HINT_H_

#include <QString>

namespace tessaly {

class MainWindowView;
struct ProgramState;

// Where the answer to a question can be researched; empty where the bank does not say.
struct ResearchReference {
  QString Hint;  // publication and section, for the reader
  QString Link;  // file name of a page in "pubs", may carry an anchor
};

// Puts the question's research hint into its box and keeps its link. A question without a link
// leaves the link of the last question that had one, so that its page can still be opened.
void LoadResearchHint(const ResearchReference& reference, ProgramState& state,
                      MainWindowView& view);

// What the dialog is to show: the hint on screen, or that there is none.
[[nodiscard]] QString HintToShow(const MainWindowView& view);
// The Research command: takes itself out of menu and toolbar and returns what the dialog is to
// show.
[[nodiscard]] QString BeginResearch(MainWindowView& view);
// The dialog has been closed: the toolbar's command can be used again while a session runs. The
// menu item comes back with the next question.
void EndResearch(MainWindowView& view, bool sessionRuns);

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_RESEARCH_HINT_H_
