// From the start of a process to a window that shows its lists and answers.

#include "analysis/today.h"
#include "app/frmprincipal.h"
#include "app/icons.h"
#include "bank/movementlist.h"
#include "data.h"
#include "data/clock.h"
#include "data/dates.h"
#include "data/dialect.h"
#include "data/dialect_dates.h"
#include "entries/entryfilter.h"
#include "floor.h"
#include "idle.h"
#include "measures.h"
#include "process.h"
#include "table.h"

#include <QApplication>
#include <QEventLoop>

using namespace Qt::StringLiterals;

namespace {

/// The page Hoje and the three lists as the main window asks for them, and the balances.
void readAll(Floor &floor)
{
    const QDate today = programclock::today();
    const QString queries[] = {entryfilter::query(payable(), {}, today),
                               entryfilter::query(receivable(), {}, today), movementlist::query({}, today)};
    for (const QString &query : queries)
        floor.readTexts(dialect::translate(query).sql.toUtf8());
    const QString date = dialect::dateExpression(u"vencimento");
    for (const Side *side : {&payable(), &receivable()})
        floor.readTexts(u"SELECT %1, código, estatus, valor FROM %2 WHERE %1 <= '%3' ORDER BY %1, código"_s
                            .arg(date, side->table, dates::stored(today.addDays(TodayFacts::days)))
                            .toUtf8());
    floor.settledSums();
}

/// Medians of several starts.
struct Starts
{
    double answering, complete; ///< seconds beyond the start with an empty database
    double floor;               ///< seconds
    double mebibytes;
};

Starts measured(const QString &folder, int times)
{
    std::vector<double> answering, complete, emptyTime, floorTime, memory;
    for (int i = 0; i <= times; ++i) {
        const Finished ofEmpty = runAlone(u"--start"_s, benchdata::empty());
        const Finished answered = runAlone(u"--start"_s, folder);
        const Finished completed = runAlone(u"--startall"_s, folder);
        Floor floor(benchdata::databaseIn(folder));
        if (i == 0) // the first reads the files from the disk
            continue;
        emptyTime.push_back(ofEmpty.seconds);
        answering.push_back(answered.seconds);
        complete.push_back(completed.seconds);
        memory.push_back(completed.mebibytes);
        floorTime.push_back(seconds([&floor] { readAll(floor); }));
    }
    const double before = median(emptyTime);
    return {median(answering) - before, median(complete) - before, median(floorTime), median(memory)};
}

} // namespace

void measureStart(Table &table)
{
    const Starts large = measured(benchdata::large(), 8);
    table.add(u"Start with 220,000 rows beyond the start with none, list shown and window answering"_s,
              {large.answering, large.floor}, 0.5);
    table.add(u"The same until every list, total and balance is there"_s, {large.complete, large.floor}, 1);
    const Starts million = measured(benchdata::grown(1'000'000), 4);
    table.add(u"Start with 1,000,000 entries, list shown and window answering, against 220,000 rows"_s,
              {million.answering, large.answering}, 2);
    table.add(u"The same until every list, total and balance is there, against its floor"_s,
              {million.complete, million.floor}, 1);
    table.add(u"Peak memory of that start, MiB"_s, QString::number(million.mebibytes, 'f', 0), u"-"_s,
              million.mebibytes, 120);
}

namespace {

/// Starts the program; tells the time when the window shows its list and answers, or else when all is there.
void start(const QString &folder, bool untilComplete)
{
    benchdata::use(folder);
    icons::choose();
    frmPrincipal window;
    window.show();
    window.start();
    QEventLoop answering; // as the program runs: what is done in idle time comes after what is waiting
    QMetaObject::invokeMethod(&answering, &QEventLoop::quit, Qt::QueuedConnection);
    answering.exec();
    if (untilComplete)
        waitUntilIdle(window);
    window.repaint();
}

} // namespace

void startOnly(const QString &folder)
{
    start(folder, false);
}

void startCompletely(const QString &folder)
{
    start(folder, true);
}
