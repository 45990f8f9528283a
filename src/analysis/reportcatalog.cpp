#include "analysis/reportcatalog.h"

#include "agenda/appointments.h"
#include "analysis/accountresults.h"
#include "analysis/cashflow.h"
#include "analysis/comparison.h"
#include "analysis/dialogreports.h"
#include "analysis/figurekind.h"
#include "analysis/integratedreport.h"
#include "analysis/movementreport.h"
#include "analysis/namestatistics.h"
#include "analysis/statement.h"
#include "analysis/today.h"
#include "entries/centres.h"
#include "entries/contact.h"
#include "entries/contacthistory.h"
#include "lists/readrows.h"
#include "stock/products.h"

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

using reportcatalog::Request;

QDate firstOf(const Request &request)
{
    return request.first.isValid() ? request.first : QDate(1900, 1, 1);
}

QDate lastOf(const Request &request)
{
    return request.last.isValid() ? request.last : QDate(2999, 12, 31);
}

/// The totals name the days only where some were asked for.
std::optional<Report> withDates(std::optional<Report> report, const Request &request)
{
    if (!report || request.first.isValid())
        return report;
    const qsizetype begin = report->statistics.indexOf(u" (entre "),
                    end = report->statistics.indexOf(u')', begin);
    if (begin >= 0 && end > begin)
        report->statistics.remove(begin, end - begin + 1);
    return report;
}

template <dialogreports::Kind kind>
std::optional<Report> ofTable(Connection &connection, const Request &request)
{
    return withDates(
        dialogreports::read(connection, dialogreports::page(kind),
                            {.datesWanted = request.first.isValid(),
                             .first = firstOf(request),
                             .last = lastOf(request),
                             .names = QStringList(qsizetype(dialogreports::page(kind).names.size()))}),
        request);
}

template <dialogreports::Choice kind>
std::optional<Report> ofName(Connection &connection, const Request &request)
{
    return withDates(dialogreports::read(connection, dialogreports::command(kind),
                                         {.datesWanted = request.first.isValid(),
                                          .first = firstOf(request),
                                          .last = lastOf(request),
                                          .names = {request.name}}),
                     request);
}

template <cashflow::Mode mode>
std::optional<Report> cashFlow(Connection &connection, const Request &request)
{
    const QDate first = request.first.isValid() ? request.first : request.today;
    const QDate last = request.last.isValid() ? request.last : request.today.addMonths(1);
    const cashflow::Result result =
        cashflow::read(connection, mode,
                       {first, last, cashflow::allAccounts(), cashflow::statusWords().constFirst()}, nullptr);
    Report report = cashflow::report(result);
    for (const cashflow::Part &part : result.parts)
        report.tables.push_back(part.rows);
    return cashflow::count(result) == 0 ? std::nullopt : std::optional(report);
}

std::optional<Report> ofStatement(Connection &connection, const Request &request)
{
    const StatementChoice choice{request.name, firstOf(request), lastOf(request)};
    const AccountStatement read = statement::read(connection, choice);
    if (read.rows->rowCount() == 0)
        return std::nullopt;
    std::vector<int> order(std::size_t(read.rows->rowCount()));
    std::iota(order.begin(), order.end(), 0);
    return Report{.title = statement::caption(choice),
                  .filterText = request.first.isValid() ? statement::periodText(choice) : QString(),
                  .tables = {statement::inOrder(*read.rows, order)},
                  .statistics = statement::totals(read)};
}

std::optional<Report> integrated(Connection &connection, const Request &request)
{
    integratedreport::Choices choices;
    for (integratedreport::SectionChoices &section : choices) {
        section.allDates = !request.first.isValid();
        section.first = request.first;
        section.last = request.last;
    }
    const integratedreport::Result result = integratedreport::read(connection, choices);
    return integratedreport::saved(result, result.table);
}

template <const Side &(*side)(), ViewPeriod period>
std::optional<Report> movement(Connection &connection, const Request &request)
{
    return movementreport::read(connection, side(), period, request.today.startOfDay(), nullptr);
}

template <const FigureKind &(*kind)(), ViewPeriod period>
std::optional<Report> statistics(Connection &connection, const Request &request)
{
    return figures::statistics(connection, kind(), period, request.today, nullptr);
}

template <const Side &(*side)()>
std::optional<Report> centreStatistics(Connection &connection, const Request &)
{
    return namestatistics::centres(connection, side(), nullptr);
}

