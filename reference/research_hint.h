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

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_RESEARCH_HINT_H_
