// What the reports read, against a bare pass over the same rows.

#include "analysis/cashflow.h"
#include "analysis/comparison.h"
#include "analysis/figurekind.h"
#include "analysis/integratedreport.h"
#include "analysis/namestatistics.h"
#include "analysis/statement.h"
#include "analysis/today.h"
#include "data.h"
#include "data/dialect.h"
#include "data/dialect_dates.h"
#include "floor.h"
#include "measures.h"
#include "settings/database.h"
#include "table.h"

#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr int runs = 11;
const QDate firstDay(2000, 1, 1), lastDay(2099, 12, 31);

QByteArray storeSql(const QString &query)
{
    return dialect::translate(query).sql.toUtf8();
}

/// The account with the most entries.
QString busiestAccount()
{
    Statement rows = openDatabase()->prepareNative(
        "SELECT origem FROM pagar GROUP BY origem ORDER BY count(*) DESC LIMIT 1");
    return rows.step() ? rows.text(0) : QString();
}

void measureStatement(Table &table, Floor &floor)
{
    const StatementChoice choice{busiestAccount(), firstDay, lastDay};
    const auto queries = statement::queries(choice);
    table.add(u"Statement of the busiest account over all time"_s,
              inTurn(
                  runs,
                  [&] {
                      const AccountStatement read = statement::read(*openDatabase(), choice);
                      std::vector<int> order(std::size_t(read.rows->rowCount()));
                      std::iota(order.begin(), order.end(), 0);
                      statement::inOrder(*read.rows, order);
                  },
                  [&] {
                      for (const QString &query : queries)
                          floor.readTexts(storeSql(query));
                  }),
              2);
}

void measureCashFlow(Table &table, Floor &floor)
{
    const cashflow::Choice choice{QDate(2026, 1, 1), QDate(2026, 12, 31), cashflow::allAccounts(),
                                  cashflow::statusWords().constFirst()};
    table.add(u"Cash flow of a year, both sides"_s,
              inTurn(
                  runs, [&] { cashflow::read(*openDatabase(), cashflow::Mode::General, choice, nullptr); },
                  [&] {
                      for (const Side *side : {&payable(), &receivable()})
                          floor.readTexts(storeSql(cashflow::query(*side, choice)));
                  }),
              2);
}

void measureToday(Table &table, Floor &floor)
{
    const QDate today(2026, 6, 30);
    const QString date = dialect::dateExpression(u"vencimento");
    table.add(u"What is due, and the cash of 90 days"_s,
              inTurn(
                  runs,
                  [&] {
                      TodayLoad load(openDatabase(), today);
                      while (!load.run(QDeadlineTimer(QDeadlineTimer::Forever))) {
                      }
                  },
                  [&] {
                      for (const Side *side : {&payable(), &receivable()})
                          floor.readTexts(
                              u"SELECT %1, código, estatus, valor FROM %2 WHERE %1 <= '2026/09/28' "
                              "ORDER BY %1, código"_s.arg(date, side->table)
                                  .toUtf8());
                  }),
              1.5);
}

void measureComparison(Table &table, Floor &floor)
{
    const comparison::Period years[] = {{comparison::Span::Year, 2025}, {comparison::Span::Year, 2026}};
    table.add(u"Comparison of two years of payables"_s,
              inTurn(
                  runs,
                  [&] {
                      for (const comparison::Period &year : years)
                          comparison::read(*openDatabase(), payable(), year, nullptr);
                  },
                  [&] {
                      for (const comparison::Period &year : years)
                          floor.readTexts(storeSql(comparison::query(payable(), year)));
                  }),
              2);
}

void measureIntegrated(Table &table, Floor &floor)
{
    integratedreport::Choices everything;
    std::vector<QByteArray> queries;
    for (int i = 0; i < integratedreport::sectionCount; ++i)
        queries.push_back(
            storeSql(integratedreport::query(integratedreport::section(i), everything[std::size_t(i)]).sql));
    table.add(u"Integrated report of everything, 220,000 rows"_s,
              inTurn(
                  runs, [&] { integratedreport::read(*openDatabase(), everything, nullptr); },
                  [&] {
                      for (const QByteArray &query : queries)
                          floor.readTexts(query);
                  }),
              2);
}

void measureChart(Table &table, Floor &floor)
{
    const QDate today(2026, 6, 30);
    const QByteArray sql = storeSql(figures::query(receivableFigures(), ViewPeriod::Year, today));
    table.add(
        u"Annual chart"_s,
        inTurn(
            runs,
            [&] { figures::chart(*openDatabase(), receivableFigures(), ViewPeriod::Year, today, nullptr); },
            [&] { floor.readTexts(sql); }),
        1.5);
}

/// 50 centres and 500 products.
void measureNames(Table &table)
{
    const QString folder = benchdata::centres();
    benchdata::use(folder);
    Floor floor(benchdata::databaseIn(folder));
    const auto pass = [&floor](const QByteArray &columns, const QByteArray &from) {
        floor.readTexts("SELECT " + columns + " FROM " + from);
    };
    table.add(u"Statistics of 50 centres over 200,000 entries"_s,
              inTurn(
                  runs, [] { namestatistics::centres(*openDatabase(), payable(), nullptr); },
                  [&] { pass("descricao, estatus, valor", "pagar"); }),
              2);
    table.add(u"Statistics of 500 products over 400,000 entries"_s,
              inTurn(
                  runs, [] { namestatistics::stock(*openDatabase(), nullptr); },
                  [&] {
                      pass("produto, qtde, valor", "pagar");
                      pass("produto, qtde, valor", "receber");
                  }),
              2);
    table.add(u"Summary of the sales of 500 products over 200,000 entries"_s,
              inTurn(
                  runs, [] { namestatistics::sales(*openDatabase(), nullptr); },
                  [&] { pass("produto, qtde, valor, estatus", "receber"); }),
              2);
}

} // namespace

void measureAnalysis(Table &table)
{
    const QString folder = benchdata::large();
    benchdata::use(folder);
    Floor floor(benchdata::databaseIn(folder));
    measureStatement(table, floor);
    measureCashFlow(table, floor);
    measureToday(table, floor);
    measureComparison(table, floor);
    measureIntegrated(table, floor);
    measureChart(table, floor);
    measureNames(table);
}
