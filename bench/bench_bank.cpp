#include "bench/bench_bank.h"

#include "catalogue/exam_catalogue.h"
#include "stats/subject_statistics.h"
#include "store/connection.h"

using namespace Qt::StringLiterals;

namespace tessaly::bench {

namespace {

constexpr int kQuestionCharacters = 500;
constexpr int kExplanationCharacters = 600;

QString TextOfLength(const QString& start, int characters) {
  return (start + u" the taxpayer reports the amount on the return for the year."_s.repeated(
                      characters / 60 + 1))
      .left(characters);
}

template <typename ValuesOfRow>
void FillTables(const QString& path, const QString& marks, int rows,
                const ValuesOfRow& valuesOfRow) {
  Connection connection(path, kPassword, Connection::Access::OpenExisting);
  connection.Execute(u"BEGIN"_s);
  for (const QLatin1StringView table : kTables) {
    Statement insert =
        connection.Prepare(u"INSERT INTO \"%1\" VALUES (%2)"_s.arg(QString(table), marks));
    for (int no = 1; no <= rows; ++no) {
      insert.Bind(valuesOfRow(no));
      insert.Run();
    }
  }
  connection.Execute(u"COMMIT"_s);
}

}  // namespace

void FillBank(test::TestBank& bank, int rowsATable) {
  using Values = std::vector<QVariant>;
  const QString unanswered = kUnanswered;
  FillTables(bank.Paths().QuestionsDbPath, u"?, ?, ?, ?, ?, ?, ?"_s, rowsATable, [](int no) {
    return Values{QString::number(no),
                  TextOfLength(u"Question %1"_s.arg(no), kQuestionCharacters),
                  TextOfLength(u"Explanation %1"_s.arg(no), kExplanationCharacters),
                  no % 2,
                  test::TestBank::SubjectName(no % kSubjectCount),
                  u"Publication 17, \"Filing Status\""_s,
                  u"p17.html"_s};
  });
  FillTables(bank.Paths().AnswersDbPath, u"?, ?, ?, ?, ?, ?"_s, rowsATable, [&unanswered](int no) {
    return Values{no, unanswered, unanswered, unanswered, 0, 0};
  });
}

}  // namespace tessaly::bench
