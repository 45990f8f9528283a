// From the start of a process to a window that shows its lists and answers.

#include "app/frmprincipal.h"
#include "app/icons.h"
#include "bank/movementlist.h"
#include "data.h"
#include "data/clock.h"
#include "data/dialect.h"
#include "entries/entryfilter.h"
#include "floor.h"
#include "measures.h"
#include "process.h"
#include "table.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

/// The three lists as the main window asks for them, and the balances.
void readAll(Floor &floor)
{
    const QDate today = programclock::today();
    const QString queries[] = {entryfilter::query(payable(), {}, today),
                               entryfilter::query(receivable(), {}, today), movementlist::query({}, today)};
    for (const QString &query : queries)
        floor.readTexts(dialect::translate(query).sql.toUtf8());
    floor.settledSums();
}

} // namespace

void measureStart(Table &table)
{
    const QString large = benchdata::large(), empty = benchdata::empty();
    std::vector<double> fullTime, emptyTime, floorTime, fullMemory, emptyMemory;
    for (int i = 0; i < 9; ++i) {
        const Finished ofFull = runAlone(u"--start"_s, large);
        const Finished ofEmpty = runAlone(u"--start"_s, empty);
        Floor floor(benchdata::databaseIn(large));
        if (i == 0) // the first reads the files from the disk
            continue;
        fullTime.push_back(ofFull.seconds);
        fullMemory.push_back(ofFull.mebibytes);
        emptyTime.push_back(ofEmpty.seconds);
        emptyMemory.push_back(ofEmpty.mebibytes);
        floorTime.push_back(seconds([&floor] { readAll(floor); }));
    }
    const Timing more{median(fullTime) - median(emptyTime), median(floorTime)};
    table.add(u"Start with 220,000 rows, beyond the start with none"_s, more, 2);
    const double before = median(emptyMemory), peak = median(fullMemory);
    table.add(u"Peak memory of that start over the empty one, MiB"_s, QString::number(peak, 'f', 0),
              QString::number(before, 'f', 0), peak - before, 100);
}

void startOnly(const QString &folder)
{
    benchdata::use(folder);
    icons::choose();
    frmPrincipal window;
    window.show();
    window.start();
    bool answered = false;
    QMetaObject::invokeMethod(
        qApp, [&answered] { answered = true; }, Qt::QueuedConnection);
    while (!answered)
        QCoreApplication::processEvents();
    window.repaint();
}
