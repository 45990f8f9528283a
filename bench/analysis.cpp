// What the reports read, against a bare pass over the same rows.

#include "analysis/statement.h"
#include "data.h"
#include "data/dialect.h"
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

} // namespace

void measureAnalysis(Table &table)
{
    const QString folder = benchdata::large();
    benchdata::use(folder);
    Floor floor(benchdata::databaseIn(folder));
    measureStatement(table, floor);
}
