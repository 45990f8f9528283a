#pragma once

#include "entries/side.h"
#include "lists/figures.h"
#include "lists/listcolumn.h"
#include "settings/listlayout.h"

#include <QStringList>

#include <vector>

class Connection;

/// The sums under an entry list. Amounts of different currencies are added as they stand.
class EntryTotals : public RowTotals
{
public:
    QStringList columns() const override;
    void add(std::span<const std::string_view> values, int sign) override;
    std::unique_ptr<RowTotals> clone() const override { return std::make_unique<EntryTotals>(*this); }

    /// The totals line; without "R$ " when there are no rows.
    QString text(const Side &side) const;

    Figures figures;
    Sum quantity;
};

namespace entrylist {

/// The columns of a side's list: the row key first, then as in its layout file.
std::vector<ListColumn> columns(const Side &side);
/// Widths and positions of the columns are kept there.
ListLayoutFile layoutFile(const Side &side);
/// Where the column with this layout key stands in the side's list.
int columnOf(const Side &side, QStringView key);
/// Whether any row of the side's table has this value in the column, in any letter case.
bool isNamed(Connection &connection, const Side &side, const QString &column, const QString &name);
/// The different values of a column of the side's table, in name order, for a filter box.
QStringList distinct(Connection &connection, const Side &side, const QString &column);

} // namespace entrylist
