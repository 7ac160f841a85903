#include <functional>

#include "store/connection.h"
#include "tests/end_to_end/end_to_end_test.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

// What can have become of a database file, and how the program takes it.
struct Damage {
  const char* name;
  std::function<void(const QString& path)> inflict;
  int number;
  const char* text;
};

void PrintTo(const Damage& damage, std::ostream* out) {
  *out << damage.name;
}

void Remove(const QString& path) {
  ASSERT_TRUE(QFile::remove(path));
}

void CutInAPage(const QString& path) {
  Shrink(path, QFileInfo(path).size() / 2 + 100);
}

void CutBetweenPages(const QString& path) {
  constexpr qint64 kPageBytes = 1024;
  Shrink(path, QFileInfo(path).size() / 2 / kPageBytes * kPageBytes);
}

void ReplaceByAText(const QString& path) {
  WriteBytes(path, QByteArray("This is a letter.\n").repeated(1024));
}

void EncryptOtherwise(const QString& path) {
  Remove(path);
  Connection other(path, u"another password"_s, Connection::Access::CreateNew);
  other.Execute(u"CREATE TABLE Other (Field TEXT)"_s);
}

const auto kDamages = ::testing::Values(
    Damage{"Missing", Remove, 53, "File not found"},
    Damage{"Empty", [](const QString& path) { Shrink(path, 0); }, 3343,
           "Unrecognized database format"},
    Damage{"CutInAPage", CutInAPage, 3343, "Unrecognized database format"},
    Damage{"CutBetweenPages", CutBetweenPages, 3343, "Unrecognized database format"},
    Damage{"AText", ReplaceByAText, 3343, "Unrecognized database format"},
    Damage{"UnderAnotherPassword", EncryptOtherwise, 3031, "Not a valid password"});

std::string NameOf(const ::testing::TestParamInfo<Damage>& parameter) {
  return parameter.param.name;
}

class DamagedFileTest : public EndToEndTest, public ::testing::WithParamInterface<Damage> {
protected:
  [[nodiscard]] QString Questions() const { return installation.bank.Paths().QuestionsDbPath; }
  [[nodiscard]] QString Answers() const { return installation.bank.Paths().AnswersDbPath; }
  // The whole program folder and what lies in the working directory.
  [[nodiscard]] QList<QByteArray> Files() const {
    QList<QByteArray> files;
    for (const QString& folder : {installation.Folder(), installation.WorkingFolder()}) {
      for (const QString& name : NamesIn(folder)) {
        const QString path = folder + u'/' + name;
        files.append(name.toUtf8() + ": " +
                     (QFileInfo(path).isDir() ? QByteArray() : ReadBytes(path)));
      }
    }
    return files;
  }
};

class DamagedAnswersTest : public DamagedFileTest {};

TEST_P(DamagedAnswersTest, AreReportedAtTheStartWhichEnds) {
  GetParam().inflict(Answers());
  const QList<QByteArray> before = Files();
  ExpectErrorAtStart(GetParam().number, QString::fromUtf8(GetParam().text));
  EXPECT_TRUE(Files() == before);
}

INSTANTIATE_TEST_SUITE_P(Answers, DamagedAnswersTest, kDamages, NameOf);

class DamagedQuestionsTest : public DamagedFileTest {};

TEST_P(DamagedQuestionsTest, AreReportedAtTheBeginAfterWhichTheProgramGoesOn) {
  const QByteArray sound = ReadBytes(Questions());
  GetParam().inflict(Questions());
  const QList<QByteArray> before = Files();
  program.StartToMainWindow();
  program.Press(u"Ctrl+B"_s);
  ExpectErrorBox(GetParam().number, QString::fromUtf8(GetParam().text));
  EXPECT_TRUE(Files() == before);
  EXPECT_FALSE(program.IsVisible(u"txtQuestion"_s));
  WriteBytes(Questions(), sound);
  program.Press(u"Ctrl+B"_s);
  program.WaitForVisible(u"txtQuestion"_s);
}

INSTANTIATE_TEST_SUITE_P(Questions, DamagedQuestionsTest, kDamages, NameOf);

class FileInUseTest : public EndToEndTest {
protected:
  void ExpectBeginWorks() {
    program.Press(u"Ctrl+B"_s);
    program.WaitForVisible(u"txtQuestion"_s);
  }
};

TEST_F(FileInUseTest, AnswersHeldByAnotherProcessAreReportedAtTheStart) {
  const Connection held(Bank().Paths().AnswersDbPath, kPassword, Connection::Access::OpenExisting);
  ExpectErrorAtStart(70, u"Permission denied"_s);
}

TEST_F(FileInUseTest, FilesHeldByAnotherProcessAreReportedAtTheBeginUntilTheyAreLetGo) {
  program.StartToMainWindow();
  for (const QString& path : {Bank().Paths().QuestionsDbPath, Bank().Paths().AnswersDbPath}) {
    const Connection held(path, kPassword, Connection::Access::OpenExisting);
    program.Press(u"Ctrl+B"_s);
    ExpectErrorBox(70, u"Permission denied"_s);
  }
  ExpectBeginWorks();
}

class MissingTableTest : public EndToEndTest {};

TEST_F(MissingTableTest, TheSubjectsAreMissedAtTheStart) {
  Bank().RunOnAnswers(u"DROP TABLE SubjectStats"_s);
  ExpectErrorAtStart(3078, u"The database engine cannot find the input table or query"_s);
}

TEST_F(MissingTableTest, AnExamPartIsMissedAtTheBeginAndTheOthersGoOn) {
  Bank().AddQuestions(u"01Part2"_s, 1, 1, TestBank::SubjectName(5));
  Bank().RunOnQuestions(u"DROP TABLE \"01Part1\""_s);
  program.StartToMainWindow();
  program.Press(u"Ctrl+B"_s);
  ExpectErrorBox(3078, u"The database engine cannot find the input table or query"_s);
  EXPECT_TRUE(Bank().IsIntact());
  EXPECT_EQ(Bank().StatusRow(u"01Part1"_s, 1), u"U U U 0 0"_s);
  installation.Store(u"StudyMode/Section"_s, u"1"_s);
  program.Close(u"frmMain"_s);
  EXPECT_EQ(program.WaitForExit(), 0);
  Begin();
}

TEST_F(MissingTableTest, AboutSaysThatTheReleaseIsMissing) {
  Bank().RunOnQuestions(u"DROP TABLE Version"_s);
  program.StartToMainWindow();
  program.Trigger(u"mnuHelpAbout"_s);
  ExpectErrorBox(3078, u"The database engine cannot find the input table or query"_s);
  EXPECT_EQ(program.Windows(), QStringList{u"frmMain"_s});
}

}  // namespace
}  // namespace tessaly::test
