#ifndef TESSALY_TESTS_SUPPORT_TEST_BANK_H_
#define TESSALY_TESTS_SUPPORT_TEST_BANK_H_

#include <QDir>
#include <QString>
#include <QTemporaryDir>
#include <QVariant>
#include <optional>
#include <vector>

#include "store/question_bank.h"

namespace tessaly::test {

struct TestQuestion {
  int no = 0;
  QString subject;
  int answerNumber = 0;
  std::optional<QString> question;     // Null when missing
  std::optional<QString> explanation;  // Null when missing
  QString hint;
  QString link;
};

struct TestStatus {
  QString tutorialMode = QStringLiteral("U");
  QString evalMode = QStringLiteral("U");
  QString passFail = QStringLiteral("U");
  int timesAsked = 0;
  int timesCorrect = 0;
};

// Two real, encrypted database files in a temporary program folder: all 24 tables, empty until
// questions are put in, and 87 subjects named "Subject 00" to "Subject 86".
class TestBank {
public:
  // The program folder is made in `parentFolder`, the working folder on the system's volume.
  explicit TestBank(const QString& parentFolder = QDir::tempPath());

  [[nodiscard]] const BankPaths& Paths() const { return paths_; }
  [[nodiscard]] QString Folder() const { return paths_.ProgramFolder; }
  // A folder of its own to be the working directory.
  [[nodiscard]] QString WorkingFolder() const { return workingFolder_.path(); }

  void AddQuestion(const QString& table, const TestQuestion& question,
                   const TestStatus& status = {});
  // Questions `first` to `last` of one subject, each with the answer A or True and the texts
  // "Question n" and "Explanation n".
  void AddQuestions(const QString& table, int first, int last, const QString& subject,
                    const TestStatus& status = {});

  // Statements run on a connection of their own; the file must not be open elsewhere.
  void RunOnAnswers(const QString& sql, const std::vector<QVariant>& values = {});
  void RunOnQuestions(const QString& sql, const std::vector<QVariant>& values = {});
  [[nodiscard]] QVariant ValueInAnswers(const QString& sql);
  [[nodiscard]] bool IsIntact();

  // The status row of a question as "TutorialMode EvalMode PassFail TimesAsked TimesCorrect".
  [[nodiscard]] QString StatusRow(const QString& table, int no);
  // A subject's row as "TMAsked TMCorrect EMAsked EMCorrect".
  [[nodiscard]] QString SubjectRow(const QString& subject);

  [[nodiscard]] static QString SubjectName(int index);

private:
  QTemporaryDir folder_;
  QTemporaryDir workingFolder_;
  BankPaths paths_;
};

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_SUPPORT_TEST_BANK_H_
