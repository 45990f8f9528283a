#include "sales/stocklists.h"

#include "data/dates.h"
#include "data/recordset.h"
#include "data/status.h"
#include "entries/entryfilter.h"
#include "entries/entrylist.h"
#include "stock/stock.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

std::string_view value(const Recordset &rows, QStringView column)
{
    return rows.utf8(rows.column(column));
}

/// One entry's amounts and its cells, in the order of columns().
class Line
{
public:
    Line(const Recordset &rows, const StockKind &kind) : m_rows(rows), m_side(kind.side)
    {
        m_value = Money::stored(value(rows, u"valor"));
        if (m_side.hasUnitCost)
            m_cost = Money::stored(value(rows, u"custo"));
    }

    void addTo(StockTotals &totals) const
    {
        ++totals.count;
        totals.total += m_value;
        const bool pending = m_rows.text(u"estatus") == status::pending;
        (pending ? totals.pending : totals.settled) += m_value;
        if (m_side.hasUnitCost)
            totals.profit += (m_value - m_cost).times(Money::stored(value(m_rows, u"qtde")));
    }

    std::vector<std::string> cells() const
    {
        std::vector<std::string> result{text(u"código"),
                                        date(u"data"),
                                        text(u"descricao"),
                                        text(u"documento"),
                                        text(m_side.contactColumn),
                                        date(u"vencimento"),
                                        amount(m_value)};
        if (m_side.hasUnitCost) {
            result.push_back(amount(m_cost));
            result.push_back(stocklists::markup(m_value, m_cost).toStdString());
            result.push_back(amount(m_value - m_cost));
        }
        for (const QStringView column : {u"produto", u"qtde", u"estatus", u"origem", u"informacoes"})
            result.push_back(text(column));
        return result;
    }

private:
    std::string text(QStringView column) const { return std::string(value(m_rows, column)); }
    std::string date(QStringView column) const
    {
        std::string shown;
        dates::appendShown(value(m_rows, column), shown);
        return shown;
    }
    std::string amount(Money money) const
    {
        std::string shown = text(u"moeda") + ' ';
        money.appendGrouped(shown);
        return shown;
    }

    const Recordset &m_rows;
    const Side &m_side;
    Money m_value, m_cost;
};

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

QString StockTotals::text(const StockKind &kind) const
{
    return QString::number(count) + kind.countWords + (kind.side.hasUnitCost ? profit : total).inReais() +
           kind.side.settledWords + settled.inReais() + u"  -  Total pendente: "_s + pending.inReais();
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

std::vector<Column> columns(const StockKind &kind)
{
    std::vector<Column> result = entrylist::columns(kind.side);
    const std::pair<QString, int> widths[] = {{u"descricao"_s, 100},
                                              {kind.side.contactColumnKey, 140},
                                              {u"produto"_s, 190},
                                              {u"qtde"_s, 50},
                                              {u"informacoes"_s, 140}};
    for (const auto &[key, width] : widths)
        result[std::size_t(entrylist::columnOf(kind.side, key))].width = width;
    const auto cost = std::ranges::find(result, u"custo"_s, &Column::key);
    if (cost != result.end())
        result.insert(cost + 1, {{u"margem"_s, u"Margem"_s, CellKind::Number, 70},
                                 {u"lucro"_s, u"Lucro unitário"_s, CellKind::Amount, 95}});
    return result;
}

StockList load(Connection &connection, const StockKind &kind, const QString &query, Progress *progress)
{
    Recordset rows(connection, query);
    StockList list{RowStore(int(columns(kind).size())), {}};
    if (progress)
        progress->begin([&rows] { return rows.count(); });
    while (rows.next()) {
        const Line line(rows, kind);
        const std::vector<std::string> cells = line.cells();
        list.rows.append({cells.begin(), cells.end()});
        line.addTo(list.totals);
        if (progress)
            progress->advance(list.totals.count);
    }
    return list;
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
    const std::optional<Money> ratio = value.dividedBy(cost);
    return ratio ? (*ratio - Money::fromInteger(1)).times(Money::fromInteger(100)).grouped() + u'%' : u"-"_s;
}

} // namespace stocklists
