#include "entries/entrylist.h"

#include "data/recordset.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QStringList EntryTotals::columns() const
{
    return {u"estatus"_s, u"valor"_s, u"qtde"_s};
}

void EntryTotals::add(std::span<const std::string_view> values, int sign)
{
    figures.add(values[0], Money::stored(values[1]), sign);
    addSigned(quantity, Quantity::stored(values[2]), sign);
}

QString EntryTotals::text(const Side &side) const
{
    const auto [count, total] = figures.total();
    const QString currency = count == 0 ? QString() : u"R$ "_s;
    return QString::number(count) + side.countWords + currency + total.grouped() + side.settledWords +
           currency + figures.settled.sum.grouped() + u"  -  Total pendente: "_s + currency +
           figures.pending.sum.grouped() + side.quantityWords + quantity.plain();
}

namespace entrylist {

std::vector<ListColumn> columns(const Side &side)
{
    const auto column = [](const QString &key, const QString &title, CellKind kind, const QString &width,
                           const QStringList &sources = {}, CellFormat format = nullptr) {
        return ListColumn{key, title, kind, key == u"id" ? 0 : 80, sources, format, width};
    };
    std::vector<ListColumn> result{
        column(u"id"_s, u"Código"_s, CellKind::Number, u"0"_s, {u"código"_s}),
        column(u"data"_s, u"Data"_s, CellKind::Date, u"1319,8111"_s),
        column(u"descricao"_s, u"Descrição"_s, CellKind::Text, u"4190,1734"_s),
        column(u"documento"_s, u"Documento"_s, CellKind::Text, u"1839,6852"_s),
        column(side.contactColumnKey, side.contactTitle, CellKind::Text, u"2340,2837"_s,
               {side.contactColumn}),
        column(u"vencimento"_s, u"Vencimento"_s, CellKind::Date, u"1320,3781"_s),
        column(u"valor"_s, u"Valor"_s, CellKind::Amount, u"1239,3072"_s, {u"valor"_s, u"moeda"_s},
               cellformat::withCurrency),
    };
    if (side.hasUnitCost)
        result.push_back(column(u"custo"_s, u"Custo"_s, CellKind::Amount, u"1239,3072"_s));
    const ListColumn rest[] = {column(u"produto"_s, u"Produto"_s, CellKind::Text, u"2539,3072"_s),
                               column(u"qtde"_s, u"Qtde"_s, CellKind::Number, u"939,3072"_s),
                               column(u"estatus"_s, u"Estatus"_s, CellKind::Text, u"1319,8111"_s),
                               column(u"origem"_s, u"Caixa/Banco"_s, CellKind::Text, u"2140,1575"_s),
                               column(u"informacoes"_s, u"Informações"_s, CellKind::Text, u"3240,0003"_s)};
    std::ranges::copy(rest, std::back_inserter(result));
    return result;
}

ListLayoutFile layoutFile(const Side &side)
{
    return {side.table + u".ini"_s, columns(side)};
}

int columnOf(const Side &side, QStringView key)
{
    const std::vector<ListColumn> all = columns(side);
    const auto found = std::ranges::find(all, key, &ListColumn::key);
    return found == all.end() ? -1 : int(found - all.begin());
}

bool isNamed(Connection &connection, const Side &side, const QString &column, const QString &name)
{
    Statement rows = connection.prepareNative(
        u"SELECT 1 FROM %1 WHERE %2 = ?1 LIMIT 1"_s.arg(side.table, column).toUtf8());
    rows.bind(1, name);
    return rows.step();
}

QStringList distinct(Connection &connection, const Side &side, const QString &column)
{
    QStringList values;
    for (Recordset rows(connection, u"SELECT DISTINCT "_s + column + u" FROM "_s + side.table +
                                        u" order by "_s + column + u" ASC"_s);
         rows.next();)
        values << rows.text(0);
    return values;
}

} // namespace entrylist
