#include "stats/statistics_report.h"

#include <cstddef>

#include "app/program_state.h"
#include "catalogue/exam_catalogue.h"
#include "store/database.h"
#include "store/runtime_error.h"
#include "store/settings_store.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr QLatin1StringView kLineEnd{"\r\n"};
constexpr int kPrintIndent = 8;

QString Spaces(qsizetype count) {
  if (count < 0) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall, u"%1 spaces"_s.arg(count));
  }
  return QString(count, u' ');
}

// What is left of a column's width beside a number, which counts with the blank that stands for
// its sign.
QString Pad(int width, std::int16_t number) {
  const qsizetype signBlank = number < 0 ? 0 : 1;
  return Spaces(width - QString::number(number).size() - signBlank);
}

QString Padded(int width, std::int16_t number) {
  return Pad(width, number) + QString::number(number);
}

QString PrintLine(const QString& line) {
  return Spaces(kPrintIndent) + line + kLineEnd;
}

QStringList SectionHeader() {
  return {u"Exam"_s + Spaces(15) + u"Number"_s + Spaces(3) + u"Number"_s + Spaces(6) +
              u"Possible"_s + Spaces(4) + u"Actual"_s + Spaces(5) + u"Score"_s,
          u"Year"_s + Spaces(3) + u"Section"_s + Spaces(5) + u"Asked"_s + Spaces(4) + u"Correct"_s +
              Spaces(6) + u"Score"_s + Spaces(6) + u"Score"_s + Spaces(4) + u"Percentage"_s};
}

QStringList SubjectHeader() {
  return {Spaces(64) + u"Number"_s + Spaces(4) + u"Number"_s + Spaces(5) + u"Question"_s,
          u"Subject"_s + Spaces(57) + u"Asked"_s + Spaces(5) + u"Correct"_s + Spaces(3) +
              u"Percentage"_s};
}

QString CaptionOf(std::uint8_t mode) {
  if (mode == kTutorialMode) {
    return u"Tutorial Mode Statistics"_s;
  }
  return mode == kEvaluationMode ? u"Evaluation Mode Statistics"_s : QString();
}

// Adds lines to the list and, where they belong to one, to their print block.
class ReportWriter {
public:
  explicit ReportWriter(StatisticsReport& report) : report_(report) {}

  void AddBlank() { report_.Lines.append(QString()); }
  void AddHeading(const QString& heading) {
    report_.Lines.append(Spaces(kHeadingIndent) + heading);
    AddBlank();
  }
  void AddHeader(const QStringList& lines, QString& block) {
    for (const QString& line : lines) {
      AddRow(line, block);
    }
    AddBlank();
  }
  void AddRow(const QString& row, QString& block) {
    report_.Lines.append(row);
    block += PrintLine(row);
  }

private:
  StatisticsReport& report_;
};

void AddSections(StatisticsReport& report, ReportWriter& writer, const Database& answers,
                 std::uint8_t mode) {
  writer.AddBlank();
  writer.AddHeading(kSectionHeading);
  writer.AddHeader(SectionHeader(), report.Blocks.PrintSectionHeader);
  for (int exam = 0; exam < kExamCount; ++exam) {
    for (int section = 0; section < kPartCount; ++section) {
      const ExamEntry& examEntry = kExams[static_cast<std::size_t>(exam)];
      const PartEntry& part = kParts[static_cast<std::size_t>(section)];
      const SectionTally tally = CountSectionStats(answers, *TableOf(exam, section), section, mode);
      writer.AddRow(SectionRow(examEntry.year, part.paddedCaption, tally),
                    report.Blocks.PrintSectionRows);
      report.Sections.push_back(
          {examEntry.year + u' ' + part.caption, tally.Asked, SectionScore(tally)});
    }
    writer.AddBlank();
  }
  writer.AddBlank();
}

void AddSubjects(StatisticsReport& report, ReportWriter& writer,
                 const SubjectStatistics& subjects) {
  writer.AddHeading(kSubjectHeading);
  writer.AddHeader(SubjectHeader(), report.Blocks.PrintSubjectHeader);
  for (std::size_t i = 0; i < kSubjectCount; ++i) {
    const std::int16_t asked = subjects.SubjectAsked[i];
    const std::int16_t correct = subjects.SubjectCorrect[i];
    if (const auto row = SubjectRow(subjects.SubjectName[i], asked, correct)) {
      writer.AddRow(*row, report.Blocks.PrintSubjectRows);
      report.Subjects.push_back({subjects.SubjectName[i], asked, Percentage(correct, asked)});
    }
  }
  writer.AddBlank();
}

}  // namespace

QString SectionRow(const QString& year, const QString& part, const SectionTally& tally) {
  constexpr int kAskedWidth = 8;
  constexpr int kCorrectWidth = 11;
  constexpr int kPointsWidth = 12;
  return year + Spaces(4) + part + Padded(kAskedWidth, tally.Asked) +
         Padded(kCorrectWidth, tally.Correct) + Padded(kPointsWidth, tally.Possible) +
         Padded(kPointsWidth, tally.Actual) + Padded(kPointsWidth, SectionScore(tally)) + u'%';
}

std::optional<QString> SubjectRow(const QString& name, std::int16_t asked, std::int16_t correct) {
  if (asked < 1) {
    return std::nullopt;
  }
  constexpr int kAskedWidth = 10;
  constexpr int kCorrectWidth = 13;
  return name + Spaces(kSubjectNameColumns - name.size()) + QString::number(asked) +
         Pad(kAskedWidth, asked) + QString::number(correct) + Pad(kCorrectWidth, correct) +
         QString::number(Percentage(correct, asked)) + u'%';
}

StatisticsReport BuildStatisticsReport(const ProgramState& state, Workspace& workspace) {
  StatisticsReport report;
  report.Caption = CaptionOf(state.Selection.Mode);
  report.Blocks.PrintTitle = Spaces(5) + kApplicationTitle + Spaces(45) +
                             u"Study Software for the Special Enrollment Exam"_s;
  report.Blocks.PrintModeHeading =
      QString(kLineEnd) + kLineEnd + Spaces(10) + report.Caption + kLineEnd;
  ReportWriter writer(report);
  const Database answers = workspace.OpenDatabase(state.Paths.AnswersDbPath, state.Paths.DbConnect);
  AddSections(report, writer, answers, state.Selection.Mode);
  AddSubjects(report, writer, state.Subjects);
  return report;
}

}  // namespace tessaly
