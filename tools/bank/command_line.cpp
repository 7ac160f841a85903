#include "tools/bank/command_line.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QLatin1StringView>
#include <algorithm>
#include <array>

#include "store/runtime_error.h"
#include "tools/bank/balance.h"
#include "tools/bank/checks.h"
#include "tools/bank/compile.h"
#include "tools/bank/export.h"
#include "tools/bank/near_copies.h"
#include "tools/bank/page_links.h"

using namespace Qt::StringLiterals;

namespace tessaly::bank {

namespace {

constexpr auto kUsage =
    "Usage: tessaly-bank COMMAND ...\n"
    "\n"
    "  check SOURCES [--pages DIR]\n"
    "      Checks a folder of sources and prints how its right answers are spread.\n"
    "      With --pages, links are looked up among the pages of that folder.\n"
    "  compile SOURCES --questions FILE --answers FILE\n"
    "      Writes the questions file anew, and adds to the answers file what it lacks.\n"
    "  export QUESTIONS_FILE FOLDER\n"
    "      Writes the sources of a questions file into a folder.\n"
    "\n"
    "The exit status is 0 when all is well, 1 after findings or a failure, 2 after misuse.\n"_L1;

constexpr auto kPages = "pages"_L1;
constexpr auto kQuestions = "questions"_L1;
constexpr auto kAnswers = "answers"_L1;

// What a command works with.
struct Request {
  QStringList operands;
  const QCommandLineParser& options;
  FileOperations& files;
  QTextStream& out;
};

void Check(const Request& request, Findings& findings) {
  const BankSource bank = ReadBankSource(request.operands[0], findings);
  CheckEntries(bank, findings);
  CheckCompleteness(bank, findings);
  if (request.options.isSet(kPages)) {
    CheckPageLinks(bank, request.options.value(kPages), findings);
  }
  CheckNearCopies(bank, findings);
  CheckBalance(bank, findings);
  PrintBalance(bank, request.out);
}

void Compile(const Request& request, Findings& findings) {
  const BankSource bank = ReadBankSource(request.operands[0], findings);
  CheckEntries(bank, findings);
  if (findings.empty()) {
    CompileBank(bank, {request.options.value(kQuestions), request.options.value(kAnswers)},
                request.files);
  }
}

void Export(const Request& request, Findings& findings) {
  ExportBank(request.operands[0], request.operands[1], request.files, findings);
}

struct Command {
  QLatin1StringView name;
  qsizetype operandCount = 0;
  std::array<QLatin1StringView, 2> required;  // options; an empty name is none
  QLatin1StringView optional;
  void (*run)(const Request&, Findings&) = nullptr;
};

constexpr std::array kCommands{
    Command{"check"_L1, 1, {}, kPages, &Check},
    Command{"compile"_L1, 1, {kQuestions, kAnswers}, {}, &Compile},
    Command{"export"_L1, 2, {}, {}, &Export},
};

void AddOption(QCommandLineParser& parser, QLatin1StringView name) {
  if (!name.isEmpty()) {
    parser.addOption(QCommandLineOption(QString(name), {}, u"path"_s));
  }
}

// Empty where the command is complete; else what is wrong with it.
QString Misuse(const Command& command, QCommandLineParser& parser, const QStringList& arguments) {
  AddOption(parser, command.optional);
  for (const QLatin1StringView option : command.required) {
    AddOption(parser, option);
  }
  if (!parser.parse(arguments)) {
    return parser.errorText();
  }
  for (const QLatin1StringView option : command.required) {
    if (!option.isEmpty() && parser.value(option).isEmpty()) {
      return u"'%1' needs --%2."_s.arg(command.name, option);
    }
  }
  if (parser.positionalArguments().size() != command.operandCount) {
    return u"'%1' takes %2 and not %3 operands."_s.arg(command.name)
        .arg(command.operandCount)
        .arg(parser.positionalArguments().size());
  }
  return {};
}

ExitStatus ReportMisuse(const QString& text, QTextStream& err) {
  err << text << "\n\n" << kUsage;
  return ExitStatus::Misused;
}

ExitStatus Run(const Command& command, const Request& request, QTextStream& err) {
  Findings findings;
  try {
    command.run(request, findings);
  } catch (const RuntimeError& error) {
    err << error.what() << '\n';
    return ExitStatus::Failed;
  }
  for (const Finding& finding : findings) {
    err << ToText(finding) << '\n';
  }
  return findings.empty() ? ExitStatus::Done : ExitStatus::Failed;
}

}  // namespace

ExitStatus RunCommand(const QStringList& arguments, FileOperations& files, QTextStream& out,
                      QTextStream& err) {
  const QString name = arguments.value(1);
  if (name == "--help"_L1 || name == "-h"_L1) {
    out << kUsage;
    return ExitStatus::Done;
  }
  const auto* command = std::find_if(kCommands.begin(), kCommands.end(),
                                     [&name](const Command& entry) { return entry.name == name; });
  if (command == kCommands.end()) {
    return ReportMisuse(u"No command '%1'."_s.arg(name), err);
  }
  QCommandLineParser parser;
  const QString misuse = Misuse(*command, parser, arguments.mid(1));
  if (!misuse.isEmpty()) {
    return ReportMisuse(misuse, err);
  }
  return Run(*command, {parser.positionalArguments(), parser, files, out}, err);
}

}  // namespace tessaly::bank
