#include "settings/database.h"
#include "settings/settings.h"
#include "support/paper.h"
#include "support/samples.h"
#include "support/shop.h"
#include "widgets/listfeed.h"
#include "widgets/slicedwork.h"

#include <QTimer>

#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

/// As many payables: dues in no order, values of 0 to 99 reais, every third settled.
void addPayables(TestProgram &program, int count)
{
    program.database().executeNative(
        "WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
        QByteArray::number(count) +
        ") INSERT INTO pagar (estatus, data, vencimento, valor) SELECT CASE WHEN i % 3 = 0 THEN 'Concluído' "
        "ELSE 'Pendente' END, '2026/11/14', printf('2026/%02d/%02d', i * 7 % 12 + 1, i * 11 % 28 + 1), (i % "
        "100) || ',00' FROM n");
}

/// The totals of the payables of a status, added up by the store.
QString totals(TestProgram &program, const QByteArray &shown)
{
    const auto sum = [&](const QByteArray &what, const QByteArray &status) {
        Statement sums =
            program.database().prepareNative("SELECT " + what + " FROM pagar WHERE estatus LIKE '" + status +
                                             "' AND estatus LIKE '" + shown + '\'');
        sums.step();
        return sums.integer(0);
    };
    const auto reais = [&](const QByteArray &status) {
        return Money::fromInteger(sum("total(CAST(valor AS INTEGER))", status)).inReais();
    };
    return u"%1 cadastros  -  Total de despesas: %2  -  Total pago: %3  -  Total pendente: %4 - Quantidade de produtos (entrada): 0"_s
        .arg(sum("count(*)", "%"))
        .arg(reais("%"), reais("C%"), reais("P%"));
}

/// The keys of all rows, as listed.
QString keys(const ListFeed &feed)
{
    QString text;
    for (int row = 0; row < feed.rowCount(); ++row)
        text += QString::number(feed.key(row)) + u'\n';
    return text;
}

} // namespace

class tst_loading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void windowAnswersWhileManyRowsAreRead();
    void writesSkippedWhileReadingAreReadLater();
    void halfReadListIsSavedWhole();
    void hiddenTabsHaveTheirTotalsAtStart();
    void listsFillOnceTheFileIsThere();
};

