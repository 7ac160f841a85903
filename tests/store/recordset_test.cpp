#include "store/recordset.h"

#include <gtest/gtest.h>

#include "store/runtime_error.h"
#include "tests/support/store_fixture.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {
namespace {

class RecordsetTest : public StoreTest {
protected:
  [[nodiscard]] Recordset Cards() { return Open().OpenTable(u"Cards"_s); }
  [[nodiscard]] Recordset Filtered(const QString& filter, const QString& sort = {}) {
    Recordset all = Open().OpenRecordset(u"SELECT * FROM Cards"_s);
    all.SetFilter(filter);
    all.SetSort(sort);
    return all.OpenRecordset();
  }
  static void Write(Recordset& cards, const QString& field, const QVariant& value) {
    cards.Edit();
    cards.SetValue(field, value);
    cards.Update();
  }
  // Walks to the end: the numbers that it passed, as "1 2 3".
  static QString Walk(Recordset& cards) {
    QStringList numbers;
    for (; !cards.EndOfFile(); cards.MoveNext()) {
      numbers.append(cards.Text(u"No"_s));
    }
    return numbers.join(u' ');
  }
};

TEST_F(RecordsetTest, StandsOnItsFirstRowAndWalksInStoredOrder) {
  Run(u"DELETE FROM Cards WHERE No > 5"_s);
  Recordset cards = Cards();
  EXPECT_EQ(cards.RecordCount(), 5);
  EXPECT_EQ(Walk(cards), u"1 2 3 4 5"_s);
  EXPECT_TRUE(cards.EndOfFile());
  cards.MoveFirst();
  EXPECT_EQ(cards.Integer(u"No"_s), 1);
}

TEST_F(RecordsetTest, StoredOrderHasNothingToDoWithAnIndex) {
  Run(u"DELETE FROM Cards WHERE No > 5"_s);
  Run(u"UPDATE Cards SET No = 10 - No"_s);
  Recordset cards = Filtered(u"No > 0"_s);
  EXPECT_EQ(Walk(cards), u"9 8 7 6 5"_s);
}

TEST_F(RecordsetTest, AFilterKeepsRowsThatChangeLater) {
  Recordset unanswered = Filtered(u"Status = 'U' AND No < 4"_s);
  EXPECT_EQ(unanswered.RecordCount(), 3);
  Write(unanswered, u"Status"_s, u"C"_s);
  EXPECT_EQ(unanswered.Text(u"Status"_s), u"C"_s);
  EXPECT_EQ(unanswered.RecordCount(), 3);
  EXPECT_EQ(Walk(unanswered), u"1 2 3"_s);
  EXPECT_EQ(Filtered(u"Status = 'U' AND No < 4"_s).RecordCount(), 2);
}

TEST_F(RecordsetTest, ItsRowsAreFixedWhenItIsOpened) {
  Recordset early = Filtered(u"No > 98"_s);
  const Database database = Open();
  Recordset other = database.OpenTable(u"Cards"_s);
  Write(other, u"No"_s, 200);
  EXPECT_EQ(Walk(early), u"99 100"_s);
  Recordset late = Filtered(u"No > 98"_s);
  EXPECT_EQ(Walk(late), u"200 99 100"_s);
}

TEST_F(RecordsetTest, AFilterAndSortConcernOnlyRecordsetsOpenedFromIt) {
  Recordset all = Cards();
  all.SetFilter(u"No <= 3"_s);
  all.SetSort(u"Status"_s);
  EXPECT_EQ(all.Filter(), u"No <= 3"_s);
  EXPECT_EQ(all.RecordCount(), 100);
  EXPECT_EQ(all.OpenRecordset().RecordCount(), 3);
}

TEST_F(RecordsetTest, SortsByAFieldAndWithinItInStoredOrder) {
  Run(u"DELETE FROM Cards WHERE No > 5"_s);
  Run(u"UPDATE Cards SET Status = CASE WHEN No % 2 = 0 THEN 'C' ELSE 'I' END"_s);
  Recordset byStatus = Filtered({}, u"Status"_s);
  EXPECT_EQ(Walk(byStatus), u"2 4 1 3 5"_s);
  Recordset filtered = Filtered(u"No > 2"_s, u"Status"_s);
  EXPECT_EQ(Walk(filtered), u"4 3 5"_s);
}

TEST_F(RecordsetTest, AFilterMayMatchNothing) {
  Recordset none = Filtered(u"Status = 'X'"_s);
  EXPECT_EQ(none.RecordCount(), 0);
  EXPECT_TRUE(none.EndOfFile());
}

TEST_F(RecordsetTest, AFilterThatIsNoConditionIsASyntaxError) {
  for (const QString& filter : {u"Status = = 'U'"_s, u"Colour = 'red'"_s, u"Status = 'it's'"_s}) {
    SCOPED_TRACE(filter.toStdString());
    EXPECT_RUNTIME_ERROR(static_cast<void>(Filtered(filter)), ErrorNumber::SyntaxErrorInExpression);
  }
}

TEST_F(RecordsetTest, AnApostropheInATextIsFoundByItsDoubling) {
  Run(u"UPDATE Cards SET Status = 'taxpayer''s' WHERE No = 7"_s);
  Recordset owners = Filtered(u"Status = "_s + u"'taxpayer''s'"_s);
  EXPECT_EQ(Walk(owners), u"7"_s);
  Recordset cards = Cards();
  Write(cards, u"Status"_s, u"it's '' \"it\""_s);
  EXPECT_EQ(cards.Text(u"Status"_s), u"it's '' \"it\""_s);
}

TEST_F(RecordsetTest, FindFirstMovesToTheFirstRowThatMeetsTheCriterion) {
  Run(u"UPDATE Cards SET Status = 'I' WHERE No IN (30, 40)"_s);
  Recordset cards = Cards();
  cards.SetAbsolutePosition(60);
  cards.FindFirst(u"Status = 'I'"_s);
  EXPECT_FALSE(cards.NoMatch());
  EXPECT_EQ(cards.Integer(u"No"_s), 30);
  cards.MoveNext();
  EXPECT_EQ(cards.Integer(u"No"_s), 31);
}

TEST_F(RecordsetTest, FindFirstLooksOnlyAtItsOwnRowsAndInTheirOrder) {
  Recordset few = Filtered(u"No IN (10, 20, 30)"_s, u"No DESC"_s);
  few.FindFirst(u"No < 25"_s);
  EXPECT_EQ(few.Integer(u"No"_s), 20);
  few.FindFirst(u"No = 15"_s);
  EXPECT_TRUE(few.NoMatch());
}

TEST_F(RecordsetTest, WithoutAMatchItStandsOnItsFirstRow) {
  Recordset cards = Cards();
  cards.SetAbsolutePosition(60);
  cards.FindFirst(u"No = 500"_s);
  EXPECT_TRUE(cards.NoMatch());
  EXPECT_EQ(cards.Integer(u"No"_s), 1);
  cards.FindFirst(u"No = 5"_s);
  EXPECT_FALSE(cards.NoMatch());
}

TEST_F(RecordsetTest, WithoutAMatchAndWithoutRowsItStandsAtItsEnd) {
  Recordset none = Filtered(u"No = 500"_s);
  none.FindFirst(u"No = 1"_s);
  EXPECT_TRUE(none.NoMatch());
  EXPECT_TRUE(none.EndOfFile());
}

TEST_F(RecordsetTest, ACriterionThatIsNoneLeavesThePosition) {
  Recordset cards = Cards();
  cards.SetAbsolutePosition(4);
  EXPECT_RUNTIME_ERROR(cards.FindFirst(u"Colour = 1"_s), ErrorNumber::SyntaxErrorInExpression);
  EXPECT_EQ(cards.Integer(u"No"_s), 5);
}

TEST_F(RecordsetTest, ItMovesByPosition) {
  Recordset cards = Cards();
  for (const int position : {99, 0, 41, 40}) {
    cards.SetAbsolutePosition(position);
    EXPECT_EQ(cards.Integer(u"No"_s), position + 1);
  }
  EXPECT_RUNTIME_ERROR(cards.SetAbsolutePosition(100), ErrorNumber::NoCurrentRecord);
  EXPECT_RUNTIME_ERROR(cards.SetAbsolutePosition(-1), ErrorNumber::NoCurrentRecord);
  EXPECT_EQ(cards.Integer(u"No"_s), 41);
}

TEST_F(RecordsetTest, PastItsEndThereIsNoCurrentRecord) {
  Recordset cards = Filtered(u"No = 1"_s);
  cards.MoveNext();
  EXPECT_RUNTIME_ERROR(cards.MoveNext(), ErrorNumber::NoCurrentRecord);
  EXPECT_RUNTIME_ERROR(static_cast<void>(cards.Text(u"No"_s)), ErrorNumber::NoCurrentRecord);
  EXPECT_RUNTIME_ERROR(static_cast<void>(cards.Integer(u"No"_s)), ErrorNumber::NoCurrentRecord);
  EXPECT_RUNTIME_ERROR(cards.Edit(), ErrorNumber::NoCurrentRecord);
  Recordset none = Filtered(u"No = 500"_s);
  EXPECT_RUNTIME_ERROR(none.MoveFirst(), ErrorNumber::NoCurrentRecord);
  EXPECT_RUNTIME_ERROR(none.MoveNext(), ErrorNumber::NoCurrentRecord);
}

TEST_F(RecordsetTest, WithoutEditNothingIsWritten) {
  Recordset cards = Cards();
  EXPECT_RUNTIME_ERROR(cards.Update(), ErrorNumber::UpdateWithoutEdit);
  EXPECT_RUNTIME_ERROR(cards.SetValue(u"Status"_s, u"C"_s), ErrorNumber::UpdateWithoutEdit);
  cards.Edit();
  cards.CancelUpdate();
  EXPECT_RUNTIME_ERROR(cards.Update(), ErrorNumber::UpdateWithoutEdit);
  Write(cards, u"Status"_s, u"C"_s);
  EXPECT_RUNTIME_ERROR(cards.Update(), ErrorNumber::UpdateWithoutEdit);
}

TEST_F(RecordsetTest, MovingDropsAnEdit) {
  Recordset cards = Cards();
  cards.Edit();
  cards.SetValue(u"Status"_s, u"C"_s);
  EXPECT_EQ(cards.Text(u"Status"_s), u"C"_s);
  cards.MoveNext();
  EXPECT_RUNTIME_ERROR(cards.Update(), ErrorNumber::UpdateWithoutEdit);
  cards.MoveFirst();
  EXPECT_EQ(cards.Text(u"Status"_s), u"U"_s);
}

TEST_F(RecordsetTest, AnUpdateWritesEveryFieldThatWasSetAndNoOther) {
  {
    Recordset cards = Cards();
    cards.MoveNext();
    cards.Edit();
    cards.SetValue(u"Status"_s, u"I"_s);
    cards.SetValue(u"No"_s, 1002);
    cards.SetValue(u"Status"_s, u"C"_s);
    EXPECT_EQ(cards.Text(u"Status"_s), u"C"_s);
    cards.Update();
    EXPECT_EQ(cards.Text(u"Status"_s), u"C"_s);
  }
  EXPECT_EQ(Stored(u"SELECT Status || No FROM Cards WHERE Front LIKE 'Front 2 %'"_s), u"C1002"_s);
  EXPECT_EQ(Stored(u"SELECT count(*) FROM Cards WHERE Status = 'U'"_s), u"99"_s);
}

TEST_F(RecordsetTest, AnUpdateInTheMiddleOfAWalkDoesNotDisturbIt) {
  Recordset walking = Filtered(u"No < 6"_s);
  Recordset writing = Cards();
  QStringList seen;
  for (; !walking.EndOfFile(); walking.MoveNext()) {
    seen.append(walking.Text(u"No"_s) + walking.Text(u"Status"_s));
    Write(walking, u"Status"_s, u"C"_s);
    writing.MoveNext();
    Write(writing, u"Status"_s, u"I"_s);
  }
  EXPECT_EQ(seen.join(u' '), u"1U 2I 3I 4I 5I"_s);
}

TEST_F(RecordsetTest, AnUnknownFieldIsNoItemOfTheTable) {
  Recordset cards = Cards();
  EXPECT_RUNTIME_ERROR(static_cast<void>(cards.Value(u"Colour"_s)), ErrorNumber::ItemNotFound);
  cards.Edit();
  EXPECT_RUNTIME_ERROR(cards.SetValue(u"Colour"_s, 1), ErrorNumber::ItemNotFound);
  try {
    static_cast<void>(cards.Text(u""_s));
    FAIL() << "nothing was raised";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Detail(), u"'' in Cards"_s);
  }
}

