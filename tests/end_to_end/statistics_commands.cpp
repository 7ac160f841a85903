#include "tests/end_to_end/statistics_commands.h"

#include <QSettings>

#include "catalogue/exam_catalogue.h"
#include "stats/reset_texts.h"
#include "store/connection.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {

void FillStatistics(TestBank& bank, int rowsATable) {
  const auto fill = [rowsATable](const QString& path, const QString& values) {
    Connection file(path, kPassword, Connection::Access::OpenExisting);
    file.Execute(u"BEGIN"_s);
    for (const QLatin1StringView table : kTables) {
      file.Execute(u"DELETE FROM \"%1\""_s.arg(table));
      file.Execute(
          u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %2) "
          u"INSERT INTO \"%1\" SELECT %3 FROM n"_s.arg(table)
              .arg(rowsATable)
              .arg(values));
    }
    file.Execute(u"COMMIT"_s);
  };
  fill(bank.Paths().QuestionsDbPath,
       u"CAST(i AS TEXT), 'Question ' || i, 'Explanation ' || i, 0, 'Subject 05', 'Hint', "
       "'p17.html'"_s);
  fill(bank.Paths().AnswersDbPath, u"i, 'U', 'U', 'U', 0, 0"_s);
  AnswerEverything(bank, 1);
}

void AnswerEverything(TestBank& bank, int round) {
  Connection file(bank.Paths().AnswersDbPath, kPassword, Connection::Access::OpenExisting);
  file.Execute(u"BEGIN"_s);
  for (const QLatin1StringView table : kTables) {
    file.Execute(
        u"UPDATE \"%1\" SET TutorialMode = 'C', EvalMode = 'I', PassFail = 'F', TimesAsked = %2, "
        u"TimesCorrect = %2"_s.arg(table)
            .arg(round));
  }
  file.Execute(
      u"UPDATE SubjectStats SET TMAsked = %1 + 3, TMCorrect = %1 + 2, EMAsked = %1 + 1, "
      u"EMCorrect = %1"_s.arg(round));
  file.Execute(u"COMMIT"_s);
}

void StoreTimers(const Installation& installation) {
  for (const QString& section : {u"TTimer"_s, u"ETimer"_s}) {
    for (int year = 1996; year <= 2001; ++year) {
      for (int part = 0; part < kPartCount; ++part) {
        installation.Store(section + u'/' + NamedTimerKey(year, part), u"60"_s);
      }
    }
  }
}

int CountTimers(const Installation& installation) {
  const QSettings settings(installation.SettingsPath(), QSettings::IniFormat);
  int timers = 0;
  for (const QString& key : settings.allKeys()) {
    const bool isTimer = key.startsWith("TTimer/"_L1) || key.startsWith("ETimer/"_L1);
    timers += isTimer && settings.value(key).toString() == "60"_L1 ? 1 : 0;
  }
  return timers;
}

void AskToResetAll(ProgramDriver& program) {
  program.Trigger(u"mnuStatsReset"_s);
  program.WaitForWindow(u"frmResetChoices"_s);
  program.Click(u"chkResetAll"_s);
  program.Click(u"cmdReset"_s);
  const BoxContent box = program.WaitForBox();
  if (!box.text.startsWith("Are you sure you wish to reset all statistics?"_L1)) {
    Fail(u"a box instead of the question whether to reset all: "_s + box.text);
  }
}

void OpenBackupDialog(ProgramDriver& program, const QString& command, const QString& folder) {
  program.Trigger(command);
  program.WaitForWindow(u"frmBackup"_s);
  program.WaitUntil(u"the drive "_s + folder, [&program, &folder] {
    return program.Get(u"drvSelectDrive"_s, u"currentText"_s).contains(u'(' + folder + u')');
  });
}

void WaitUntilClosed(ProgramDriver& program, const QString& window) {
  program.WaitUntil(u"the end of "_s + window, [&program, &window] {
    return program.HasBox() || !program.Windows().contains(window);
  });
  if (program.HasBox()) {
    Fail(u"a box instead of the end of "_s + window + u": "_s + program.WaitForBox().text);
  }
}

}  // namespace tessaly::test
