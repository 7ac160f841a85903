#include "session/question_printing.h"

#include <array>

#include "app/main_window_view.h"
#include "app/program_state.h"
#include "catalogue/exam_catalogue.h"
#include "platform/clock.h"
#include "platform/printer.h"
#include "session/wrapped_text.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kHeadingColumn = 5;
constexpr int kSubtitleColumn = 65;
constexpr int kPauseMilliseconds = 1500;
constexpr int kSeparatorLength = 91;

// In twips. The separator, the widest line, fits between the margins of a letter page.
constexpr int kLeft = 5;
constexpr int kQuestionTop = 1300;
constexpr int kSeparatorTop = 7400;
constexpr int kExplanationTop = 7900;
constexpr int kHintTop = 14000;
constexpr int kAnswerTop = 14500;
constexpr int kRightMargin = 500;
constexpr int kFootMargin = 10;

// Puts a text at a column of a fixed-pitch font; the first is 1.
QString AtColumn(int column, const QString& before, const QString& text) {
  return before.leftJustified(column - 1) + text;
}

QString AnswerOf(int answerNumber, bool trueFalse) {
  static constexpr std::array kLetters{"A"_L1, "B"_L1, "C"_L1, "D"_L1};
  static constexpr std::array kTruths{"True"_L1, "False"_L1};
  const auto index = static_cast<std::size_t>(answerNumber);
  if (trueFalse && index < kTruths.size()) {
    return kTruths[index];
  }
  return index < kLetters.size() ? kLetters[index] : QLatin1StringView();
}

template <typename Entries>
QString PrintCaptionOf(const Entries& entries, int index) {
  const auto place = static_cast<std::size_t>(index);
  return place < entries.size() ? entries[place].printCaption : QLatin1StringView();
}

void PrintHeading(const PrintedQuestion& question, PrintDocument& page) {
  page.SetFont({u"Courier New"_s, 8});
  page.Print(AtColumn(kSubtitleColumn, AtColumn(kHeadingColumn, {}, u"Tessaly by Tessaly Press"_s),
                      u"Study Software for the Special Enrollment Exam"_s));
  page.Print({});
  page.Print({});
  page.SetFont({u"Courier New"_s, 10});
  page.Print(AtColumn(kHeadingColumn, {}, question.Exam + QString(5, u' ') + question.Part));
  page.Print({});
  page.Print(u"Question #"_s + question.Number);
  page.Print({});
}

void PrintBlock(PrintDocument& page, int top, const QString& text) {
  PrintWrapped(page, {kLeft, top, page.Width() - kRightMargin, page.Height() - kFootMargin}, text);
}

}  // namespace

PrintedQuestion QuestionOnScreen(const ProgramState& state, const MainWindowView& view) {
  return {PrintCaptionOf(kExams, state.Selection.Exam),
          PrintCaptionOf(kParts, state.Selection.Section),
          view.BoxText(Box::txtQNo),
          view.BoxText(Box::txtQuestion),
          view.BoxText(Box::txtAnswer),
          view.BoxText(Box::txtHintLink),
          AnswerOf(view.BoxText(Box::txtAnswerNumber).toInt(), state.TrueFalse)};
}

QString PrintingText(const PrintedQuestion& question) {
  return u"Printing Question #"_s + question.Number + u" from "_s + question.Part;
}

void PrintQuestion(const PrintedQuestion& question, Printer& printer, Clock& clock) {
  const auto page = printer.BeginDocument(PrintingText(question));
  PrintHeading(question, *page);
  PrintBlock(*page, kQuestionTop, question.Question);
  // Long enough for the user to read what is being printed.
  clock.Wait(kPauseMilliseconds);
  PrintBlock(*page, kSeparatorTop, QString(kSeparatorLength, u'-'));
  PrintBlock(*page, kExplanationTop, u"Explanation: "_s + question.Explanation);
  PrintBlock(*page, kHintTop, u"Hint: "_s + question.Hint);
  PrintBlock(*page, kAnswerTop, u"Answer: "_s + question.Answer);
  page->End();
}

}  // namespace tessaly
