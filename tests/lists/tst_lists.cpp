#include "data/schema.h"
#include "entries/entry.h"
#include "entries/entryfilter.h"
#include "entries/entrylist.h"
#include "settings/database.h"
#include "support/readlist.h"
#include "support/samples.h"
#include "support/testprogram.h"
#include "widgets/tablemodel.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QDate today(2026, 11, 14);

KeyedList readPayables(const QString &condition = {})
{
    return readList(entrylist::columns(payable()), EntryTotals(), u"SELECT * FROM pagar "_s + condition);
}

/// One line a row.
QString columnOf(const KeyedList &list, int column)
{
    QString cells;
    for (int row = 0; row < list.rows().rowCount(); ++row)
        cells += cellOf(list, row, column) + u'\n';
    return cells;
}

QString shown(const KeyedList &list, const Side &side)
{
    return linesOf(list) + static_cast<const EntryTotals &>(list.totals()).text(side);
}

/// An entry whose every field is drawn from few values, so that rows tie, match and differ.
EntryForm drawn(QRandomGenerator &random)
{
    const auto pick = [&](std::initializer_list<QString> values) {
        return *(values.begin() + random.bounded(int(values.size())));
    };
    EntryForm form = sampleEntry();
    form.status = pick({u"Pendente"_s, u"Concluído"_s});
    form.account = pick({u"Caixa"_s, u"caixa"_s, u"Banco"_s});
    form.contact = pick({u"Ana"_s, u"Ágata"_s, u"bento"_s});
    form.date = pick({u"14/11/2026"_s, u"01/02/2026"_s, u"31/12/2025"_s});
    form.due = pick({u"14/11/2026"_s, u"02/11/2026"_s, u"30/01/2027"_s});
    form.value = pick({u"1,00"_s, u"10,00"_s, u"9,50"_s, u"1.000,00"_s});
    form.product = u"-"_s;
    return form;
}

/// As many such entries of the side: read back from one statement, for each save would wait for the disk.
void addDrawn(TestProgram &program, const Side &side, int count)
{
    program.database().executeNative(
        u"WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) INSERT INTO %2 (estatus, origem, %3, data, vencimento, descricao, valor, moeda, produto, qtde) SELECT substr('PendenteConcluído', 1 + i % 2 * 8, 8 + i % 2), substr('CaixacaixaBanco', 1 + i / 2 % 3 * 5, 5), substr('Ana  Ágatabento', 1 + i / 3 % 3 * 5, 5), '2026/11/' || (10 + i % 9), '2026/1' || (i % 3) || '/0' || (1 + i % 7), 'Aluguel', (1 + i * 7 % 11) || ',50', 'R$', '-', '5' FROM n"_s
            .arg(count)
            .arg(side.table, side.contactColumn)
            .toUtf8());
}

struct Case
{
    const Side &side;
    EntryFilter filter;
    std::optional<HeadingSort> sort;
};

std::vector<Case> cases()
{
    const auto heading = [](const Side &side, QStringView key, bool descending) {
        return HeadingSort{entrylist::columns(side)[std::size_t(entrylist::columnOf(side, key))], descending};
    };
    EntryFilter due;
    due.basedOn = u"Data vencimento"_s;
    EntryFilter month = due, pending = due, account = due;
    month.period = u"apenas deste mês"_s;
    pending.status = u"Pendentes"_s;
    account.account = u"CAIXA"_s;
    return {{payable(), due, {}},
            {payable(), month, {}},
            {payable(), pending, heading(payable(), u"valor", true)},
            {payable(), account, heading(payable(), u"fornecedor", false)},
            {receivable(), {}, {}},
            {receivable(), {}, heading(receivable(), u"vencimento", true)},
            {receivable(), account, heading(receivable(), u"id", true)}};
}

} // namespace

class tst_lists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followedListsEqualReadOnes();
    void headingsOrderAsTheStoreDoes();
    void foreignWritesTakeReadingAgain();
    void anotherFileIsNeverShown();
    void snapshotsStay();
    void sumsBeyondTheRangeAreShownAsSuch();
};

/// Random commands: after each, the lists that followed the notices are those that a fresh window would read.
void tst_lists::followedListsEqualReadOnes()
{
    TestProgram program;
    QRandomGenerator random(6);
    for (const Side *side : {&payable(), &receivable()})
        addDrawn(program, *side, 40);
    const std::vector<Case> all = cases();
    std::vector<KeyedList> lists;
    const auto fresh = [&](const Case &one) {
        return readList(entrylist::columns(one.side), EntryTotals(),
                        entryfilter::query(one.side, one.filter, today), one.sort);
    };
    for (const Case &one : all)
        lists.push_back(fresh(one));
    int followed = 0;
    QObject scope;
    connect(&Changes::instance(), &Changes::changed, &scope, [&](const Change &change) {
        const auto observer = [](const RowEdit &, const std::function<void()> &perform) { perform(); };
        for (std::size_t i = 0; i < all.size(); ++i)
            if (all[i].side.subject == change.subject)
                followed += lists[i].apply(program.database(), change.rows, observer);
    });
    int expected = 0;
    for (int command = 0; command < 150; ++command) {
        const Side &side = random.bounded(2) == 0 ? payable() : receivable();
        const QStringList codes =
            program.rows(u"select código from "_s + side.table).split(u'\n', Qt::SkipEmptyParts);
        const QString code = codes.at(random.bounded(int(codes.size())));
        switch (random.bounded(4)) {
        case 0:
            entry::save(program.database(), side, drawn(random), {});
            break;
        case 1:
            entry::save(program.database(), side, drawn(random), code);
            break;
        case 2:
            entry::settle(program.database(), side, {code}, today.addDays(random.bounded(60) - 30));
            break;
        default:
            entry::remove(program.database(), side, {{code, u"-"_s, {}}});
            break;
        }
        for (std::size_t i = 0; i < all.size(); ++i) {
            expected += all[i].side.subject == side.subject;
            QCOMPARE(shown(lists[i], all[i].side), shown(fresh(all[i]), all[i].side));
        }
    }
    QCOMPARE(followed, expected); // none was read again
}

