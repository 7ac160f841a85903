#include "catalogue/exam_catalogue.h"

#include <QString>
#include <algorithm>
#include <cstddef>

using namespace Qt::StringLiterals;

namespace tessaly {

const std::array<ExamEntry, kExamCount> kExams{{
    {"2001 Examination"_L1, "01"_L1, "2001 Exam"_L1, "2001"_L1},
    {"2000 Examination"_L1, "00"_L1, "2000 Exam"_L1, "2000"_L1},
    {"1999 Examination"_L1, "99"_L1, "1999 Exam"_L1, "1999"_L1},
    {"1998 Examination"_L1, "98"_L1, "1998 Exam"_L1, "1998"_L1},
    {"1997 Examination"_L1, "97"_L1, "1997 Exam"_L1, "1997"_L1},
    {"1996 Examination"_L1, "96"_L1, "1996 Exam"_L1, "1996"_L1},
}};

const std::array<PartEntry, kPartCount> kParts{{
    {"Part I"_L1, "Part I  "_L1, "Part I - Individuals"_L1},
    {"Part II"_L1, "Part II "_L1, "Part II - Sole Proprietorships and Partnerships"_L1},
    {"Part III"_L1, "Part III"_L1,
     "Part III - Corporations, Fiduciaries, Trusts and Estate and Gift Tax"_L1},
    {"Part IV"_L1, "Part IV "_L1,
     "Part IV - Ethics, Recordkeeping Procedures, Appeal Procedures, etc."_L1},
}};

const std::array<QLatin1StringView, kTableCount> kTables{
    "01Part1"_L1, "01Part2"_L1, "01Part3"_L1, "01Part4"_L1, "00Part1"_L1, "00Part2"_L1,
    "00Part3"_L1, "00Part4"_L1, "99Part1"_L1, "99Part2"_L1, "99Part3"_L1, "99Part4"_L1,
    "98Part1"_L1, "98Part2"_L1, "98Part3"_L1, "98Part4"_L1, "97Part1"_L1, "97Part2"_L1,
    "97Part3"_L1, "97Part4"_L1, "96Part1"_L1, "96Part2"_L1, "96Part3"_L1, "96Part4"_L1,
};

std::optional<QLatin1StringView> TableOf(int exam, int section) {
  if (exam < 0 || exam >= kExamCount || section < 0 || section >= kPartCount) {
    return std::nullopt;
  }
  return TableAt(exam * kPartCount + section + 1);
}

std::optional<QLatin1StringView> TableAt(int position) {
  if (position < 1 || position > kTableCount) {
    return std::nullopt;
  }
  return kTables[static_cast<std::size_t>(position - 1)];
}

std::optional<QLatin1StringView> CodeOfCaption(const QString& caption) {
  for (const ExamEntry& exam : kExams) {
    if (exam.caption == caption) {
      return exam.code;
    }
  }
  return std::nullopt;
}

std::optional<TablePlace> PlaceOfTable(const QString& table) {
  const auto found = std::find(kTables.begin(), kTables.end(), table);
  if (found == kTables.end()) {
    return std::nullopt;
  }
  const auto index = found - kTables.begin();
  return TablePlace{static_cast<std::uint8_t>(index / kPartCount),
                    static_cast<std::int16_t>(index % kPartCount)};
}

std::optional<QLatin1StringView> TableAfter(const QString& table) {
  const auto place = PlaceOfTable(table);
  if (!place) {
    return std::nullopt;
  }
  const int index = place->exam * kPartCount + place->section;
  return kTables[static_cast<std::size_t>((index + 1) % kTableCount)];
}

}  // namespace tessaly
