#pragma once

#include "data/connection.h"
#include "data/progress.h"
#include "lists/figures.h"
#include "lists/storedtable.h"

/// Reading what a report shows, once and from first to last. `sql` is a `SELECT * FROM table …` in the
/// program's dialect; `progress` may be null. All throw Error, and pass on what `progress` throws.
namespace readrows {

/// Adds the rows to `table`, whose cells `columns` make, and counts them into `totals`. The rows are those
/// of `subject`. Returns how many there were.
qint64 into(StoredTable &table, Connection &connection, const QString &sql,
            const std::vector<ListColumn> &columns, Subject subject, RowTotals &totals,
            Progress *progress = nullptr);
/// Only counts the rows into `totals`, in whatever order they are found fastest.
void sum(Connection &connection, const QString &sql, RowTotals &totals, Progress *progress = nullptr);

/// One column of every row: the names that a box offers. Blank ones are left out.
QStringList names(Connection &connection, const QString &sql, const QString &column);

} // namespace readrows
