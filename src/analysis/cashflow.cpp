#include "analysis/cashflow.h"

#include "data/dates.h"
#include "data/literal.h"
#include "data/status.h"
#include "entries/entryreport.h"
#include "lists/readrows.h"
#include "reports/html.h"

using namespace Qt::StringLiterals;

namespace cashflow {

namespace {

std::vector<const Side *> sides(Mode mode)
{
    switch (mode) {
    case Mode::Payables:
        return {&payable()};
    case Mode::Receivables:
        return {&receivable()};
    case Mode::General:
        break;
    }
    return {&payable(), &receivable()};
}

QString statusWord(const QString &choice)
{
    const QString lower = choice.toLower();
    if (lower == u"pendentes")
        return status::pending.toString();
    return lower == u"concluidas" ? status::settled.toString() : QString();
}

QString datesText(const Choice &choice)
{
    return u"Previsão entre os vencimentos de "_s + dates::shown(choice.first) + u" até "_s +
           dates::shown(choice.last);
}

QString daysText(const Choice &choice)
{
    return QString::number(choice.first.daysTo(choice.last)) + u" dias"_s;
}

/// A label and the sum that follows it.
struct Amount
{
    QString label;
    Sum sum;
};

/// Of the HTML summary.
std::vector<Amount> amounts(const Result &result)
{
    const Figures &first = result.parts.front().figures;
    if (result.mode == Mode::General) {
        const Sum expenses = first.total().sum;
        const Sum receipts = result.parts.back().figures.total().sum;
        return {{u"Total receitas:"_s, receipts},
                {u"Total de despesas:"_s, expenses},
                {u"Saldo:"_s, receipts - expenses}};
    }
    const Side &side = *result.parts.front().side;
    return {{u"Total de "_s + side.plural + u":"_s, first.total().sum},
            {u"Total "_s + side.settledWord + u":"_s, first.settled.sum},
            {u"Total pendente:"_s, first.pending.sum}};
}

} // namespace

QString allAccounts()
{
    return u"Todos os bancos"_s;
}

QStringList statusWords()
{
    return {u"Pendentes e Concluidas"_s, u"Concluidas"_s, u"Pendentes"_s};
}

std::vector<ListColumn> columns(const Side &side)
{
    std::vector<ListColumn> columns = entryreport::columns(side);
    for (ListColumn &column : columns) {
        if (column.kind == CellKind::Amount)
            column.format = cellformat::withCurrencyAndBlank;
        else if (column.kind != CellKind::Date)
            column.format = cellformat::textAndBlank;
        else if (column.key == u"vencimento")
            column.format = cellformat::dateAndBlank;
    }
    return columns;
}

QString query(const Side &side, const Choice &choice)
{
    const bool all = choice.account.compare(allAccounts(), Qt::CaseInsensitive) == 0;
    return u"Select * from "_s + side.table + u" WHERE vencimento BETWEEN '"_s + dates::stored(choice.first) +
           u"' AND '"_s + dates::stored(choice.last) + u"' AND estatus like ("_s +
           sql::containing(statusWord(choice.status)) + u") AND "_s + side.contactColumn +
           u" like('%%') AND origem like("_s + sql::containing(all ? QString() : choice.account) +
           u") AND descricao like('%%') "_s;
}

Result read(Connection &connection, Mode mode, const Choice &choice, Progress *progress)
{
    Result result{mode, choice, {}};
    for (const Side *side : sides(mode)) {
        const std::vector<ListColumn> cells = columns(*side);
        Part part{side, std::make_shared<StoredTable>(cells)};
        FigureTotals totals;
        readrows::into(*part.rows, connection, query(*side, choice), cells, side->subject, totals, progress);
        part.figures = totals.figures;
        result.parts.push_back(std::move(part));
    }
    return result;
}

QString emptyMessage(Mode mode, const Side &side)
{
    const QString check = u", verifique se os dados informados estão corretos e se existem cadastros entre "
                          "as datas informadas!"_s;
    const QString none = u"A pesquisa não retornou resultados"_s;
    if (mode == Mode::General)
        return none + u" em "_s + side.reportHeading.toLower() + check;
    return mode == Mode::Payables ? none : none + check;
}

QString caption(Mode mode)
{
    return u"FLUXO DE CAIXA - "_s + (mode == Mode::General ? u"GERAL"_s : sides(mode).front()->reportHeading);
}

QString periodText(const Choice &choice)
{
    return datesText(choice) + u" - Período de: "_s + daysText(choice);
}

QString totals(const Result &result)
{
    const Figures &first = result.parts.front().figures;
    if (result.mode != Mode::General)
        return entryreport::totals(*result.parts.front().side, first);
    const Sum expenses = first.total().sum;
    const Sum receipts = result.parts.back().figures.total().sum;
    return u"Total de receitas: R$ "_s + receipts.grouped() + u" - Total de despesas: R$ "_s +
           expenses.grouped() + u" - Saldo: R$ "_s + (receipts - expenses).grouped();
}

qint64 count(const Result &result)
{
    qint64 count = 0;
    for (const Part &part : result.parts)
        count += part.figures.total().count;
    return count;
}

QString countText(const Result &result)
{
    return u"Total de cadastros: "_s + QString::number(count(result));
}

QString summary(const Result &result)
{
    return periodText(result.choice) + u" \r\nExibindo do Banco: "_s + result.choice.account +
           u"\r\nExibindo com o estatus: "_s + result.choice.status + u"\r\n"_s + totals(result);
}

QString htmlSummary(const Result &result)
{
    const Choice &choice = result.choice;
    QString text = datesText(choice) + u"<br><b>Período de:</b> "_s + daysText(choice) +
                   u" <br><b>Exibindo do Banco:</b> "_s + html::escaped(choice.account) +
                   u"<br><b>Exibindo com o estatus:</b> "_s + html::escaped(choice.status);
    for (const Amount &amount : amounts(result))
        text += u"<br><b>"_s + amount.label + u"</b> R$ "_s + amount.sum.grouped();
    return text + u"<br><b>Total de cadastros no período:</b> "_s + QString::number(count(result)) +
           u" cadastros"_s;
}

Report report(const Result &result)
{
    Report report{.title = caption(result.mode), .filterText = periodText(result.choice)};
    if (result.mode == Mode::General)
        for (const Part &part : result.parts)
            report.tableTitles << part.side->reportHeading + u":"_s;
    report.statistics = report.textStatistics = summary(result);
    report.htmlTail = u"<hr><br>"_s + htmlSummary(result) + u"<br><b>Estatísticas</b><hr>"_s;
    return report;
}

} // namespace cashflow
