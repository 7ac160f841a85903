#include "catalogue/study_selection.h"

#include "store/settings_store.h"

using namespace Qt::StringLiterals;

namespace tessaly {

QString TimerSection(std::uint8_t mode) {
  return mode == kTutorialMode ? settings_section::kTutorialTimer
                               : settings_section::kEvaluationTimer;
}

QString TimerKey(const StudySelection& selection) {
  return selection.ExamString + u" - "_s + selection.SectionString;
}

QString SelectionText(const StudySelection& selection, const QString& questionSubject) {
  if (selection.Method == kBySubject) {
    const QString text = u"Study by Subject"_s;
    return selection.Subject.isEmpty() ? text : text + u" - "_s + selection.Subject;
  }
  const QString text = TimerKey(selection);
  return questionSubject.isEmpty() ? text : text + u" ("_s + questionSubject + u")"_s;
}

QString SelectionToolTip(const StudySelection& selection) {
  return selection.Method == kBySubject ? u"Study method and subject being studied"_s
                                        : u"Study method, year, and section being studied"_s;
}

QString ModeCaption(std::uint8_t mode) {
  return mode == kTutorialMode ? u"Tutorial Mode"_s : u"Evaluation Mode"_s;
}

QString TimerText(std::uint8_t method, std::uint8_t timerStatus) {
  if (method == kBySubject) {
    return u"Timer N/A"_s;
  }
  if (method != kByExamSection || timerStatus > 1) {
    return {};
  }
  return timerStatus == 1 ? u"Timer Enabled"_s : u"Timer Disabled"_s;
}

}  // namespace tessaly
