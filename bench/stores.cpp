// What needs no window: balances, centres, opening.

#include "bank/accounts.h"
#include "data.h"
#include "entries/centres.h"
#include "floor.h"
#include "measures.h"
#include "settings/database.h"
#include "table.h"

using namespace Qt::StringLiterals;

void measureAccounts(Table &table)
{
    const QString folder = benchdata::large();
    benchdata::use(folder);
    Floor floor(benchdata::databaseIn(folder));
    const Timing timing = inTurn(
        21, [] { accounts::balances(openDatabase()); }, [&floor] { floor.settledSums(); });
    table.add(u"Balances of 20 accounts over 220,000 rows"_s, timing, 1.5);
}

void measureOpening(Table &table)
{
    benchdata::use(benchdata::large());
    const Timing timing = inTurn(
        21, [] { openDatabase(); },
        [] {
            closeDatabase();
            *openDatabase();
        });
    table.add(u"Opening the database again, against the first time"_s, timing, 0.01);
}

void measureCentres(Table &table)
{
    const QString folder = benchdata::centres();
    benchdata::use(folder);
    Floor floor(benchdata::databaseIn(folder));
    const CentreSide &side = costCentres();
    const QStringList names = centres::names(*openDatabase(), side);
    const Timing timing = inTurn(
        11, [&] { centres::summary(*openDatabase(), side, names); },
        [&] { floor.sum("SELECT descricao, valor, estatus FROM pagar"); });
    table.add(u"Summary of %1 centres over 200,000 entries"_s.arg(names.size()), timing, 2);
}
