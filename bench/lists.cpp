// A list filled and filtered, as the user sees it: from the question to the painted rows.

#include "data.h"
#include "data/dialect.h"
#include "entries/entrylist.h"
#include "floor.h"
#include "measures.h"
#include "settings/database.h"
#include "shownpane.h"
#include "table.h"

#include <QComboBox>

#include <malloc.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int runs = 11;

qint64 allocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks + info.hblkhd);
}

void choose(ShownPane &pane, const QString &box, const QString &choice, int rows)
{
    pane.findChild<QComboBox *>(box)->setCurrentText(choice);
    pane.paint();
    if (pane.list().rowCount() != rows)
        qFatal("%d rows for \"%s\", not %d", pane.list().rowCount(), qPrintable(choice), rows);
}

QByteArray storeSql(const QString &query)
{
    return dialect::translate(query).sql.toUtf8();
}

void measureMemory(Table &table, ShownPane &pane)
{
    choose(pane, u"cbobancop"_s, benchdata::account.toString(), benchdata::selectedRows);
    const qint64 before = allocatedBytes();
    choose(pane, u"cbobancop"_s, entryfilter::allAccounts.toString(), 100'000);
    const qint64 grown = allocatedBytes() - before;
    const qint64 text = entrylist::load(*openDatabase(), payable(), pane.query(), nullptr).rows.textBytes();
    constexpr double rows = 100'000 - benchdata::selectedRows;
    const double textPerRow = double(text) / 100'000;
    const double perRow = double(grown) / rows;
    table.add(u"Memory of the same list, bytes a row over its text"_s, QString::number(perRow, 'f', 0),
              QString::number(textPerRow, 'f', 0), perRow - textPerRow, 300);
}

void measureFilter(Table &table, ShownPane &pane, const QString &what, const QString &box, QStringView choice)
{
    const QString all = pane.findChild<QComboBox *>(box)->itemText(0);
    const Timing timing = inTurn(
        runs, [&] { choose(pane, box, choice.toString(), benchdata::selectedRows); },
        [&] { choose(pane, box, all, 100'000); });
    table.add(u"1,000 of 100,000 payables by "_s + what + u", against all of them"_s, timing, 0.1);
}

} // namespace

void measureLists(Table &table)
{
    const QString folder = benchdata::large();
    benchdata::use(folder);
    ShownPane pane;
    pane.refillFilterBoxes();
    Floor floor(benchdata::databaseIn(folder));
    const QByteArray sql = storeSql(pane.query());
    table.add(u"List of 100,000 payables, filled and painted"_s,
              inTurn(
                  runs, [&] { pane.fill(); }, [&] { floor.readTexts(sql); }),
              2);
    measureMemory(table, pane);
    measureFilter(table, pane, u"account"_s, u"cbobancop"_s, benchdata::account);
    measureFilter(table, pane, u"contact"_s, u"cbofornecedor"_s, benchdata::contact);
    measureFilter(table, pane, u"centre"_s, u"cbocentrocusto"_s, benchdata::centre);
}
