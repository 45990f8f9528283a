#include "support/answers.h"
#include "widgets/listview.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Rows from lines of cells parted by "|".
RowStore rowsOf(const std::vector<std::string_view> &lines)
{
    RowStore rows(5);
    for (const std::string_view line : lines) {
        std::vector<std::string_view> cells;
        for (std::size_t begin = 0; begin <= line.size();) {
            const std::size_t end = std::min(line.find('|', begin), line.size());
            cells.push_back(line.substr(begin, end - begin));
            begin = end + 1;
        }
        rows.append(cells);
    }
    return rows;
}

std::vector<ListColumn> columns()
{
    return {{u"codigo"_s, u"Código"_s, CellKind::Number, 0},
            {u"data"_s, u"Data"_s, CellKind::Date, 90},
            {u"nome"_s, u"Nome"_s, CellKind::Text, 120},
            {u"valor"_s, u"Valor"_s, CellKind::Amount, 80},
            {u"qtde"_s, u"Qtde"_s, CellKind::Number, 60}};
}

RowStore entries()
{
    return rowsOf({"1|10/02/2026|Água|R$ 1.000,00|10", "2|09/12/2025|zebra|R$ -5,00|9", "3||Árvore|R$ 20,00|",
                   "10|01/03/2026|arroz|€ 20,00|100", "11|01/03/2026|Bola|R$ 3,50|2"});
}

/// The row keys as shown, top to bottom.
QString keys(const TableModel &table)
{
    QStringList result;
    for (int row = 0; row < table.rowCount(); ++row)
        result << table.cell(row, 0);
    return result.join(u' ');
}

/// A list with entries() on the screen.
struct Shown
{
    Shown()
    {
        list.setColumns(columns());
        list.setRows(entries());
        list.resize(400, 250);
        list.show();
        list.activateWindow();
        if (QTest::qWaitForWindowActive(&list))
            list.setFocus();
    }
    ListView list;
};

} // namespace

class tst_listview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowStoreKeepsTexts();
    void modelContract();
    void sortsByKind();
    void headerClicksSortAndGiveTheOrderBack();
    void newRowsKeepSelectionAndPlace();
    void keysActOnRows();
    void copiesWhatIsShown();
};

void tst_listview::rowStoreKeepsTexts()
{
    RowStore rows(2);
    const std::string large(3'000'000, 'x');
    for (int i = 0; i < 20000; ++i)
        rows.append({std::to_string(i), i == 7 ? std::string_view(large) : std::string_view("ação")});
    QVERIFY(rows.text(6, 1) == u"ação" && rows.cell(7, 1) == large && rows.text(19999, 0) == u"19999");
}

void tst_listview::modelContract()
{
    TableModel table;
    const QAbstractItemModelTester tester(&table, QAbstractItemModelTester::FailureReportingMode::QtTest);
    table.setColumns(columns());
    table.setRows(entries());
    table.setColours(Qt::red, Qt::white, {});
    table.sort(2, Qt::AscendingOrder);
    QCOMPARE(keys(table), u"1 10 3 11 2"_s);
    QCOMPARE(table.index(0, 2).data(Qt::ForegroundRole), QVariant(QColor(Qt::red)));
    QCOMPARE(table.index(0, 2).data(Qt::BackgroundRole), QVariant(QColor(Qt::white)));
    QCOMPARE(table.index(1, 2).data(Qt::BackgroundRole), QVariant());
    table.setRows(RowStore(5));
    QCOMPARE(table.rowCount(), 0);
}

/// Ties stay in the order of the rows, and a blank number counts as none.
void tst_listview::sortsByKind()
{
    checkAnswers(u"0 -> 1 2 3 10 11, 11 10 3 2 1 ; 1 -> 3 2 1 10 11, 10 11 1 2 3\n"
                 "2 -> 1 10 3 11 2, 2 11 3 10 1 ; 3 -> 2 11 3 10 1, 1 3 10 11 2\n"
                 "4 -> 3 11 2 1 10, 10 1 2 11 3 ; -1 -> 1 2 3 10 11, 1 2 3 10 11"_s,
                 [](const QString &column) {
                     TableModel table;
                     table.setColumns(columns());
                     table.setRows(entries());
                     table.sort(column.toInt(), Qt::AscendingOrder);
                     const QString ascending = keys(table);
                     table.sort(column.toInt(), Qt::DescendingOrder);
                     return ascending + u", "_s + keys(table);
                 });
}

void tst_listview::headerClicksSortAndGiveTheOrderBack()
{
    Shown shown;
    QHeaderView *header = shown.list.header();
    const QPoint name(header->sectionViewportPosition(2) + 20, header->height() / 2);
    QString orders = keys(shown.list.table());
    for (int click = 0; click < 3; ++click) {
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, name);
        orders += u'\n' + keys(shown.list.table());
    }
    QCOMPARE(orders, u"1 2 3 10 11\n1 10 3 11 2\n2 11 3 10 1\n1 2 3 10 11"_s);
}

void tst_listview::newRowsKeepSelectionAndPlace()
{
    Shown shown;
    const auto show = [&](const std::string &prefix, int without) {
        RowStore rows(5);
        for (int i = 1; i <= 200; ++i)
            if (i != without)
                rows.append({prefix + std::to_string(i), "", "", "", ""});
        shown.list.setRows(std::move(rows));
    };
    show("", 0);
    shown.list.selectRow(119);
    shown.list.verticalScrollBar()->setValue(30);
    show("", 50);
    QCOMPARE(shown.list.cell(shown.list.selectedRow(), 0), u"120"_s);
    QCOMPARE(shown.list.verticalScrollBar()->value(), 30);
    show("x", 0);
    QVERIFY(shown.list.selectedRows().empty());
}

void tst_listview::keysActOnRows()
{
    Shown shown;
    QSignalSpy activated(&shown.list, &ListView::rowActivated);
    QSignalSpy removing(&shown.list, &ListView::removeRequested);
    shown.list.selectRow(-1);
    QTest::keyClick(&shown.list, Qt::Key_Delete);
    QCOMPARE(removing.count(), 0);
    shown.list.selectRow(4);
    QTest::keyClick(&shown.list, Qt::Key_Up, Qt::ShiftModifier);
    QTest::keyClick(&shown.list, Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(shown.list.selectedRows(), (std::vector<int>{2, 3, 4}));
    QCOMPARE(shown.list.selectedRow(), 2);
    QTest::keyClick(&shown.list, Qt::Key_Delete);
    QTest::keyClick(&shown.list, Qt::Key_Enter);
    const QPoint second = shown.list.visualRect(shown.list.table().index(1, 2)).center();
    QTest::mouseClick(shown.list.viewport(), Qt::LeftButton, {}, second);
    QTest::mouseDClick(shown.list.viewport(), Qt::LeftButton, {}, second);
    QCOMPARE(removing.count(), 1);
    QCOMPARE(activated, (QList<QVariantList>{{2}, {1}}));
}

void tst_listview::copiesWhatIsShown()
{
    Shown shown;
    shown.list.setRows(rowsOf({"7|01/03/2026|duas\nlinhas|R$ 1,00|3", "8|||R$ 2,00|4"}));
    shown.list.header()->moveSection(3, 1);
    shown.list.selectAll();
    QTest::keySequence(&shown.list, QKeySequence::Copy);
    QCOMPARE(QApplication::clipboard()->text(), u"R$ 1,00\t01/03/2026\tduas linhas\t3\nR$ 2,00\t\t\t4\n"_s);
}

QTEST_MAIN(tst_listview)
#include "tst_listview.moc"
