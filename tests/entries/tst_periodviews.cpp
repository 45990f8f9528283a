#include "data/clock.h"
#include "entries/frmvisualizar.h"
#include "settings/settings.h"
#include "support/readlist.h"
#include "support/testprogram.h"
#include "widgets/listview.h"

#include <QAction>
#include <QLabel>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QDate today(2026, 11, 14);

void addRow(TestProgram &program, const QString &table, const QString &date, const QString &value,
            const QString &status)
{
    program.run(
        u"insert into %1 (data, valor, estatus) values ('%2', '%3', '%4')"_s.arg(table, date, value, status));
}

/// Rows of the day, the month, the year and the year before.
void addRows(TestProgram &program, const QString &table)
{
    addRow(program, table, u"2026/11/14"_s, u"1,00"_s, u"Pendente"_s);
    addRow(program, table, u"2026/11/01"_s, u"1.000,00"_s, u"Concluído"_s);
    addRow(program, table, u"2026/01/11"_s, u"10.000,00"_s, u"Conluído"_s);
    addRow(program, table, u"2025/11/14"_s, u"100.000,00"_s, u"Pendente"_s);
}

/// The summary, and the dates in the order of the rows.
QString shown(const ViewKind &kind, ViewPeriod period)
{
    const ViewPeriod shownPeriod = periodview::shownPeriod(kind, period);
    const KeyedList list =
        readList(kind.layout().columns, FigureTotals(), periodview::query(kind, shownPeriod, today));
    const int rows = list.rows().rowCount();
    QString text = rows > 0 ? periodview::title(kind, shownPeriod) + u'\n' : QString();
    text += periodview::summary(kind, shownPeriod, static_cast<const FigureTotals &>(list.totals()).figures);
    for (int row = 0; row < rows; ++row)
        text += u"\n"_s + cellOf(list, row, 1);
    return text;
}

} // namespace

class tst_periodviews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void summariesAndRows();
    void screenFollowsChangesAndSettings();
};

void tst_periodviews::summariesAndRows()
{
    TestProgram program;
    QCOMPARE(shown(bankView(), ViewPeriod::Month),
             u"0 cadastros  -  Total de movimento: 0,00  -  Total Conluido: 0,00  -  Total pendente: 0,00"_s);
    for (const QString &table : {u"pagar"_s, u"receber"_s, u"bancario"_s})
        addRows(program, table);
    QCOMPARE(
        shown(payableView(), ViewPeriod::Day),
        u"Movimento do dia de contas a pagar\nTotal de cadastros hoje (1): Total de despesas: R$ 1,00  -  Total concluído: R$ 0,00  -  Total pendente: R$ 1,00\n14/11/2026"_s);
    QCOMPARE(
        shown(receivableView(), ViewPeriod::Month),
        u"Movimento do mês de contas a receber\nTotal de cadastros neste mês (2): Total de lucros: R$ 1.001,00  -  Total concluído: R$ 1.000,00  -  Total pendente: R$ 1,00\n01/11/2026\n14/11/2026"_s);
    QCOMPARE(
        shown(bankView(), ViewPeriod::Year),
        u"Movimento anual - bancário\nTotal de cadastros neste ano (3): Total de movimento bancário: R$ 11.001,00  -  Total concluído: R$ 11.000,00  -  Total pendente: R$ 1,00\n11/01/2026\n01/11/2026\n14/11/2026"_s);
}

void tst_periodviews::screenFollowsChangesAndSettings()
{
    TestProgram program;
    programclock::set(QDateTime(today, QTime(10, 0)));
    addRow(program, u"pagar"_s, u"2026/01/11"_s, u"10,00"_s, u"Concluído"_s);
    addRow(program, u"bancario"_s, u"2026/01/11"_s, u"10,00"_s, u"Concluído"_s);
    std::unique_ptr<frmVisualizar> screen(frmVisualizar::open(bankView(), ViewPeriod::Year, nullptr));
    const auto *list = screen->findChild<ListView *>(u"lstdados"_s);
    const auto choose = [&screen](const QString &name) { screen->findChild<QAction *>(name)->trigger(); };
    const auto label = [&screen](const QString &name) { return screen->findChild<QLabel *>(name)->text(); };
    QCOMPARE(screen->windowTitle(), u"Movimento anual - bancário"_s);
    QCOMPARE(list->rowCount(), 1);

    addRow(program, u"bancario"_s, u"2026/11/14"_s, u"1,00"_s, u"Pendente"_s);
    Changes::announce(Subject::Payables);
    QCOMPARE(list->rowCount(), 1);
    Changes::announce(Subject::Movements);
    QCOMPARE(list->rowCount(), 2);
    QVERIFY(label(u"lbltotal"_s).startsWith(u"Total de cadastros neste ano (2)"_s));

    choose(u"popordemdesc"_s);
    QCOMPARE(list->cell(0, 1), u"14/11/2026"_s);
    QCOMPARE(settings::value(settings::viewOrder), u"DESC"_s);
    settings::setValue(settings::bankViewPeriod, u"1"_s);
    Changes::announce(Subject::Settings);
    QCOMPARE(list->rowCount(), 1);
    QCOMPARE(label(u"lblperiodo"_s), u"Período: 11/2026"_s);
    QVERIFY(shown(payableView(), ViewPeriod::Year).startsWith(u"Movimento anual")); // no limit for these
    settings::setValue(settings::bankViewPeriod, u"2"_s);
    QVERIFY(shown(bankView(), ViewPeriod::Month).startsWith(u"Movimento do mês"));
}

QTEST_MAIN(tst_periodviews)
#include "tst_periodviews.moc"