void tst_lists::headingsOrderAsTheStoreDoes()
{
    TestProgram program;
    addDrawn(program, payable(), 300);
    program.run(u"update pagar set fornecedor = null where código like '7'"_s);
    for (const ListColumn &column : entrylist::columns(payable())) {
        for (const bool descending : {false, true}) {
            const KeyedList list =
                readList(entrylist::columns(payable()), EntryTotals(),
                         u"SELECT * FROM pagar where (origem like 'Caixa') order by vencimento"_s,
                         HeadingSort{column, descending});
            QCOMPARE(columnOf(list, 0),
                     program.rows(u"SELECT código FROM pagar where (origem like 'Caixa') order by ["_s +
                                  column.source() + (descending ? u"] desc"_s : u"] asc"_s) +
                                  u", vencimento"_s));
        }
    }
}

void tst_lists::foreignWritesTakeReadingAgain()
{
    TestProgram program;
    entry::save(program.database(), payable(), sampleEntry(), {});
    KeyedList list = readPayables();
    const auto other = Connection::open(databasePath(), schema::password.toString());
    other->execute(u"update pagar set valor = '5,00' where código like '1'"_s);
    std::vector<RowChange> noticed;
    QObject scope;
    connect(&Changes::instance(), &Changes::changed, &scope, [&](const Change &change) {
        if (change.subject == Subject::Payables)
            noticed = change.rows;
    });
    entry::settle(program.database(), payable(), {u"1"_s}, today);
    QCOMPARE(noticed.size(), std::size_t(1));
    QVERIFY(!list.apply(program.database(), noticed,
                        [](const RowEdit &, const std::function<void()> &perform) { perform(); }));
    other->execute(u"delete from pagar where código like '1'"_s);
    list.rows().refresh();
    QCOMPARE(cellOf(list, 0, 2), QString()); // the row is gone, and the cell nobody else's
}

void tst_lists::anotherFileIsNeverShown()
{
    TestProgram program;
    entry::save(program.database(), payable(), sampleEntry(), {});
    const KeyedList list = readPayables();
    const QString other = program.file(u"outro.qorvex"_s);
    schema::createFile(other);
    Connection::open(other, schema::password.toString())
        ->execute(u"insert into pagar (descricao, valor) values ('alheio', '9,00')"_s);
    int announced = 0;
    QObject scope;
    connect(&Changes::instance(), &Changes::changed, &scope,
            [&](const Change &change) { announced += change.subject == Subject::Database; });
    // Copied over, byte for byte: the file keeps its place on the disk.
    QFile from(other), to(databasePath());
    QVERIFY(from.open(QIODevice::ReadOnly) && to.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QVERIFY(to.write(from.readAll()) > 0);
    to.close();
    list.rows().refresh();
    QVERIFY_THROWS_EXCEPTION(Error, list.rows().cell(0, 2));
    QVERIFY_THROWS_EXCEPTION(Error, openDatabase(list.rows().serial()));
    QCoreApplication::processEvents();
    QCOMPARE(announced, 1);
    QCOMPARE(program.rows(u"select descricao from pagar"_s), u"alheio\n"_s);
}

void tst_lists::snapshotsStay()
{
    TestProgram program;
    for (int i = 0; i < 3; ++i)
        entry::save(program.database(), payable(), sampleEntry(), {});
    KeyedList list = readPayables();
    TableModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setColumns(list.columns());
    model.showKeyed(&list.rows());
    const auto snapshot = model.snapshot({0, 2});
    QObject scope;
    connect(&Changes::instance(), &Changes::changed, &scope, [&](const Change &change) {
        if (change.subject == Subject::Payables)
            QVERIFY(list.apply(program.database(), change.rows,
                               [&](const RowEdit &edit, const std::function<void()> &perform) {
                                   model.edit(edit, perform);
                               }));
    });
    entry::remove(program.database(), payable(), {{u"2"_s, u"-"_s, {}}});
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.index(1, 0).data().toString(), u"3"_s);
    QCOMPARE(snapshot->rowCount(), 3);
    QCOMPARE(snapshot->cell(0, 1) + u'|' + snapshot->cell(1, 1) + u'|' + snapshot->cell(2, 0),
             u"Aluguel||3"_s);
}

void tst_lists::sumsBeyondTheRangeAreShownAsSuch()
{
    TestProgram program;
    program.run(
        u"insert into pagar (estatus, valor) values ('Pendente', '900.000.000.000.000,00'), ('Pendente', '900.000.000.000.000,00'), ('Concluído', '1,00')"_s);
    const KeyedList list = readPayables();
    QCOMPARE(
        static_cast<const EntryTotals &>(list.totals()).text(payable()),
        u"3 cadastros  -  Total de despesas: R$ valor grande demais  -  Total pago: R$ 1,00  -  Total pendente: R$ valor grande demais - Quantidade de produtos (entrada): 0"_s);
}

QTEST_MAIN(tst_lists)
#include "tst_lists.moc"
