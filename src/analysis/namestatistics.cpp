#include "analysis/namestatistics.h"

#include "entries/centres.h"
#include "entries/entryreport.h"
#include "lists/namegroups.h"
#include "lists/readrows.h"

using namespace Qt::StringLiterals;

namespace {

/// Units of a product and what they brought or cost.
struct Goods
{
    Sum units, value;

    Goods &operator+=(const Goods &more)
    {
        units += more.units;
        value += more.value;
        return *this;
    }
    QString text() const { return units.plain() + u" itens ("_s + value.inReais() + u')'; }
};

/// The same with pending and settled entries apart.
struct SoldGoods
{
    Figures units, value;

    SoldGoods &operator+=(const SoldGoods &more)
    {
        units += more.units;
        value += more.value;
        return *this;
    }
};

/// Counts the rows that several passes go over.
class Passes
{
public:
    Passes(Connection &connection, const QStringList &tables, Progress *progress) : m_progress(progress)
    {
        if (progress)
            progress->begin([&connection, tables] {
                qint64 rows = 0;
                for (const QString &table : tables)
                    if (Statement counted = connection.prepare(u"Select count(*) from "_s + table);
                        counted.step())
                        rows += counted.integer(0);
                return rows;
            });
    }
    void rowDone()
    {
        if (m_progress)
            m_progress->advance(++m_done);
    }

private:
    Progress *m_progress;
    qint64 m_done = 0;
};

/// Hands `add` the sums of each row's product and the row: its product, quantity, amount and status.
template <typename Sums, typename Add>
void addByProduct(Connection &connection, const Side &side, NameGroups<Sums> &groups, Passes &passes, Add add)
{
    Statement rows = connection.prepare(u"Select produto, qtde, valor, estatus from "_s + side.table,
                                        dialect::RowOrder::Any);
    while (rows.step()) {
        if (!rows.isNull(0))
            add(groups.of(rows.utf8(0)), rows);
        passes.rowDone();
    }
}

void readGoods(Connection &connection, const Side &side, NameGroups<Goods> &groups, Passes &passes)
{
    addByProduct(connection, side, groups, passes, [](Goods &goods, const Statement &row) {
        goods.units += Quantity::stored(row.utf8(1));
        goods.value += Money::stored(row.utf8(2));
    });
}

QStringList productNames(Connection &connection)
{
    return readrows::names(connection, u"Select * from produto"_s, u"produto"_s);
}

std::shared_ptr<StoredTable> table(const QStringList &headings)
{
    std::vector<ListColumn> columns;
    for (const QString &heading : headings)
        columns.push_back({heading, heading, columns.empty() ? CellKind::Text : CellKind::Amount});
    return std::make_shared<StoredTable>(std::move(columns));
}

} // namespace

namespace namestatistics {

std::optional<Report> centres(Connection &connection, const Side &side, Progress *progress)
{
    const CentreSide &words = side.centres;
    const QStringList names = readrows::names(connection, u"Select * from "_s + words.table, u"descricao"_s);
    if (names.isEmpty())
        return std::nullopt;
    const auto shown = [](const Figures::Part &part) {
        return QString::number(part.count) + u" ("_s + part.sum.inReais() + u')';
    };
    const std::shared_ptr<StoredTable> lines =
        table({words.caption, u"Total"_s, side.settledTitle, u"Pendente"_s});
    Figures all;
    for (const CentreLine &line : ::centres::summary(connection, words, names, progress)) {
        const Figures &figures = line.figures;
        lines->append({line.name, shown(figures.total()), shown(figures.settled), shown(figures.pending)});
        all += figures;
    }
    return Report{.title = words.statisticsTitle,
                  .tables = {lines},
                  .statistics =
                      entryreport::totals(words.statisticsTotalWords, words.statisticsSettledWords, all)};
}

std::optional<Report> stock(Connection &connection, Progress *progress)
{
    const QStringList names = productNames(connection);
    if (names.isEmpty())
        return std::nullopt;
    Passes passes(connection, {payable().table, receivable().table}, progress);
    NameGroups<Goods> bought, sold;
    readGoods(connection, payable(), bought, passes);
    readGoods(connection, receivable(), sold, passes);

    const std::shared_ptr<StoredTable> lines =
        table({u"Produto"_s, u"Entrada (compras)"_s, u"Saída (vendas)"_s, u"Saldo"_s});
    Goods allBought, allSold;
    for (const QString &name : names) {
        const Goods in = bought.like(name), out = sold.like(name);
        lines->append({name, in.text(), out.text(), (out.value - in.value).inReais()});
        allBought += in;
        allSold += out;
    }
    return Report{.title = u"Estatística de estoque (entrada e saida)"_s,
                  .tables = {lines},
                  .statistics = u"Saldo: "_s + (allSold.value - allBought.value).inReais() +
                                u" - Total entrada: "_s + allBought.value.inReais() +
                                u" - Total saída (vendas): "_s + allSold.value.inReais()};
}

std::optional<Report> sales(Connection &connection, Progress *progress)
{
    const QStringList names = productNames(connection);
    if (names.isEmpty())
        return std::nullopt;
    Passes passes(connection, {receivable().table}, progress);
    NameGroups<SoldGoods> sold;
    addByProduct(connection, receivable(), sold, passes, [](SoldGoods &goods, const Statement &row) {
        const std::string_view status = row.utf8(3);
        goods.units.add(status, Quantity::stored(row.utf8(1)), 1, StatusRule::BothWords);
        goods.value.add(status, Money::stored(row.utf8(2)), 1, StatusRule::BothWords);
    });

    const std::shared_ptr<StoredTable> lines =
        table({u"Produto"_s, u"Pendente"_s, u"Concluído"_s, u"Total"_s});
    const auto shown = [](const Figures::Part &units, const Figures::Part &value) {
        return Goods{units.sum, value.sum}.text();
    };
    SoldGoods all;
    for (const QString &name : names) {
        const SoldGoods goods = sold.like(name);
        lines->append({name, shown(goods.units.pending, goods.value.pending),
                       shown(goods.units.settled, goods.value.settled),
                       shown(goods.units.total(), goods.value.total())});
        all += goods;
    }
    const auto sum = [](const Figures::Part &part) { return part.sum.inReais(); };
    return Report{.title = u"RESUMO DE VENDAS"_s,
                  .tables = {lines},
                  .statistics = u"Total: "_s + sum(all.value.total()) + u" - Total pendente: "_s +
                                sum(all.value.pending) + u" - Total Concluído (recebido): "_s +
                                sum(all.value.settled)};
}

} // namespace namestatistics
