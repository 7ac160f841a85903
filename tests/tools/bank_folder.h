#ifndef TESSALY_TESTS_TOOLS_BANK_FOLDER_H_
#define TESSALY_TESTS_TOOLS_BANK_FOLDER_H_

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include "tools/bank/bank_source.h"

namespace tessaly::test {

// A folder of sources for the bank's compiler. It starts with a version and 87 subjects: "Basis of
// Assets" and "Subject 01" to "Subject 86".
class BankFolder {
public:
  BankFolder();

  [[nodiscard]] QString Path() const { return folder_.path(); }
  [[nodiscard]] QString FilePath(const QString& name) const { return folder_.filePath(name); }

  void Write(const QString& name, const QString& text);
  void WriteSubjects(const QStringList& subjects);
  // Replaces the first occurrence of a text in a source; fails the test when there is none.
  void Replace(const QString& name, const QString& from, const QString& to);
  // Writes a part's source with the questions `first` to `last`, which pass every check.
  void WritePart(const QString& table, int first = 1, int last = 80);

  // What is there, which must be readable.
  [[nodiscard]] bank::BankSource Read() const;

  [[nodiscard]] static QStringList Subjects();

private:
  QTemporaryDir folder_;
};

// The source of one question that passes every check. Its subject is "Basis of Assets", its answer
// False or B for an odd number, True or A to D in turn for the others. It speaks of itself as
// "Explanation 21." and "Hint 21" and has no link; its other words belong to it alone.
[[nodiscard]] QString QuestionYaml(const QString& table, int no);

// Runs the tool without its own name among the arguments.
struct ToolRun {
  int status = 0;
  QString out;
  QStringList err;  // its lines
};
[[nodiscard]] ToolRun RunTool(const QStringList& arguments);

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_TOOLS_BANK_FOLDER_H_
