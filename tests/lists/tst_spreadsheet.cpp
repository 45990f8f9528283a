#include "lists/spreadsheet.h"
#include "lists/storedtable.h"
#include "support/paper.h"
#include "support/testprogram.h"
#include "widgets/listview.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QMenu>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

StoredTable list()
{
    StoredTable table({{u"data"_s, u"Data"_s, CellKind::Date},
                       {u"nome"_s, u"Nome; \"cliente\""_s},
                       {u"valor"_s, u"Valor"_s, CellKind::Amount},
                       {u"saldo"_s, u"Saldo"_s, CellKind::Amount},
                       {u"qtde"_s, u"Qtde"_s, CellKind::Number}});
    table.append(QStringList{u"05/11/2026"_s, u"=2+3"_s, u"R$ 1.234,50 "_s, u"+1.234,50"_s, u"3"_s});
    table.append(QStringList{u"31/12/1999"_s, u"Zé; \"o\"\nbom"_s, u"US$ -0,01"_s, u"-0,0001"_s, u"1,5"_s});
    table.append(QStringList{u""_s, u"-"_s, u""_s, u"999.999.999.999,99"_s, u"3 dias"_s});
    return table;
}

/// What another program reads in the file: "A1 type value format", one line a cell.
QString readBack(const QString &path)
{
    const QString script =
        u"import openpyxl, sys\n"
        "book = openpyxl.load_workbook(sys.argv[1])\n"
        "sheet = book.active\n"
        "print(book.sheetnames, sheet.freeze_panes)\n"
        "for row in sheet.iter_rows():\n"
        "    for cell in row:\n"
        "        if cell.value is not None:\n"
        "            print(cell.coordinate, cell.data_type, repr(cell.value), cell.number_format)\n"_s;
    QProcess reader;
    reader.start(u"/usr/bin/python3"_s, {u"-c"_s, script, path});
    return reader.waitForFinished()
               ? QString::fromUtf8(reader.readAllStandardOutput() + reader.readAllStandardError())
               : reader.errorString();
}

} // namespace

class tst_spreadsheet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void csv();
    void workbookIsReadByOthers();
    void failedSaveKeepsTheOlderFile();
    void whatASheetCannotHoldIsRefused();
    void headingsHaveAMenu();
};

void tst_spreadsheet::csv()
{
    const TestProgram program;
    const QString path = program.file(u"lista.csv"_s);
    spreadsheet::saveCsv(path, list(), nullptr);
    QVERIFY(contentsOf(path).startsWith("\xEF\xBB\xBF"));
    QCOMPARE(QString::fromUtf8(contentsOf(path)),
             u"Data;\"Nome; \"\"cliente\"\"\";Valor;Saldo;Qtde\r\n"
             "05/11/2026;'=2+3;1234,50;1234,50;3\r\n"
             "31/12/1999;\"Zé; \"\"o\"\"\nbom\";US$ -0,01;-0,0001;1,5\r\n"
             ";-;;999999999999,99;3 dias\r\n"_s);
}

void tst_spreadsheet::workbookIsReadByOthers()
{
    const TestProgram program;
    const QString path = program.file(u"lista.xlsx"_s);
    spreadsheet::saveXlsx(path, u"Contas: pagar/receber [2026] de uma loja muito grande"_s, list(), nullptr);
    const QString read = readBack(path), expected = u"['Contas pagar receber 2026 de um'] A2\n"
                                                    "A1 s 'Data' General\n"
                                                    "B1 s 'Nome; \"cliente\"' General\n"
                                                    "C1 s 'Valor' General\n"
                                                    "D1 s 'Saldo' General\n"
                                                    "E1 s 'Qtde' General\n"
                                                    "A2 d datetime.datetime(2026, 11, 5, 0, 0) dd/mm/yyyy\n"
                                                    "B2 s '=2+3' General\n"
                                                    "C2 n 1234.5 \"R$ \"#,##0.00\n"
                                                    "D2 n 1234.5 #,##0.00\n"
                                                    "E2 n 3 General\n"
                                                    "A3 d datetime.datetime(1999, 12, 31, 0, 0) dd/mm/yyyy\n"
                                                    "B3 s 'Zé; \"o\"\\nbom' General\n"
                                                    "C3 n -0.01 \"US$ \"#,##0.00\n"
                                                    "D3 n -0.0001 #,##0.00\n"
                                                    "E3 n 1.5 General\n"
                                                    "B4 s '-' General\n"
                                                    "D4 n 999999999999.99 #,##0.00\n"
                                                    "E4 s '3 dias' General\n"
                                                    "C5 f '=SUM(C2:C4)' #,##0.00\n"_s;
    QVERIFY2(read == expected, qPrintable(read));
}

void tst_spreadsheet::failedSaveKeepsTheOlderFile()
{
    const TestProgram program;
    const QString missing = program.file(u"nenhuma/lista"_s);
    QVERIFY_THROWS_EXCEPTION(Error, spreadsheet::saveCsv(missing, list(), nullptr));
    QVERIFY_THROWS_EXCEPTION(Error, spreadsheet::saveXlsx(missing, {}, list(), nullptr));
    struct Stopper : Progress
    {
        void begin(std::function<qint64()>) override {}
        void advance(qint64) override { throw Cancelled(); }
    } stopper;
    for (const QString &name : {u"velha.csv"_s, u"velha.xlsx"_s}) {
        const QString path = program.file(name);
        spreadsheet::saveCsv(path, list(), nullptr);
        const QByteArray before = contentsOf(path);
        QVERIFY_THROWS_EXCEPTION(Cancelled, name.endsWith(u"csv")
                                                ? spreadsheet::saveCsv(path, list(), &stopper)
                                                : spreadsheet::saveXlsx(path, {}, list(), &stopper));
        QCOMPARE(contentsOf(path), before);
        QVERIFY(!QFile::exists(path + u".novo"_s));
    }
}

/// Nothing is left out without a word.
void tst_spreadsheet::whatASheetCannotHoldIsRefused()
{
    const TestProgram program;
    const QString path = program.file(u"grande.xlsx"_s);
    StoredTable note({{u"info"_s, u"Informações"_s}});
    note.append(QStringList{QString(40'000, u'x')});
    QVERIFY_THROWS_EXCEPTION(Error, spreadsheet::saveXlsx(path, {}, note, nullptr));
    StoredTable rows({{u"n"_s, u"N"_s}});
    for (int i = 0; i < 1'048'575; ++i)
        rows.append(QStringList{u"1"_s});
    QVERIFY_THROWS_EXCEPTION(Error, spreadsheet::saveXlsx(path, {}, rows, nullptr));
    QVERIFY(!QFile::exists(path));
}

void tst_spreadsheet::headingsHaveAMenu()
{
    ListView view;
    view.setTable(std::make_shared<StoredTable>(list()));
    view.show();
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_S, Qt::ControlModifier);
    auto *menu = view.findChild<QMenu *>(u"poplista"_s);
    QVERIFY(menu && menu->isVisible());
    const auto column = [&](const QString &title) {
        for (QAction *action : menu->actions())
            if (action->text() == title)
                return action;
        return static_cast<QAction *>(nullptr);
    };
    column(u"Saldo"_s)->toggle();
    QCOMPARE(view.header()->sectionSize(3), 0);
    QCOMPARE(view.tableSource()->columnCount(), 5); // what is saved and printed has all
    column(u"Saldo"_s)->toggle();
    QVERIFY(view.header()->sectionSize(3) > 0);
}

QTEST_MAIN(tst_spreadsheet)
#include "tst_spreadsheet.moc"
