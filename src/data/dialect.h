#pragma once

#include <QString>
#include <QStringView>

#include <vector>

/// The SQL that the program writes, adapted to the store.
///
/// - [bracketed] names, column names in any letter case, `Delete * from`.
/// - `column like 'text'` (parentheses optional) without wildcards is an indexed equality that ignores letter
/// case;
///   with wildcards it is LikePattern's comparison; against "%%" it asks for any value. `código` is matched
///   by its text: '12' finds 12, '0012' finds nothing.
/// - `column(like 'text')` is the same condition; a WHERE that follows AND or OR is left out.
/// - A date column (dialect_dates.h) goes by the date that its text means: in ORDER BY, in BETWEEN, in a
///   comparison of the column with a literal, and in a `like` against digits, slashes and wildcards. A `like`
///   against any other pattern asks for the text.
/// - ORDER BY and DISTINCT on names ignore case and follow Portuguese order; on amounts the order is numeric.
/// - Rows come in insertion order where no ORDER BY is given, and ties keep it.
/// - `SET qtde=qtde + n` keeps four exact decimals.
namespace dialect {

/// What the connection registers for the translated texts: a collation (name order) and two functions (a
/// stored amount as a number, a text with its letter case taken away).
inline constexpr char nameOrder[] = "name_order";
inline constexpr char amountFunction[] = "stored_amount";
inline constexpr char foldedFunction[] = "folded_text";

/// One value that rows are ordered by.
struct OrderTerm
{
    /// What the expression yields: "yyyy/mm/dd" or null; ten-thousandths; a name, to be compared in
    /// Portuguese order; anything, to be compared as it is.
    enum class Kind { Date, Amount, Name, Plain };

    QString expression;
    bool descending = false;
    Kind kind = Kind::Plain;
    /// The column that a date is made from.
    QString dateColumn = {};

    QString text() const { return descending ? expression + QStringLiteral(" DESC") : expression; }
};

struct Translation
{
    QString sql = {};
    /// Yields the number of rows that `sql` yields; empty for other statements than SELECT.
    QString countSql = {};
    /// The one table that a `SELECT *` reads and whose rows can be changed; empty for other statements.
    QString table = {};
    bool isSelect = false;
    /// Of a SELECT on one table: the condition alone, empty for all rows, and its ORDER BY without what keeps
    /// ties in insertion order.
    QString where = {};
    std::vector<OrderTerm> orderTerms = {};
};

/// Whether a `SELECT *` on one table yields the store's row number as one more, last column.
enum class RowKey { Omitted, Appended };
/// Whether rows without ORDER BY come as they were inserted, or as the store finds them fastest: for sums.
enum class RowOrder { Insertion, Any };

/// Throws Error::Kind::Query for an unclosed quote or bracket, a comment, and for anything after a first ";".
Translation translate(QStringView sql, RowKey rowKey = RowKey::Omitted,
                      RowOrder rowOrder = RowOrder::Insertion);

/// The name of a table when the text is nothing else, ready to stand in a statement; empty otherwise.
QString bareTableName(QStringView text);

} // namespace dialect