void tst_loading::windowAnswersWhileManyRowsAreRead()
{
    SlicedWork::setSlices(0, 0); // every slice ends where it first looks at the clock
    Shop shop;
    addPayables(shop.program, 20'000);
    shop.openWithoutWaiting();
    const ListFeed &feed = *shop.list(u"lstpagar"_s)->findChild<ListFeed *>();
    int ticks = 0;
    QTimer ticking;
    connect(&ticking, &QTimer::timeout, this, [&] { ticks += feed.isLoading(); });
    ticking.start(0);
    QVERIFY(feed.isLoading());
    QTRY_VERIFY_WITH_TIMEOUT(!feed.isLoading(), 20'000);
    QVERIFY(ticks > 0);
    const QString query = u"select código from pagar where (estatus like '%1') order by vencimento"_s;
    QVERIFY(keys(feed) == shop.program.rows(query.arg(u"%"_s)));
    QCOMPARE(shop.label(u"lbltotalp"_s), totals(shop.program, "%"));

    shop.command(u"mnuatualizarlistas"_s);
    QVERIFY(feed.isLoading());
    shop.choose(u"cbotipop"_s, u"Concluídos"_s);
    QTRY_VERIFY_WITH_TIMEOUT(!feed.isLoading(), 20'000);
    QVERIFY(keys(feed) == shop.program.rows(query.arg(u"Concluído"_s)));
    QCOMPARE(shop.label(u"lbltotalp"_s), totals(shop.program, "C%"));
}

/// The list was past the place of the new row when it was written.
void tst_loading::writesSkippedWhileReadingAreReadLater()
{
    SlicedWork::setSlices(0, 0);
    Shop shop;
    addPayables(shop.program, 20'000);
    settings::setValue(settings::refreshMainWindow, u"0"_s);
    shop.openWithoutWaiting();
    ListView &list = *shop.list(u"lstpagar"_s);
    const ListFeed &feed = *list.findChild<ListFeed *>();
    QVERIFY(feed.isLoading());
    EntryForm early = sampleEntry();
    early.due = u"01/01/2000"_s;
    early.product = u"-"_s;
    entry::save(*openDatabase(), payable(), early, {});
    QTRY_VERIFY_WITH_TIMEOUT(!feed.isLoading(), 20'000);
    list.selectRow(0);
    shop.boxes.answer(QMessageBox::Yes);
    shop.command(u"popbaixapagar"_s);
    QTRY_VERIFY_WITH_TIMEOUT(!feed.isLoading(), 20'000);
    QCOMPARE(feed.rowCount(), 20'001);
    QCOMPARE(shop.label(u"lbltotalp"_s).section(u' ', 0, 0), u"20001"_s);
}

void tst_loading::hiddenTabsHaveTheirTotalsAtStart()
{
    Shop shop;
    shop.program.run(
        u"insert into receber (estatus, origem, valor) values ('Concluído', 'Caixa', '30,00')"_s);
    shop.program.run(u"insert into bancario (movimento, valor) values ('Depósito', '5,00')"_s);
    shop.program.run(u"insert into banco values ('Caixa', '100,00', ' ')"_s);
    shop.open();
    QCOMPARE(shop.tab(), int(MainTabs::Payables));
    QCOMPARE(
        shop.label(u"lbltotalr"_s),
        u"1 cadastrados  -  Total de lucros: R$ 30,00  -  Total recebido: R$ 30,00  -  Total pendente: R$ 0,00 - Quantidade de produtos (vendas): 0"_s);
    QVERIFY(shop.label(u"lbltotalm"_s).startsWith(u"Depósitos: R$ 5,00 (1 cad.)"));
    QCOMPARE(shop.list(u"lstcaixabanco"_s)->cell(0, 1), u"R$ 130,00"_s);
}

/// The network comes back, or the file: no key needs to be pressed.
void tst_loading::listsFillOnceTheFileIsThere()
{
    for (const bool atStart : {true, false}) {
        Shop shop;
        addPayables(shop.program, 3);
        shop.program.run(u"insert into receber (estatus, valor) values ('Pendente', '30,00')"_s);
        settings::setValue(settings::payableStatus, u"Concluídos"_s);
        const QString away = databasePath() + u".fora"_s;
        const auto move = [](const QString &from, const QString &to) {
            closeDatabase();
            QVERIFY(QFile::rename(from, to));
        };
        if (!atStart)
            shop.open();
        move(databasePath(), away);
        if (atStart)
            shop.open();
        else
            shop.command(u"mnuatualizarlistas"_s);
        const QStringList told = shop.boxes.seen();
        QCOMPARE(told.size(), 1);
        QVERIFY(told[0].startsWith(
            u"critical | Erro | Ocorreu o seguinte erro ao tentar abrir o banco de dados: "_s));
        QVERIFY(!QFile::exists(databasePath()));
        shop.command(u"cmdadicionard"_s);
        QCOMPARE(shop.boxes.seen().size(), 1);
        QVERIFY(!shop.screen(u"frmAdicionar"_s));
        const auto passTime = [&shop] {
            for (QTimer *timer : shop.window->findChildren<QTimer *>(Qt::FindDirectChildrenOnly))
                if (timer->isActive() && timer->interval() > 1'000) {
                    QTimerEvent rings(timer->timerId());
                    QCoreApplication::sendEvent(timer, &rings);
                }
        };
        passTime(); // in vain, and without a word
        move(away, databasePath());
        if (!atStart)
            addPayables(shop.program, 3);
        passTime();
        QTRY_COMPARE(shop.list(u"lstpagar"_s)->rowCount(), atStart ? 1 : 2);
        QTRY_COMPARE(shop.list(u"lstreceber"_s)->rowCount(), 1);
        QCOMPARE(shop.text(u"cbotipop"_s), u"Concluídos"_s);
        QCOMPARE(shop.told(), QString());
    }
}

void tst_loading::halfReadListIsSavedWhole()
{
    Shop shop;
    addPayables(shop.program, 3000);
    shop.open();
    SlicedWork::setSlices(0, 0);
    const auto slices = qScopeGuard([] { SlicedWork::setSlices(40, 30); });
    const QString path = shop.program.file(u"lista.csv"_s);
    ListView *list = shop.list(u"lstpagar"_s);
    QTest::keyClick(list, Qt::Key_S, Qt::ControlModifier);
    auto *save = list->findChild<QAction *>(u"popcsv"_s);
    shop.command(u"mnuatualizarlistas"_s);
    QVERIFY(list->rowCount() < 3000);
    shop.boxes.chooseFile(path);
    shop.boxes.answer(QMessageBox::No);
    save->trigger();
    QCOMPARE(contentsOf(path).count('\n'), 3001);
}

QTEST_MAIN(tst_loading)
#include "tst_loading.moc"