TEST_F(RecordsetTest, NullReadsAsAnEmptyTextAndNoNumber) {
  Recordset cards = Cards();
  Write(cards, u"Status"_s, QVariant());
  EXPECT_FALSE(cards.Value(u"Status"_s).isValid());
  EXPECT_EQ(cards.Text(u"Status"_s), QString());
  EXPECT_RUNTIME_ERROR(static_cast<void>(cards.Integer(u"Status"_s)), ErrorNumber::TypeMismatch);
}

TEST_F(RecordsetTest, ValuesAreReadAsSixteenBitNumbers) {
  struct Case {
    QVariant stored;
    int read;
  };
  const Case cases[] = {{0, 0},           {32767, 32767}, {-32768, -32768}, {u"12"_s, 12},
                        {u" 7 "_s, 7},    {u"-5"_s, -5},  {2.5, 2},         {3.5, 4},
                        {32767.4, 32767}, {u"1.5"_s, 2}};
  Recordset cards = Cards();
  for (const auto& [stored, read] : cases) {
    SCOPED_TRACE(stored.toString().toStdString());
    Write(cards, u"Front"_s, stored);
    EXPECT_EQ(cards.Integer(u"Front"_s), read);
    Write(cards, u"No"_s, stored);
    EXPECT_EQ(cards.Integer(u"No"_s), read);
  }
}

