#include "sales/stocklists.h"

#include "data/error.h"
#include "entries/entryfilter.h"
#include "entries/entrylist.h"
#include "stock/stock.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Values = std::span<const std::string_view>;

/// Value and unit cost of a row.
std::pair<Money, Money> amounts(Values values)
{
    return {Money::stored(values[0]), Money::stored(values[1])};
}

void writeMarkup(Values values, std::string &out)
{
    const auto [value, cost] = amounts(values);
    out = stocklists::markup(value, cost).toStdString();
}

/// The third value is the row's currency.
void writeProfit(Values values, std::string &out)
{
    const auto [value, cost] = amounts(values);
    out = values[2];
    out += ' ' + (Sum(value) - Sum(cost)).grouped().toStdString();
}

QStringList namesIn(Connection &connection, const StockKind &kind, const QString &column)
{
    QStringList names = entrylist::distinct(connection, kind.side, column);
    names.removeIf([](const QString &name) { return name.trimmed().isEmpty(); });
    return names;
}

} // namespace

const StockKind &sales()
{
    static const StockKind kind{receivable(), u"Vendas"_s, u"Carregando vendas"_s,
                                u" cadastrados  -  Total de vendas(lucro real): "_s,
                                u"Nenhuma venda com estes filtros"_s};
    return kind;
}

const StockKind &purchases()
{
    static const StockKind kind{payable(), u"Compras"_s, u"Carregando recebimentos"_s,
                                u" cadastros  -  Total de recebimentos: "_s,
                                u"Nenhuma compra com estes filtros"_s};
    return kind;
}

QStringList StockTotals::columns() const
{
    QStringList columns{u"estatus"_s, u"valor"_s};
    if (m_kind.side.hasUnitCost)
        columns << u"qtde"_s << u"custo"_s;
    return columns;
}

void StockTotals::add(Values values, int sign)
{
    const Money value = Money::stored(values[1]);
    figures.add(values[0], value, sign);
    if (!m_kind.side.hasUnitCost)
        return;
    const Sum gained = (Sum(value) - Sum(Money::stored(values[3]))).times(Quantity::stored(values[2]));
    sign < 0 ? profit -= gained : profit += gained;
}

QString StockTotals::text() const
{
    const auto [count, total] = figures.total();
    return QString::number(count) + m_kind.countWords + (m_kind.side.hasUnitCost ? profit : total).inReais() +
           m_kind.side.settledWords + figures.settled.sum.inReais() + u"  -  Total pendente: "_s +
           figures.pending.sum.inReais();
}

namespace stocklists {

QString query(const StockKind &kind, const StockFilter &filter, QDate today)
{
    return entryfilter::query(kind.side,
                              {.basedOn = entryfilter::byEntryDate.toString(),
                               .status = filter.status,
                               .account = {},
                               .centre = {},
                               .contact = filter.contact,
                               .period = filter.period,
                               .product = filter.product},
                              today);
}

QString filterText(const StockKind &kind, const StockFilter &filter)
{
    return u"Período: %1 - Mostrar: %2 - Produto: %3 - %4: %5"_s.arg(
        filter.period, filter.status, filter.product, kind.side.contactTitle, filter.contact);
}

std::vector<ListColumn> columns(const StockKind &kind)
{
    std::vector<ListColumn> result = entrylist::columns(kind.side);
    const std::pair<QString, int> widths[] = {{u"descricao"_s, 100},
                                              {kind.side.contactColumnKey, 140},
                                              {u"produto"_s, 190},
                                              {u"qtde"_s, 50},
                                              {u"informacoes"_s, 140}};
    for (const auto &[key, width] : widths)
        result[std::size_t(entrylist::columnOf(kind.side, key))].width = width;
    const auto cost = std::ranges::find(result, u"custo"_s, &ListColumn::key);
    if (cost != result.end()) {
        cost->sources = {u"custo"_s, u"moeda"_s};
        cost->format = cellformat::withCurrency;
        result.insert(
            cost + 1,
            {{u"margem"_s, u"Margem"_s, CellKind::Number, 70, {u"valor"_s, u"custo"_s}, writeMarkup},
             {u"lucro"_s,
              u"Lucro unitário"_s,
              CellKind::Amount,
              95,
              {u"valor"_s, u"custo"_s, u"moeda"_s},
              writeProfit}});
    }
    return result;
}

QStringList productNames(Connection &connection, const StockKind &kind)
{
    QStringList names = namesIn(connection, kind, u"produto"_s);
    names.removeAll(stock::noProduct);
    return names;
}

QStringList contactNames(Connection &connection, const StockKind &kind)
{
    return namesIn(connection, kind, kind.side.contactColumn);
}

QString markup(Money value, Money cost)
{
    if (cost.isZero())
        return u"-"_s;
    try {
        const Decimal ratio = *value.dividedBy(cost);
        return (ratio - Decimal::fromInteger(1)).times(Decimal::fromInteger(100)).grouped() + u'%';
    } catch (const Error &) { // out of range
        return u"valor grande demais"_s;
    }
}

} // namespace stocklists
