#pragma once

#include "data/recordset.h"

#include <optional>

/// Rows found by the conditions that the program's statements use. `from` is what follows "SELECT * " and
/// "Delete ": "FROM banco where (banco like 'Caixa')".
///
/// Where a name is the key, `like` also finds it in other letter case, and other names when it holds a
/// pattern (% or _); a command on one name must not reach those.
namespace rows {

/// Deletes what `from` finds and notes the rows as they were. False when there was none.
bool remove(Connection &connection, Transaction &transaction, Subject subject, const QString &from);

/// The row that bears the name: as it is written, or else in other letter case. Nothing when there is none.
std::optional<Recordset> named(Connection &connection, const QString &from, QStringView column,
                               const QString &name);
/// remove() of the rows of that name, as it is written or else in other letter case. Throws Error::Kind::Data
/// when there is none, or when `from` reaches other names; then nothing has changed.
void removeNamed(Connection &connection, Transaction &transaction, Subject subject, const QString &from,
                 QStringView column, const QString &name);
/// Throws Error::Kind::Data when `from` reaches rows of other names.
void refuseOthers(Connection &connection, const QString &from, QStringView column, const QString &name);

} // namespace rows
