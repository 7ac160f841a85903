#include "tools/bank/checks.h"

#include <QSet>
#include <algorithm>
#include <array>

#include "stats/subject_statistics.h"
#include "tools/bank/question_text.h"

using namespace Qt::StringLiterals;

namespace tessaly::bank {

namespace {

constexpr qsizetype kLongestSubject = 67;

// A newline divides the lines of a text; it is no character of it.
bool IsPrintable(QChar character) {
  return (character >= u' ' && character <= u'~') || character == u'\n';
}

void CheckCharacters(const Place& place, QLatin1StringView name, const QString& text,
                     Findings& findings) {
  const auto* found = std::find_if_not(text.cbegin(), text.cend(), IsPrintable);
  if (found != text.cend()) {
    const QString code =
        QString::number(found->unicode(), 16).toUpper().rightJustified(4, QLatin1Char('0'));
    findings.push_back(
        {place, u"the %1 has a character outside printable ASCII, U+%2"_s.arg(name, code)});
  }
}

void CheckNotEmpty(const Place& place, QLatin1StringView name, const QString& text,
                   Findings& findings) {
  if (text.trimmed().isEmpty()) {
    findings.push_back({place, u"the %1 is missing or empty"_s.arg(name)});
  }
}

void CheckText(const Place& place, QLatin1StringView name, const QString& text,
               Findings& findings) {
  CheckNotEmpty(place, name, text, findings);
  CheckCharacters(place, name, text, findings);
}

void CheckAnswer(const Place& place, const QString& answer, bool trueFalse, Findings& findings) {
  if (!AnswerNumberOf(answer, trueFalse)) {
    findings.push_back({place, u"the answer '%1' is not %2"_s.arg(
                                   answer, trueFalse ? u"True or False"_s : u"one of A to D"_s)});
  }
}

void CheckChoices(const Place& place, const QuestionText& text, bool trueFalse,
                  Findings& findings) {
  QString letters;
  QStringList texts;
  for (const Choice& choice : text.choices) {
    letters += choice.letter;
    if (choice.text.isEmpty()) {
      findings.push_back({place, u"choice %1 is empty"_s.arg(choice.letter)});
    } else if (texts.contains(choice.text)) {
      findings.push_back({place, u"choice %1 repeats another"_s.arg(choice.letter)});
    }
    texts.append(choice.text);
  }
  if (trueFalse && !letters.isEmpty()) {
    findings.push_back({place, u"a True/False question has no choices"_s});
  }
  if (!trueFalse && letters != "ABCD"_L1) {
    findings.push_back({place, letters.isEmpty()
                                   ? u"the last paragraph is not the choices A to D"_s
                                   : u"the choices are %1 and not ABCD"_s.arg(letters)});
  }
}

void CheckQuestion(const Place& place, const QuestionSource& question, bool trueFalse,
                   const QSet<QString>& subjects, Findings& findings) {
  CheckAnswer(place, question.answer, trueFalse, findings);
  const QuestionText text = SplitQuestion(question.question);
  CheckNotEmpty(place, source_key::kQuestion, text.stem.join(u' '), findings);
  CheckCharacters(place, source_key::kQuestion, question.question, findings);
  CheckChoices(place, text, trueFalse, findings);
  CheckText(place, source_key::kExplanation, question.explanation, findings);
  CheckText(place, source_key::kHint, question.hint, findings);
  if (question.link) {
    CheckText(place, source_key::kLink, *question.link, findings);
  }
  if (!subjects.contains(question.subject)) {
    findings.push_back({place, u"unknown subject '%1'"_s.arg(question.subject)});
  }
}

void CheckNumber(const Place& place, int previous, const QSet<int>& seen, Findings& findings) {
  const int no = place.number;
  if (no < kFirstNumber || no > kLastNumber) {
    findings.push_back(
        {place, u"the number is missing or not %1 to %2"_s.arg(kFirstNumber).arg(kLastNumber)});
  } else if (seen.contains(no)) {
    findings.push_back({place, u"the number is repeated"_s});
  } else if (no < previous) {
    findings.push_back({place, u"the number is out of order"_s});
  }
}

void CheckPart(const PartSource& part, const QSet<QString>& subjects, Findings& findings) {
  QSet<int> seen;
  int previous = 0;
  for (const QuestionSource& question : part.questions) {
    const Place place = PlaceOf(part, question);
    CheckNumber(place, previous, seen, findings);
    CheckQuestion(place, question, IsTrueFalse(part.table, question.no), subjects, findings);
    seen.insert(question.no);
    previous = question.no;
  }
}

void CheckSubjects(const QStringList& subjects, Findings& findings) {
  const Place place{kSubjectsSource, 0, 0};
  QString previous;
  for (const QString& subject : subjects) {
    CheckText(place, source_key::kSubject, subject, findings);
    if (subject.size() > kLongestSubject) {
      findings.push_back(
          {place, u"'%1' is longer than %2 characters"_s.arg(subject).arg(kLongestSubject)});
    }
    // As a reader sorts them: "Child and Dependent Care Credit" comes before "Child Tax Credit".
    const int order = subject.compare(previous, Qt::CaseInsensitive);
    if (order == 0) {
      findings.push_back({place, u"'%1' is repeated"_s.arg(subject)});
    } else if (order < 0) {
      findings.push_back({place, u"'%1' is out of order"_s.arg(subject)});
    }
    previous = subject;
  }
}

}  // namespace

void CheckEntries(const BankSource& bank, Findings& findings) {
  CheckText({kVersionSource, 0, 0}, kVersionKey, bank.version, findings);
  CheckSubjects(bank.subjects, findings);
  const QSet<QString> subjects(bank.subjects.begin(), bank.subjects.end());
  for (const PartSource& part : bank.parts) {
    CheckPart(part, subjects, findings);
  }
}

void CheckCompleteness(const BankSource& bank, Findings& findings) {
  if (bank.subjects.size() != kSubjectCount) {
    findings.push_back({{kSubjectsSource, 0, 0},
                        u"%1 subjects and not %2"_s.arg(bank.subjects.size()).arg(kSubjectCount)});
  }
  for (const PartSource& part : bank.parts) {
    QSet<int> numbers;
    for (const QuestionSource& question : part.questions) {
      numbers.insert(question.no);
    }
    for (int no = kFirstNumber; no <= kLastNumber; ++no) {
      if (!numbers.contains(no)) {
        findings.push_back({{SourceName(part.table), 0, no}, u"the question is missing"_s});
      }
    }
  }
}

}  // namespace tessaly::bank
