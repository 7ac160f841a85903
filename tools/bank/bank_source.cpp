#include "tools/bank/bank_source.h"

#include <yaml-cpp/yaml.h>

#include <QDir>
#include <QFile>
#include <algorithm>
#include <array>
#include <string>

#include "catalogue/exam_catalogue.h"

using namespace Qt::StringLiterals;

namespace tessaly::bank {

namespace {

int LineOf(const YAML::Mark& mark) {
  return mark.line + 1;
}

QString ScalarText(const YAML::Node& node) {
  return QString::fromStdString(node.Scalar());
}

// One source file as a tree, with the findings that its reading brings.
class SourceFile {
public:
  SourceFile(QString name, Findings& findings) : name_(std::move(name)), findings_(findings) {}

  // The tree of the content; an undefined node where it is malformed.
  [[nodiscard]] YAML::Node Parse(const QByteArray& content) {
    try {
      return YAML::Load(content.toStdString());
    } catch (const YAML::Exception& error) {
      Report(LineOf(error.mark), u"malformed YAML, "_s + QString::fromStdString(error.msg));
      return YAML::Node(YAML::NodeType::Undefined);
    }
  }

  // A key's value as text, empty where there is none.
  [[nodiscard]] QString Text(const QString& key, const YAML::Node& value, int number) {
    if (!value.IsScalar() && !value.IsNull()) {
      Report(LineOf(value.Mark()), u"'%1' is not a text"_s.arg(key), number);
      return {};
    }
    return ScalarText(value);
  }

  void Report(int line, const QString& text, int number = 0) {
    findings_.push_back({{name_, line, number}, text});
  }

private:
  QString name_;
  Findings& findings_;
};

struct TextMember {
  QLatin1StringView key;
  QString QuestionSource::*member = nullptr;
};

constexpr std::array kTextMembers{
    TextMember{source_key::kSubject, &QuestionSource::subject},
    TextMember{source_key::kAnswer, &QuestionSource::answer},
    TextMember{source_key::kQuestion, &QuestionSource::question},
    TextMember{source_key::kExplanation, &QuestionSource::explanation},
    TextMember{source_key::kHint, &QuestionSource::hint},
};

// Gives the question the value of a key; false for a key that no question has.
bool TakeValue(QuestionSource& question, const QString& key, const QString& value) {
  if (key == source_key::kNo) {
    question.no = value.toInt();
    return true;
  }
  if (key == source_key::kLink) {
    question.link = value;
    return true;
  }
  const auto found = std::find_if(kTextMembers.begin(), kTextMembers.end(),
                                  [&key](const TextMember& entry) { return entry.key == key; });
  if (found == kTextMembers.end()) {
    return false;
  }
  question.*found->member = value;
  return true;
}

// Read before everything else, so that each finding about the question can name it.
int NumberOf(const YAML::Node& node) {
  const YAML::Node no = node[std::string(source_key::kNo.data())];
  return no && no.IsScalar() ? ScalarText(no).toInt() : 0;
}

QuestionSource ReadQuestion(SourceFile& file, const YAML::Node& node) {
  QuestionSource question;
  question.line = LineOf(node.Mark());
  if (!node.IsMap()) {
    file.Report(question.line, u"not a question: keys with values are expected"_s);
    return question;
  }
  question.no = NumberOf(node);
  QStringList seen;
  for (const auto& entry : node) {
    const int line = LineOf(entry.first.Mark());
    const QString key = entry.first.IsScalar() ? ScalarText(entry.first) : QString();
    if (seen.contains(key)) {
      file.Report(line, u"'%1' is repeated"_s.arg(key), question.no);
    }
    seen.append(key);
    if (!TakeValue(question, key, file.Text(key, entry.second, question.no))) {
      file.Report(line, u"unknown key '%1'"_s.arg(key), question.no);
    }
  }
  return question;
}

QStringList ReadSubjects(const QByteArray& content, Findings& findings) {
  SourceFile file(kSubjectsSource, findings);
  const YAML::Node root = file.Parse(content);
  QStringList subjects;
  if (!root.IsDefined()) {
    return subjects;
  }
  if (!root.IsSequence()) {
    file.Report(LineOf(root.Mark()), u"not a list of subjects"_s);
    return subjects;
  }
  for (const YAML::Node& subject : root) {
    subjects.append(file.Text(source_key::kSubject, subject, 0));
  }
  return subjects;
}

QString ReadVersion(const QByteArray& content, Findings& findings) {
  SourceFile file(kVersionSource, findings);
  const YAML::Node root = file.Parse(content);
  if (!root.IsDefined()) {
    return {};
  }
  const YAML::Node version = root.IsMap() && root.size() == 1
                                 ? root[std::string(kVersionKey.data())]
                                 : YAML::Node(YAML::NodeType::Undefined);
  if (!version.IsDefined()) {
    file.Report(LineOf(root.Mark()), u"the one key '%1' is expected"_s.arg(kVersionKey));
    return {};
  }
  return file.Text(kVersionKey, version, 0);
}

std::optional<QByteArray> ContentOf(const QDir& folder, const QString& name, Findings& findings) {
  QFile file(folder.filePath(name));
  if (!file.open(QIODevice::ReadOnly)) {
    findings.push_back({{name, 0, 0}, u"cannot be read: "_s + file.errorString()});
    return std::nullopt;
  }
  return file.readAll();
}

void ReportUnknownFiles(const QDir& folder, Findings& findings) {
  for (const QString& name : folder.entryList({u"*.yaml"_s}, QDir::Files, QDir::Name)) {
    const QString table = name.chopped(SourceName({}).size());
    if (name != kSubjectsSource && name != kVersionSource && !PlaceOfTable(table)) {
      findings.push_back({{name, 0, 0}, u"named after no exam part"_s});
    }
  }
}

}  // namespace

QString SourceName(const QString& table) {
  return table + u".yaml"_s;
}

Place PlaceOf(const PartSource& part, const QuestionSource& question) {
  return {SourceName(part.table), question.line, question.no};
}

PartSource ReadPartSource(const QString& table, const QByteArray& content, Findings& findings) {
  PartSource part{table, {}};
  SourceFile file(SourceName(table), findings);
  const YAML::Node root = file.Parse(content);
  if (!root.IsDefined()) {
    return part;
  }
  if (!root.IsSequence()) {
    file.Report(LineOf(root.Mark()), u"not a list of questions"_s);
    return part;
  }
  for (const YAML::Node& node : root) {
    part.questions.push_back(ReadQuestion(file, node));
  }
  return part;
}

BankSource ReadBankSource(const QString& folder, Findings& findings) {
  const QDir sources(folder);
  BankSource bank;
  if (sources.exists()) {
    ReportUnknownFiles(sources, findings);
  }
  if (const auto version = ContentOf(sources, kVersionSource, findings)) {
    bank.version = ReadVersion(*version, findings);
  }
  if (const auto subjects = ContentOf(sources, kSubjectsSource, findings)) {
    bank.subjects = ReadSubjects(*subjects, findings);
  }
  for (const QLatin1StringView table : kTables) {
    const QString name = SourceName(table);
    if (!sources.exists(name)) {
      continue;
    }
    if (const auto part = ContentOf(sources, name, findings)) {
      bank.parts.push_back(ReadPartSource(table, *part, findings));
    }
  }
  return bank;
}

}  // namespace tessaly::bank
