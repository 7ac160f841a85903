#ifndef TESSALY_STORE_SQL_TEXT_H_
#define TESSALY_STORE_SQL_TEXT_H_

#include <QLatin1StringView>
#include <QList>
#include <QString>
#include <QStringList>

// Every statement that reaches the database engine, in one place, with the quoting that makes
// names and texts safe to put into them.
namespace tessaly::sql {

inline constexpr QLatin1StringView kExclusiveLocking{"PRAGMA locking_mode = EXCLUSIVE"};
inline constexpr QLatin1StringView kFullSync{"PRAGMA synchronous = FULL"};
inline constexpr QLatin1StringView kFirstRead{"SELECT count(*) FROM sqlite_master"};
inline constexpr QLatin1StringView kBeginExclusive{"BEGIN EXCLUSIVE"};
inline constexpr QLatin1StringView kBegin{"BEGIN IMMEDIATE"};
inline constexpr QLatin1StringView kCommit{"COMMIT"};
inline constexpr QLatin1StringView kRollback{"ROLLBACK"};
inline constexpr QLatin1StringView kIntegrityCheck{"PRAGMA integrity_check"};
inline constexpr QLatin1StringView kTableExists{
    "SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?"};

// How a copy of the open file is written: it gets no journal of its own and is flushed once at the
// end, because a copy that is cut off is thrown away whole.
inline constexpr QLatin1StringView kAttachCopy{"ATTACH ? AS copy KEY ?"};
inline constexpr QLatin1StringView kCopyWithoutJournal{"PRAGMA copy.journal_mode = OFF"};
inline constexpr QLatin1StringView kCopyWithoutSync{"PRAGMA copy.synchronous = OFF"};
inline constexpr QLatin1StringView kExportToCopy{"SELECT sqlcipher_export('copy')"};
inline constexpr QLatin1StringView kDetachCopy{"DETACH copy"};

[[nodiscard]] QString KeyStretch(int rounds);
[[nodiscard]] QString DefaultKeyStretch(int rounds);

// A table or field name as an identifier, whatever characters it holds ("01Part1" starts with a
// digit).
[[nodiscard]] QString QuotedName(const QString& name);
// A text as a literal, its apostrophes doubled.
[[nodiscard]] QString QuotedText(const QString& text);

// The row ids of a table, narrowed and ordered; `filter` and `sort` may be empty. Without a sort
// the engine may answer from an index, in any order.
[[nodiscard]] QString SelectRowIds(const QString& table, const QString& filter,
                                   const QString& sort);
// The rows of a table from a row id onward, in stored order, the row id first.
[[nodiscard]] QString SelectRowsFrom(const QString& table);
// Some fields of every row, in stored order.
[[nodiscard]] QString SelectFields(const QString& table, const QStringList& fields);
[[nodiscard]] QString UpdateFields(const QString& table, const QStringList& fields);

// How the bank's tables are made and filled. A definition is a field's name and type.
struct FieldDefinition {
  QString name;
  QLatin1StringView type;
};
[[nodiscard]] QString CreateTable(const QString& table, const QList<FieldDefinition>& fields);
[[nodiscard]] QString CreateIndex(const QString& table, const QString& field);
[[nodiscard]] QString InsertRow(const QString& table, const QStringList& fields);
// Gives a row another place in the stored order. The places are renumbered with their signs
// turned, so that no new one meets an old one, and then turned back together.
[[nodiscard]] QString UpdateRowId(const QString& table);
[[nodiscard]] QString NegateRowIds(const QString& table);

}  // namespace tessaly::sql

#endif  // TESSALY_STORE_SQL_TEXT_H_
