#include "agenda/duealert.h"

#include "data/dates.h"
#include "entries/entryreport.h"
#include "lists/readrows.h"

using namespace Qt::StringLiterals;

namespace {

std::vector<ListColumn> columns(const Side &side)
{
    std::vector<ListColumn> columns = entryreport::columns(side);
    columns.insert(columns.begin(), {u"código"_s, u"Código"_s, CellKind::Number});
    return columns;
}

} // namespace

namespace duealert {

DueEntries read(Connection &connection, const Side &side, QDate day)
{
    DueEntries due{std::make_shared<StoredTable>(columns(side)), {}};
    FigureTotals totals;
    readrows::into(*due.rows, connection,
                   u"SELECT * FROM "_s + side.table + u" where vencimento like '"_s + dates::stored(day) +
                       u"' and estatus = 'Pendente'"_s,
                   due.rows->columns(), side.subject, totals);
    due.figures = totals.figures;
    return due;
}

QString totals(const Side &side, const DueEntries &due)
{
    const Figures::Part all = due.figures.total();
    if (all.count == 0)
        return {};
    return u"Total de "_s + side.plural + u": "_s + QString::number(all.count) + u" - R$ "_s +
           all.sum.grouped();
}

} // namespace duealert