TEST_F(RecordsetTest, NumbersOutOfRangeOverflowAndOtherTextsMismatch) {
  Recordset cards = Cards();
  for (const QVariant& stored : {QVariant(32768), QVariant(-32769), QVariant(32767.5),
                                 QVariant(u"40000"_s), QVariant(9000000000LL)}) {
    SCOPED_TRACE(stored.toString().toStdString());
    Write(cards, u"No"_s, stored);
    EXPECT_RUNTIME_ERROR(static_cast<void>(cards.Integer(u"No"_s)), ErrorNumber::Overflow);
  }
  for (const QString& stored : {u"U"_s, u""_s, u"12a"_s, u"1 2"_s}) {
    SCOPED_TRACE(stored.toStdString());
    Write(cards, u"Status"_s, stored);
    EXPECT_RUNTIME_ERROR(static_cast<void>(cards.Integer(u"Status"_s)), ErrorNumber::TypeMismatch);
  }
}

TEST_F(RecordsetTest, ItKeepsItsPlaceWhenItIsMovedToAnotherOwner) {
  Recordset cards = Cards();
  cards.SetAbsolutePosition(9);
  EXPECT_EQ(cards.Integer(u"No"_s), 10);
  Recordset owner = std::move(cards);
  EXPECT_EQ(owner.Integer(u"No"_s), 10);
  Recordset last = Filtered(u"No = 100"_s);
  EXPECT_EQ(last.Integer(u"No"_s), 100);
  last = std::move(owner);
  last.MoveNext();
  EXPECT_EQ(last.Integer(u"No"_s), 11);
}

}  // namespace
}  // namespace tessaly::test
