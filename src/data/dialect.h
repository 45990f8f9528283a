#pragma once

#include <QString>
#include <QStringView>

/// The SQL that the program writes, adapted to the store.
///
/// - [bracketed] names, column names in any letter case, `Delete * from`.
/// - `column like 'text'` (parentheses optional) without wildcards is an indexed equality that ignores letter case;
///   with wildcards it is LikePattern's comparison; against "%%" it asks for any value. `código` is matched by its
///   text: '12' finds 12, '0012' finds nothing.
/// - ORDER BY and DISTINCT on names ignore case and follow Portuguese order; on amounts the order is numeric.
/// - Rows come in insertion order where no ORDER BY is given, and ties keep it.
/// - `SET qtde=qtde + n` keeps four exact decimals.
namespace dialect {

struct Translation
{
    QString sql;
    /// The one table that a `SELECT *` reads and whose rows can be changed; empty for other statements.
    QString table;
    bool isSelect = false;
};

/// Throws Error::Kind::Query for an unclosed quote or bracket and for anything after a first ";".
Translation translate(QStringView sql);

}
