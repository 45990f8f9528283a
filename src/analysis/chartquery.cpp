#include "analysis/chartquery.h"

#include "data/literal.h"

using namespace Qt::StringLiterals;

namespace {

/// The beginning that all queries share, up to the status.
QString fromWhere(const QString &table, const ChartFilter &filter)
{
    const QString dates = filter.byDate ? u"WHERE Data BETWEEN "_s + sql::literal(filter.first) + u" AND "_s +
                                              sql::literal(filter.last) + u"  AND "_s
                                        : u" WHERE "_s;
    return u"Select * from "_s + table + u' ' + dates + u"estatus like ("_s + sql::containing(filter.status) +
           u") "_s;
}

QString andLike(const QString &column, const QString &name)
{
    return u"AND "_s + column + u" like("_s + sql::containing(name) + u") "_s;
}

} // namespace

namespace chartquery {

std::optional<QString> problem(const ChartFilter &filter)
{
    if (filter.byDate && (filter.first.isEmpty() || filter.last.isEmpty()))
        return u"Selecione as que deseja filtrar(data de inicio e data final)."_s;
    return std::nullopt;
}

QString query(const FigureKind &kind, const ChartFilter &filter)
{
    const QString rows = fromWhere(kind.table, filter);
    if (!kind.side)
        return rows + andLike(u"origem"_s, filter.account) + andLike(u"destino"_s, filter.destination);
    return rows + andLike(kind.side->contactColumn, filter.contact) + andLike(u"origem"_s, filter.account) +
           andLike(u"descricao"_s, filter.centre) + u' ';
}

QString opposed(const Side &side, const ChartFilter &filter)
{
    return fromWhere(side.table, filter) + andLike(u"origem"_s, filter.account);
}

std::optional<ChartData> chart(Connection &connection, const FigureKind &kind, const ChartFilter &filter,
                               Progress *progress)
{
    const Figures found = figures::read(connection, query(kind, filter), progress);
    if (found.total().count == 0)
        return std::nullopt;
    ChartData chart = figures::chart(kind, found);
    chart.caption = kind.chartCaption;
    chart.title = kind.chartTitle;
    return chart;
}

std::optional<ChartData> bothSides(Connection &connection, const ChartFilter &filter, Progress *progress)
{
    const auto total = [&](const Side &side) {
        return figures::read(connection, opposed(side, filter), progress).total();
    };
    const Figures::Part expenses = total(payable()), income = total(receivable());
    if (expenses.count + income.count == 0)
        return std::nullopt;
    const QString title = u"Gráfico de despesas x receitas"_s;
    const auto line = [](const QString &label, Sum sum) { return label + u": "_s + sum.inReais(); };
    return ChartData{.caption = title + u"(personalizado)"_s,
                     .title = title,
                     .categories = {u"Total"_s},
                     .series = {{u"Despesas"_s, {expenses.sum}}, {u"Receitas"_s, {income.sum}}},
                     .heading = u"Estatistica de despesas x receitas"_s,
                     .lines = {line(u"Total Geral"_s, income.sum + expenses.sum),
                               line(u"Total de receitas"_s, income.sum),
                               line(u"Total de despesas"_s, expenses.sum),
                               line(u"Diferença entre despesas x receitas"_s, income.sum - expenses.sum)}};
}

} // namespace chartquery
