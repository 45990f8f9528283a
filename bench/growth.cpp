// What a list and an entry cost as the business grows.

#include "data.h"
#include "entries/entry.h"
#include "measures.h"
#include "settings/database.h"
#include "shownpane.h"
#include "table.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

struct Cost
{
    double perRow, perEntry;
};

Cost cost(qint64 entries)
{
    benchdata::use(benchdata::grown(entries));
    ShownPane pane;
    std::vector<double> fills, loads;
    for (int i = 0; i < 7; ++i)
        fills.push_back(seconds([&pane] { pane.fill(); }));
    const int rows = pane.list().rowCount();
    for (int i = 0; i < 501; ++i) {
        const QString code = QString::number(1 + qint64(i) * (rows - 1) / 500);
        loads.push_back(seconds([&code] { entry::load(*openDatabase(), payable(), code); }));
    }
    return {median(fills) / rows, median(loads)};
}

} // namespace

void measureGrowth(Table &table)
{
    const Cost small = cost(10'000);
    for (const qint64 entries : {100'000, 1'000'000}) {
        const Cost grown = cost(entries);
        const QString size = QLocale(QLocale::English).toString(entries);
        table.add(u"A row of the list at %1 entries, against 10,000"_s.arg(size),
                  {grown.perRow, small.perRow}, 1.5);
        table.add(u"Opening one of %1 entries, against one of 10,000"_s.arg(size),
                  {grown.perEntry, small.perEntry}, 1.5);
    }
}