std::optional<Report> stockStatistics(Connection &connection, const Request &)
{
    return namestatistics::stock(connection, nullptr);
}

std::optional<Report> salesStatistics(Connection &connection, const Request &)
{
    return namestatistics::sales(connection, nullptr);
}

template <const CentreSide &(*side)()>
std::optional<Report> centreSummary(Connection &connection, const Request &)
{
    const auto lines = centres::summary(connection, side(), centres::names(connection, side()));
    return lines.empty() ? std::nullopt : std::optional(centres::report(side(), lines));
}

template <const Side &(*side)(), comparison::Span span>
std::optional<Report> compare(Connection &connection, const Request &request)
{
    const QDate before =
        span == comparison::Span::Year ? request.today.addYears(-1) : request.today.addMonths(-1);
    comparison::Result result{&side(),
                              {comparison::Period{span, before.year(), before.month()},
                               comparison::Period{span, request.today.year(), request.today.month()}},
                              {}};
    for (std::size_t i = 0; i < 2; ++i)
        result.figures[i] = comparison::read(connection, side(), result.periods[i], nullptr);
    return comparison::printed(result);
}

std::optional<Report> results(Connection &connection, const Request &request)
{
    ResultFilter filter;
    filter.span = ResultFilter::Span::Range;
    filter.first = firstOf(request);
    filter.last = lastOf(request);
    const auto result = accountresults::read(connection, filter, nullptr);
    if (!result)
        return std::nullopt;
    return Report{.title = u"Relação de despesas e lucros"_s,
                  .filterText = request.first.isValid() ? accountresults::filterText(filter) : QString(),
                  .tables = {result->table},
                  .statistics = accountresults::totalText(*result)};
}

template <const ContactSide &(*side)()>
std::optional<Report> contacts(Connection &connection, const Request &)
{
    const std::vector<ListColumn> columns = contact::columns(side());
    const std::vector<ListColumn> shown(columns.begin() + 1, columns.end()); // without the row key
    const auto table = std::make_shared<StoredTable>(shown);
    NoTotals none;
    const qint64 count = readrows::into(*table, connection,
                                        contact::query(side(), {contact::filterChoices(side()).constFirst(),
                                                                {},
                                                                contact::sortChoices(side()).constFirst(),
                                                                contact::directionChoices().constFirst()}),
                                        shown, side().subject, none);
    if (count == 0)
        return std::nullopt;
    return Report{.title = side().reportTitle,
                  .tables = {table},
                  .statistics = side().totalWords + QString::number(count)};
}

template <const HistorySide &(*side)()>
std::optional<Report> history(Connection &connection, const Request &request)
{
    const std::vector<ListColumn> columns = contacthistory::columns();
    const auto table = std::make_shared<StoredTable>(columns);
    FigureTotals totals;
    if (readrows::into(*table, connection,
                       contacthistory::query(side(), request.name, contacthistory::Shown::All), columns,
                       side().entries.subject, totals) == 0)
        return std::nullopt;
    return Report{.title = side().reportTitle,
                  .subtitle = side().heading + request.name,
                  .tables = {table},
                  .statistics = contacthistory::totals(side(), totals.figures)};
}

std::optional<Report> stock(Connection &connection, const Request &)
{
    ProductList list = products::list(connection);
    const QString summary = list.summary();
    if (list.rows.rowCount() == 0)
        return std::nullopt;
    return Report{.title = u"Estoque"_s,
                  .tables = {std::make_shared<StoredTable>(products::columns(), std::move(list.rows))},
                  .statistics = summary};
}

std::optional<Report> agenda(Connection &connection, const Request &request)
{
    std::optional<AppointmentDates> dates;
    if (request.first.isValid())
        dates = AppointmentDates{request.first, request.last};
    const appointments::Listing listing = appointments::read(connection, dates, request.today);
    if (listing.rows->rowCount() == 0)
        return std::nullopt;
    return appointments::report(listing, listing.rows);
}

/// The connection of a report is somebody else's and outlives the reading.
std::shared_ptr<Connection> borrowed(Connection &connection)
{
    return {std::shared_ptr<Connection>(), &connection};
}

