// A list filled and filtered, as the user sees it: from the question to the painted rows.

#include "data.h"
#include "data/dialect.h"
#include "floor.h"
#include "measures.h"
#include "settings/database.h"
#include "shownpane.h"
#include "table.h"

#include "widgets/listfinder.h"

#include <QComboBox>
#include <QLineEdit>

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

/// From the last key to the painted rows; the floor reads all those texts once.
void measureFinding(Table &table, ShownPane &pane, Floor &floor, const QByteArray &sql)
{
    ListView &list = pane.list();
    list.finder().open();
    auto *text = list.findChild<QLineEdit *>(u"txtlocalizar"_s);
    const int all = list.rowCount();
    text->setText(u"zzz"_s);
    while (list.rowCount() == all)
        QCoreApplication::processEvents();
    bool odd = false;
    const Timing timing = inTurn(
        runs,
        [&] {
            text->setText((odd = !odd) ? u"agua"_s : u"acucar 5"_s);
            QCoreApplication::processEvents();
        },
        [&] { floor.readTexts(sql); });
    table.add(u"Narrowing a list of 100,000 payables by a word"_s, timing, 0.5);
}

void measureMemory(Table &table)
{
    constexpr double rows = 1'000'000;
    benchdata::use(benchdata::manyPayables());
    ShownPane pane; // the store's page cache is full now
    pane.findChild<QComboBox *>(u"cbofiltrop"_s)->setCurrentText(u"próximo mês"_s);
    pane.paint();
    if (pane.list().rowCount() != 0)
        qFatal("%d rows of next month", pane.list().rowCount());
    const qint64 before = allocatedBytes();
    choose(pane, u"cbofiltrop"_s, u"Todos os dados"_s, int(rows));
    const double perRow = double(allocatedBytes() - before) / rows;
    table.add(u"Memory of a list of 1,000,000 payables, bytes a row"_s, QString::number(perRow, 'f', 1),
              u"-"_s, perRow, 24);
}

} // namespace

void measureLists(Table &table)
{
    const QString folder = benchdata::large();
    benchdata::use(folder);
    ShownPane pane;
    Floor floor(benchdata::databaseIn(folder));
    const QByteArray sql = storeSql(pane.query());
    table.add(u"List of 100,000 payables, filled and painted"_s,
              inTurn(
                  runs, [&] { pane.fill(); }, [&] { floor.readTexts(sql); }),
              2);
    measureFinding(table, pane, floor, sql);
    measureMemory(table);
}
