#pragma once

#include "data/decimal.h"
#include "data/progress.h"
#include "entries/side.h"
#include "lists/rowstore.h"

#include <QStringList>

class Connection;

/// The sums under an entry list. Amounts of different currencies are added as they stand.
struct EntryTotals
{
    qint64 count = 0;
    Money total, settled, pending;
    Quantity quantity;

    /// The totals line; without "R$ " when there are no rows.
    QString text(const Side &side) const;
};

struct EntryList
{
    RowStore rows;
    EntryTotals totals;
};

namespace entrylist {

/// The columns of a side's list: the row key first, then as in its layout file.
std::vector<Column> columns(const Side &side);
/// Where the column with this layout key stands in the side's list.
int columnOf(const Side &side, QStringView key);
/// Reads all rows of `query`, a `SELECT *` on the side's table. `progress` may be null. Throws Error.
EntryList load(Connection &connection, const Side &side, const QString &query, Progress *progress);
/// The different values of a column of the side's table, in name order, for a filter box.
QStringList distinct(Connection &connection, const Side &side, const QString &column);

} // namespace entrylist
