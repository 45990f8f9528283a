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
/// - The date columns (data, vencimento, nascimento) hold dates in two forms, "yyyy/mm/dd" and "dd/mm/yyyy".
///   ORDER BY goes by the date meant; so do `like` with a date or with a pattern of digits, "/" and
///   wildcards, BETWEEN, and comparisons with a date. Texts that are no date come first and are like "%%"
///   only.
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
};

struct Translation
{
    QString sql;
    /// Yields the number of rows that `sql` yields; empty for other statements than SELECT.
    QString countSql;
    /// The one table that a `SELECT *` reads and whose rows can be changed; empty for other statements.
    QString table;
    bool isSelect = false;
    QString where = {};                     ///< of a SELECT: the condition alone; empty for all rows
    std::vector<OrderTerm> orderTerms = {}; ///< of its ORDER BY, without what keeps ties in insertion order
};

/// The date that a column means, as "yyyy/mm/dd", or null: built-in functions only, for indexes use it too.
QString dateExpression(const QString &column);

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