std::optional<Report> balances(Connection &connection, const Request &)
{
    const auto accounts = accounts::balances(borrowed(connection));
    if (accounts.empty())
        return std::nullopt;
    return Report{.title = u"Saldos de caixas e bancos"_s, .tables = {today::balances(accounts)}};
}

std::optional<Report> dueNow(Connection &connection, const Request &request)
{
    TodayLoad load(borrowed(connection), request.today);
    while (!load.run(QDeadlineTimer(QDeadlineTimer::Forever))) {
    }
    const TodayFacts facts = load.take();
    const Sum cash = today::total(accounts::balances(borrowed(connection)));
    return Report{
        .title = u"Hoje"_s,
        .tables = {today::summary(facts), facts.due, today::months(facts)},
        .tableTitles = {u"Vencimentos"_s, u"Contas vencidas e a vencer"_s, u"Este mês e o anterior"_s},
        .statistics = today::projectionText(facts, today::projection(facts, cash))};
}

} // namespace

namespace reportcatalog {

const std::vector<Entry> &all()
{
    using comparison::Span;
    using dialogreports::Choice;
    using dialogreports::Kind;
    static const std::vector<Entry> entries{
        {u"hoje"_s, u"o que vence, o mês e o caixa de 90 dias"_s, Needs::Nothing, dueNow},
        {u"saldos"_s, u"saldos dos caixas e bancos"_s, Needs::Nothing, balances},
        {u"contas-a-pagar"_s, u"despesas, por data de cadastro"_s, Needs::Dates, ofTable<Kind::Payables>},
        {u"contas-a-receber"_s, u"receitas, por data de cadastro"_s, Needs::Dates,
         ofTable<Kind::Receivables>},
        {u"movimentos"_s, u"movimento bancário"_s, Needs::Dates, ofTable<Kind::Movements>},
        {u"compras"_s, u"compras de produtos"_s, Needs::Dates, ofTable<Kind::Purchases>},
        {u"vendas"_s, u"vendas de produtos"_s, Needs::Dates, ofTable<Kind::Sales>},
        {u"integrado"_s, u"despesas, receitas e movimentos juntos"_s, Needs::Dates, integrated},
        {u"fluxo-de-caixa"_s, u"previsão por vencimento"_s, Needs::Dates, cashFlow<cashflow::Mode::General>},
        {u"fluxo-pagar"_s, u"previsão das despesas"_s, Needs::Dates, cashFlow<cashflow::Mode::Payables>},
        {u"fluxo-receber"_s, u"previsão das receitas"_s, Needs::Dates, cashFlow<cashflow::Mode::Receivables>},
        {u"extrato"_s, u"extrato de um caixa ou banco"_s, Needs::NameAndDates, ofStatement},
        {u"despesas-e-lucros"_s, u"despesas e lucros de cada conta"_s, Needs::Dates, results},
        {u"cliente"_s, u"receitas de um cliente"_s, Needs::NameAndDates, ofName<Choice::Client>},
        {u"fornecedor"_s, u"despesas de um fornecedor"_s, Needs::NameAndDates, ofName<Choice::Supplier>},
        {u"centro-de-custo"_s, u"despesas de um centro"_s, Needs::NameAndDates, ofName<Choice::CostCentre>},
        {u"centro-de-lucro"_s, u"receitas de um centro"_s, Needs::NameAndDates, ofName<Choice::ProfitCentre>},
        {u"pagamento-despesas"_s, u"despesas de uma forma de pagamento"_s, Needs::NameAndDates,
         ofName<Choice::Payment>},
        {u"pagamento-receitas"_s, u"receitas de uma forma de pagamento"_s, Needs::NameAndDates,
         ofName<Choice::PaymentReceived>},
        {u"historico-cliente"_s, u"histórico financeiro de um cliente"_s, Needs::Name,
         history<clientHistory>},
        {u"historico-fornecedor"_s, u"histórico financeiro de um fornecedor"_s, Needs::Name,
         history<supplierHistory>},
        {u"clientes"_s, u"lista de clientes"_s, Needs::Nothing, contacts<::clients>},
        {u"fornecedores"_s, u"lista de fornecedores"_s, Needs::Nothing, contacts<::suppliers>},
        {u"estoque"_s, u"lista de produtos"_s, Needs::Nothing, stock},
        {u"compromissos"_s, u"agenda"_s, Needs::Dates, agenda},
        {u"centros-de-custo"_s, u"resumo dos centros de custo"_s, Needs::Nothing, centreSummary<costCentres>},
        {u"centros-de-lucro"_s, u"resumo dos centros de lucro"_s, Needs::Nothing,
         centreSummary<profitCentres>},
        {u"despesas-do-dia"_s, u"movimento do dia"_s, Needs::Nothing, movement<payable, ViewPeriod::Day>},
        {u"despesas-do-mes"_s, u"movimento do mês"_s, Needs::Nothing, movement<payable, ViewPeriod::Month>},
        {u"despesas-do-ano"_s, u"movimento do ano"_s, Needs::Nothing, movement<payable, ViewPeriod::Year>},
        {u"receitas-do-dia"_s, u"movimento do dia"_s, Needs::Nothing, movement<receivable, ViewPeriod::Day>},
        {u"receitas-do-mes"_s, u"movimento do mês"_s, Needs::Nothing,
         movement<receivable, ViewPeriod::Month>},
        {u"receitas-do-ano"_s, u"movimento do ano"_s, Needs::Nothing, movement<receivable, ViewPeriod::Year>},
        {u"estatistica-despesas-mes"_s, u"estatística do mês"_s, Needs::Nothing,
         statistics<payableFigures, ViewPeriod::Month>},
        {u"estatistica-despesas-ano"_s, u"estatística do ano"_s, Needs::Nothing,
         statistics<payableFigures, ViewPeriod::Year>},
        {u"estatistica-receitas-mes"_s, u"estatística do mês"_s, Needs::Nothing,
         statistics<receivableFigures, ViewPeriod::Month>},
        {u"estatistica-receitas-ano"_s, u"estatística do ano"_s, Needs::Nothing,
         statistics<receivableFigures, ViewPeriod::Year>},
        {u"estatistica-bancos-mes"_s, u"estatística do mês"_s, Needs::Nothing,
         statistics<bankFigures, ViewPeriod::Month>},
        {u"estatistica-bancos-ano"_s, u"estatística do ano"_s, Needs::Nothing,
         statistics<bankFigures, ViewPeriod::Year>},
        {u"estatistica-custos"_s, u"estatística dos centros de custo"_s, Needs::Nothing,
         centreStatistics<payable>},
        {u"estatistica-lucros"_s, u"estatística dos centros de lucro"_s, Needs::Nothing,
         centreStatistics<receivable>},
        {u"estatistica-estoque"_s, u"compras e vendas de cada produto"_s, Needs::Nothing, stockStatistics},
        {u"estatistica-vendas"_s, u"vendas de cada produto"_s, Needs::Nothing, salesStatistics},
        {u"comparar-despesas-anos"_s, u"este ano e o anterior"_s, Needs::Nothing,
         compare<payable, Span::Year>},
        {u"comparar-despesas-meses"_s, u"este mês e o anterior"_s, Needs::Nothing,
         compare<payable, Span::Month>},
        {u"comparar-receitas-anos"_s, u"este ano e o anterior"_s, Needs::Nothing,
         compare<receivable, Span::Year>},
        {u"comparar-receitas-meses"_s, u"este mês e o anterior"_s, Needs::Nothing,
         compare<receivable, Span::Month>},
    };
    return entries;
}

const Entry *find(const QString &name)
{
    const auto found = std::ranges::find(all(), name, &Entry::name);
    return found == all().end() ? nullptr : &*found;
}

std::optional<QString> problem(const Entry &entry, const Request &request)
{
    const bool takesDates = entry.needs == Needs::Dates || entry.needs == Needs::NameAndDates;
    const bool takesName = entry.needs == Needs::Name || entry.needs == Needs::NameAndDates;
    if (takesName && request.name.trimmed().isEmpty())
        return u"O relatório \"%1\" pede um nome: --nome NOME."_s.arg(entry.name);
    if (!takesName && !request.name.isEmpty())
        return u"O relatório \"%1\" não tem nome a escolher."_s.arg(entry.name);
    if (!takesDates && (request.first.isValid() || request.last.isValid()))
        return u"O relatório \"%1\" não tem datas a escolher."_s.arg(entry.name);
    if (request.first.isValid() != request.last.isValid())
        return u"Dê as duas datas, --de e --ate, ou nenhuma."_s;
    if (request.first.isValid() && request.first > request.last)
        return u"A data --de vem depois da data --ate."_s;
    return std::nullopt;
}

} // namespace reportcatalog
