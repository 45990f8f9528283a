#include "analysis/figurekind.h"

#include "data/dates.h"
#include "lists/readrows.h"

using namespace Qt::StringLiterals;

namespace {

const QString noneToday = u"Não há dados cadastrados com a data de hoje!"_s;
const QString noneInMonth = u"Não há dados cadastrados neste mês!"_s;
const QString noneInYear = u"Não há dados cadastrados este ano!"_s;

QString counted(const Figures::Part &part)
{
    return QString::number(part.count) + u" cadastros"_s;
}

} // namespace

const FigureKind &payableFigures()
{
    static const FigureKind kind{
        .table = payable().table,
        .side = &payable(),
        .periods =
            {{{u"movimento do dia (despesas)"_s, u"Estatistica de movimento do dia(despesas)"_s, noneToday},
              {u"movimento do mês (despesas)"_s, u"Estatistica de movimento do mês(despesas)"_s, noneInMonth},
              {u"movimento anual (despesas)"_s, u"Estatistica de movimento anual(despesas)"_s, noneInYear}}},
        .heading = u"Estatistica de contas a pagar"_s,
        .labels = {u"Total de despesas cadastradas:"_s, u"Total de despesas:"_s,
                   u"Qtd de despesas pagas cadastradas:"_s, u"Total de despesas pagas:"_s,
                   u"Qtd de despesas pendentes cadastradas:"_s, u"Total de despesas pendentes:"_s},
        .series = {u"Total de despesas"_s, u"Despesas pagas"_s, u"Despesas pendentes"_s},
        .chartCaption = u"Gráfico de contas a pagar(personalizado)"_s,
        .chartTitle = u"Gráfico de contas a pagar - despesas"_s,
        .noneFound = u"A pesquisa não retonou resultados"_s,
    };
    return kind;
}

const FigureKind &receivableFigures()
{
    static const FigureKind kind{
        .table = receivable().table,
        .side = &receivable(),
        .periods =
            {{{u"movimento do dia (lucros)"_s, u"Estatistica de movimento do dia(lucros)"_s, noneToday},
              {u"movimento do mês (lucros)"_s, u"Estatistica de movimento do mês(lucros)"_s, noneInMonth},
              {u"movimento do ano (lucros)"_s, u"Estatistica de movimento anual(lucros)"_s,
               u"Não há dados cadastrados este mês!"_s}}},
        .heading = u"Estatistica de contas a receber"_s,
        .labels = {u"Total de receitas cadastradas:"_s, u"Total de receitas:"_s,
                   u"Qtd de receitas recebidas cadastradas:"_s, u"Total de receitas recebidas:"_s,
                   u"Qtd de receitas pendentes cadastradas:"_s, u"Total de receitas pendentes:"_s},
        .series = {u"Total de receitas"_s, u"Receitas recebidas"_s, u"Receitas pendentes"_s},
        .chartCaption = u"Gráfico de contas a receber(personalizado)"_s,
        .chartTitle = u"Gráfico de contas a receber - receitas"_s,
        .noneFound = u"A pesquisa não retonou resultados"_s,
    };
    return kind;
}

const FigureKind &bankFigures()
{
    static const FigureKind kind{
        .table = bankView().table,
        .side = nullptr,
        .periods =
            {{{u"movimento do dia (bancário)"_s, u"Estatistica de movimento do dia(bancário)"_s, noneToday},
              {u"movimento do mês (bancário)"_s, u"Estatistica de movimento do mês(bancário)"_s, noneInMonth},
              {u"movimento anual (bancário)"_s, u"Estatistica de movimento anual(bancário)"_s, noneInYear}}},
        .heading = u"Estatistica de contas a receber"_s, // as the receivables: users know it so
        .labels = {u"Total de cadastradas:"_s, u"Valor Total:"_s, u"Qtd de concluidos cadastradas:"_s,
                   u"Total de concluidos:"_s, u"Qtd de pendentes cadastradas:"_s, u"Total de pendentes:"_s},
        .series = {u"Total"_s, u"Concluídos"_s, u"Pendentes"_s},
        .chartCaption = u"Gráfico de movimento bancário(personalizado)"_s,
        .chartTitle = u"Gráfico de movimento bancário"_s,
        .noneFound = u"A pesquisa não retornou resultados"_s,
    };
    return kind;
}

namespace figures {

QString query(const FigureKind &kind, ViewPeriod period, QDate today)
{
    const QString from = u"SELECT * FROM "_s + kind.table;
    switch (period) {
    case ViewPeriod::Day:
        return from + u" where data like '"_s + dates::stored(today) + u'\'';
    case ViewPeriod::Month:
        return from + u" where(Data like '%"_s + today.toString(u"yyyy/MM"_s) + u"/%')"_s;
    case ViewPeriod::Year:
        break;
    }
    return from + u" where (data like '%"_s + today.toString(u"yyyy"_s) + u"%')"_s;
}

Figures read(Connection &connection, const QString &query, Progress *progress)
{
    FigureTotals totals(StatusRule::BothWords);
    readrows::sum(connection, query, totals, progress);
    return totals.figures;
}

QStringList lines(const FigureKind &kind, const Figures &figures)
{
    QStringList all;
    auto label = kind.labels.begin();
    for (const Figures::Part &part : {figures.total(), figures.settled, figures.pending}) {
        all << *label++ + u' ' + counted(part);
        all << *label++ + u' ' + part.sum.inReais();
    }
    return all;
}

ChartData chart(const FigureKind &kind, const Figures &figures)
{
    return {.categories = {u"Valores"_s},
            .series = {{kind.series[0], {figures.total().sum}},
                       {kind.series[1], {figures.settled.sum}},
                       {kind.series[2], {figures.pending.sum}}},
            .heading = kind.heading,
            .lines = lines(kind, figures)};
}

std::optional<Report> statistics(Connection &connection, const FigureKind &kind, ViewPeriod period,
                                 QDate today, Progress *progress)
{
    const Figures figures = read(connection, query(kind, period, today), progress);
    if (figures.total().count == 0)
        return std::nullopt;
    return Report{.title = kind.periods[std::size_t(period)].statistics,
                  .filterText = periodview::periodText(period, today),
                  .lines = lines(kind, figures)};
}

std::optional<ChartData> chart(Connection &connection, const FigureKind &kind, ViewPeriod period, QDate today,
                               Progress *progress)
{
    const Figures figures = read(connection, query(kind, period, today), progress);
    if (figures.total().count == 0)
        return std::nullopt;
    const FigureWords &words = kind.periods[std::size_t(period)];
    ChartData data = chart(kind, figures);
    data.caption = u"Gráfico de "_s + words.movement;
    data.title = words.movement;
    data.title[0] = data.title[0].toUpper();
    data.heading = words.statistics;
    data.categories = {periodview::periodText(period, today)};
    return data;
}

} // namespace figures
