#include "catalogue/exam_catalogue.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "tests/support/printers.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

QString TextOf(std::optional<QLatin1StringView> found) {
  return found ? QString(*found) : u"(none)"_s;
}

QStringList TablesByPosition() {
  QStringList tables;
  for (int position = 1; position <= kTableCount; ++position) {
    tables.append(TextOf(TableAt(position)));
  }
  return tables;
}

TEST(ExamCatalogueTest, TheTablesAreInCatalogueOrder) {
  EXPECT_EQ(TablesByPosition(),
            (QStringList{u"01Part1"_s, u"01Part2"_s, u"01Part3"_s, u"01Part4"_s, u"00Part1"_s,
                         u"00Part2"_s, u"00Part3"_s, u"00Part4"_s, u"99Part1"_s, u"99Part2"_s,
                         u"99Part3"_s, u"99Part4"_s, u"98Part1"_s, u"98Part2"_s, u"98Part3"_s,
                         u"98Part4"_s, u"97Part1"_s, u"97Part2"_s, u"97Part3"_s, u"97Part4"_s,
                         u"96Part1"_s, u"96Part2"_s, u"96Part3"_s, u"96Part4"_s}));
}

TEST(ExamCatalogueTest, ExamAndSectionNameTheSameTablesAsThePositions) {
  QStringList tables;
  for (int exam = 0; exam < kExamCount; ++exam) {
    for (int section = 0; section < kPartCount; ++section) {
      tables.append(TextOf(TableOf(exam, section)));
    }
  }
  EXPECT_EQ(tables, TablesByPosition());
  EXPECT_EQ(TextOf(TableOf(0, 0)), u"01Part1"_s);
  EXPECT_EQ(TextOf(TableOf(5, 3)), u"96Part4"_s);
}

TEST(ExamCatalogueTest, OutsideTheCatalogueThereIsNoTable) {
  const std::pair<int, int> places[] = {{-1, 0}, {6, 0}, {0, -1}, {0, 4}, {255, 0}, {5, 4}};
  for (const auto& [exam, section] : places) {
    EXPECT_EQ(TextOf(TableOf(exam, section)), u"(none)"_s) << exam << ' ' << section;
  }
  for (const int position : {-1, 0, 25, 32767}) {
    EXPECT_EQ(TextOf(TableAt(position)), u"(none)"_s) << position;
  }
}

TEST(ExamCatalogueTest, ATableIsNamedByItsExamsCodeAndItsPart) {
  for (int exam = 0; exam < kExamCount; ++exam) {
    for (int section = 0; section < kPartCount; ++section) {
      const QString code = kExams.at(static_cast<std::size_t>(exam)).code;
      EXPECT_EQ(TextOf(TableOf(exam, section)), u"%1Part%2"_s.arg(code).arg(section + 1));
    }
  }
}

TEST(ExamCatalogueTest, TheExamsHaveTheirCaptions) {
  QStringList captions;
  for (const ExamEntry& exam : kExams) {
    captions.append(exam.caption + u'|' + exam.code + u'|' + exam.printCaption + u'|' + exam.year);
  }
  EXPECT_EQ(captions,
            (QStringList{
                u"2001 Examination|01|2001 Exam|2001"_s, u"2000 Examination|00|2000 Exam|2000"_s,
                u"1999 Examination|99|1999 Exam|1999"_s, u"1998 Examination|98|1998 Exam|1998"_s,
                u"1997 Examination|97|1997 Exam|1997"_s, u"1996 Examination|96|1996 Exam|1996"_s}));
}

TEST(ExamCatalogueTest, ThePartsHaveTheirCaptions) {
  QStringList captions;
  for (const PartEntry& part : kParts) {
    captions.append(part.caption + u'|' + part.paddedCaption + u'|' + part.printCaption);
  }
  EXPECT_EQ(
      captions,
      (QStringList{
          u"Part I|Part I  |Part I - Individuals"_s,
          u"Part II|Part II |Part II - Sole Proprietorships and Partnerships"_s,
          u"Part III|Part III|Part III - Corporations, Fiduciaries, Trusts and Estate and Gift Tax"_s,
          u"Part IV|Part IV |Part IV - Ethics, Recordkeeping Procedures, Appeal Procedures, etc."_s}));
}

TEST(ExamCatalogueTest, AnExamsCaptionGivesItsCode) {
  for (const ExamEntry& exam : kExams) {
    EXPECT_EQ(TextOf(CodeOfCaption(exam.caption)), exam.code);
  }
}

TEST(ExamCatalogueTest, AnyOtherTextGivesNoCode) {
  for (const QString& text : {u"2001 Exam"_s, u"2001 examination"_s, u" 2001 Examination"_s,
                              u"2001 Examination "_s, u"2002 Examination"_s, u""_s, QString()}) {
    EXPECT_EQ(TextOf(CodeOfCaption(text)), u"(none)"_s) << text.toStdString();
  }
}

TEST(ExamCatalogueTest, ATablesPlaceLeadsBackToIt) {
  for (const QLatin1StringView table : kTables) {
    const auto place = PlaceOfTable(table);
    ASSERT_TRUE(place.has_value());
    EXPECT_EQ(TextOf(TableOf(place->exam, place->section)), table);
  }
  EXPECT_FALSE(PlaceOfTable(u"Version"_s).has_value());
  EXPECT_FALSE(PlaceOfTable(u""_s).has_value());
}

TEST(ExamCatalogueTest, AfterTheLastTableComesTheFirst) {
  EXPECT_EQ(TextOf(TableAfter(u"01Part1"_s)), u"01Part2"_s);
  EXPECT_EQ(TextOf(TableAfter(u"01Part4"_s)), u"00Part1"_s);
  EXPECT_EQ(TextOf(TableAfter(u"96Part4"_s)), u"01Part1"_s);
  EXPECT_EQ(TextOf(TableAfter(u"Version"_s)), u"(none)"_s);
}

}  // namespace
}  // namespace tessaly::test
