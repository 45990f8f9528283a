#include "agenda/appointments.h"
#include "bank/accounts.h"
#include "bank/movement.h"
#include "data/sharedconnection.h"
#include "data/undo.h"
#include "entries/centres.h"
#include "entries/centreside.h"
#include "entries/entry.h"
#include "entries/installments.h"
#include "entries/side.h"
#include "settings/database.h"
#include "stock/products.h"
#include "support/samples.h"
#include "support/testprogram.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const journal::Author counter{u"Ana"_s, u"balcao"_s, u"A"_s}, office{u"Rui"_s, u"escritorio"_s, u"B"_s};

/// Every row of the business, byte by byte and in the order of the rows.
QByteArray contents(Connection &connection)
{
    QByteArray all;
    for (const QString &table : journal::tables()) {
        Statement rows =
            connection.prepareNative(u"SELECT rowid, * FROM %1 ORDER BY rowid"_s.arg(table).toUtf8());
        while (rows.step()) {
            all += table.toUtf8();
            for (int i = 0; i < rows.columnCount(); ++i)
                all += '|' + QByteArray::number(int(rows.value(i).type())) + rows.text(i).toUtf8();
            all += '\n';
        }
    }
    return all;
}

QString first(Connection &connection, const QString &query)
{
    Statement found = connection.prepareNative(query.toUtf8());
    return found.step() ? found.text(0) : QString();
}

/// The code of some entry; empty when there is none.
QString randomCode(Connection &connection, const Side &side, QRandomGenerator &random)
{
    const int rows = first(connection, u"SELECT count(*) FROM %1"_s.arg(side.table)).toInt();
    return first(
        connection,
        u"SELECT código FROM %1 LIMIT 1 OFFSET %2"_s.arg(side.table).arg(random.bounded(std::max(rows, 1))));
}

/// What somebody does next. Commands that find nothing to work on do nothing.
void doSomething(Connection &connection, QRandomGenerator &random)
{
    const Side &side = random.bounded(2) ? payable() : receivable();
    const QString code = randomCode(connection, side, random);
    const QString name = u"N%1"_s.arg(random.bounded(1'000'000));
    EntryForm form = sampleEntry();
    form.value = QString::number(random.bounded(100'000));
    form.quantity = QString::number(random.bounded(1, 9));
    switch (random.bounded(10)) {
    case 0:
    case 1:
        return entry::save(connection, side, form, {});
    case 2:
        if (const auto loaded = entry::load(connection, side, code)) {
            EntryForm changed = *loaded;
            changed.description = name;
            entry::save(connection, side, changed, code);
        }
        return;
    case 3:
        if (!code.isEmpty())
            entry::settle(connection, side, {code}, QDate(2026, 11, 14));
        return;
    case 4:
        if (!code.isEmpty())
            entry::remove(connection, side, {{code, u"Café"_s, Quantity::fromInteger(2)}});
        return;
    case 5:
        return accounts::add(connection, {name, u"10,00"_s, u" "_s});
    case 6:
        return products::change(connection, u"Café"_s, {u"Café"_s, u"100,5"_s, u"2,00"_s, name});
    case 7:
        return centres::add(connection, costCentres(), name);
    case 8:
        if (const QString old = first(connection, u"SELECT descricao FROM pcontapagar LIMIT 1"_s); old.size())
            centres::rename(connection, costCentres(), old, name);
        return;
    default:
        appointments::add(connection, {u"20/12/2026"_s, u"10:00"_s, name, u"Loja"_s, u"-"_s});
    }
}

qint64 newestStep(Connection &connection)
{
    return first(connection, u"SELECT max(numero) FROM historico"_s).toLongLong();
}

} // namespace

class tst_undo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void anySequenceGoesBackAndForth();
    void twoMachinesGoBackToTheBeginning();
    void whatOthersChangedStays_data();
    void whatOthersChangedStays();
    void refusedStepLetsTheOthersThrough();
    void failedWriteLeavesNoStep();
    void largeStepIsOneStep();
    void olderFileGetsItsJournalAfterACopy();

private:
    std::unique_ptr<TestProgram> m_program;
};

void tst_undo::init()
{
    m_program = std::make_unique<TestProgram>();
    journal::setAuthor(counter);
    products::add(m_program->database(), {u"Café"_s, u"500"_s, u"2,00"_s, u" "_s});
}

/// A stack of states stands for what undo and redo are to give.
void tst_undo::anySequenceGoesBackAndForth()
{
    for (quint32 seed = 1; seed <= 8; ++seed) {
        init();
        QRandomGenerator random(seed);
        std::vector<QByteArray> states{contents(m_program->database())};
        std::size_t now = 0;
        for (int i = 0; i < 50; ++i) {
            if (random.bounded(8) == 0)
                closeDatabase(); // as at a restart
            Connection &connection = m_program->database();
            const int choice = random.bounded(5);
            if (choice < 3) {
                const qint64 before = newestStep(connection);
                doSomething(connection, random);
                if (newestStep(connection) == before)
                    continue;
                states.resize(++now);
                states.push_back(contents(connection));
            } else if (choice == 3 && now > 0) {
                QVERIFY(undo::takeBack(connection, undo::next(connection)).isDone);
                --now;
            } else if (const qint64 step = undo::nextAgain(connection)) {
                QVERIFY(now + 1 < states.size());
                QVERIFY(undo::doAgain(connection, step).isDone);
                ++now;
            } else {
                QCOMPARE(now + 1, states.size());
            }
            QVERIFY2(contents(connection) == states[now], qPrintable(u"seed %1 step %2"_s.arg(seed).arg(i)));
        }
    }
}

void tst_undo::twoMachinesGoBackToTheBeginning()
{
    SharedConnection otherMachine;
    const std::shared_ptr<Connection> other = otherMachine.open(databasePath());
    Connection &own = m_program->database();
    const qint64 begin = newestStep(own);
    const QByteArray before = contents(own);
    QRandomGenerator random(7);
    for (int i = 0; i < 80; ++i) {
        const bool isOther = random.bounded(2);
        journal::setAuthor(isOther ? office : counter);
        doSomething(isOther ? *other : own, random);
    }
    for (qint64 step = newestStep(own); step > begin; --step)
        QVERIFY(undo::takeBack(step % 2 ? own : *other, step).isDone);
    QCOMPARE(contents(own), before);
}

/// "what is done ; what the other machine does -> refused rows ; what a query yields after taking it back".
void tst_undo::whatOthersChangedStays_data()
{
    QTest::addColumn<QString>("own");
    QTest::addColumn<QString>("other");
    QTest::addColumn<QString>("refused");
    QTest::addColumn<QString>("query");
    QTest::addColumn<QString>("left");
    const QString entries = u"SELECT código, estatus, valor, documento FROM pagar"_s;
    const QString stock = u"SELECT qtde FROM produto WHERE produto='Café'"_s;
    const QString addEntry =
        u"INSERT INTO pagar (código, estatus, valor, documento) VALUES (7, 'Pendente', '5,00', 'a')"_s;
    QTest::newRow("another column") << u"UPDATE pagar SET valor='9,00' WHERE código=1"_s
                                    << u"UPDATE pagar SET documento='x' WHERE código=1"_s << u""_s << entries
                                    << u"1 | Pendente | 1,00 | x\n"_s;
    QTest::newRow("same column") << u"UPDATE pagar SET valor='9,00' WHERE código=1"_s
                                 << u"UPDATE pagar SET valor='8,00' WHERE código=1"_s << u"pagar 1 changed"_s
                                 << entries << u"1 | Pendente | 8,00 | -\n"_s;
    QTest::newRow("gone") << u"UPDATE pagar SET valor='9,00'"_s << u"DELETE FROM pagar"_s << u"pagar 1 gone"_s
                          << entries << u""_s;
    QTest::newRow("changed what was added")
        << addEntry << u"UPDATE pagar SET documento='b' WHERE código=7"_s << u"pagar 7 changed"_s << entries
        << u"1 | Pendente | 1,00 | -\n7 | Pendente | 5,00 | b\n"_s;
    QTest::newRow("some rows of several")
        << u"INSERT INTO pagar (código, estatus, valor, documento) VALUES (7, 'P', '5', 'a'), (8, 'P', '6', 'a')"_s
        << u"UPDATE pagar SET documento='b' WHERE código=7"_s << u"pagar 7 changed"_s << entries
        << u"1 | Pendente | 1,00 | -\n7 | P | 5 | b\n"_s;
    QTest::newRow("goods moved") << u"UPDATE produto SET qtde=qtde - 10.5"_s
                                 << u"UPDATE produto SET qtde=qtde - 3"_s << u""_s << stock << u"497\n"_s;
    QTest::newRow("goods and entry stay together")
        << u"UPDATE produto SET qtde=qtde - 10; UPDATE pagar SET valor='9,00'"_s
        << u"UPDATE pagar SET valor='8,00'"_s << u"pagar 1 changed"_s << stock << u"490\n"_s;
    QTest::newRow("name taken") << u"DELETE FROM produto"_s
                                << u"INSERT INTO produto (rowid, produto, qtde) "
                                   "VALUES (9, 'CAFÉ', 1), (10, 'Café', 2)"_s
                                << u"produto 1 taken"_s << stock << u"2\n"_s;
    QTest::newRow("place taken") << u"DELETE FROM produto"_s
                                 << u"INSERT INTO produto (produto, qtde) VALUES ('Chá', 1)"_s
                                 << u"produto 1 taken"_s << u"SELECT produto FROM produto"_s << u"Chá\n"_s;
}

void tst_undo::whatOthersChangedStays()
{
    QFETCH(const QString, own);
    QFETCH(const QString, other);
    Connection &connection = m_program->database();
    const auto write = [&connection](const journal::Author &author, const QString &sql) {
        journal::setAuthor(author);
        Transaction transaction(connection);
        connection.executeNative(sql.toUtf8());
        transaction.commit();
    };
    write(office,
          u"INSERT INTO pagar (código, estatus, valor, documento) VALUES (1, 'Pendente', '1,00', '-')"_s);
    write(counter, own);
    write(office, other);
    journal::setAuthor(counter);
    const undo::Outcome outcome = undo::takeBack(connection, undo::next(connection));
    QStringList refused;
    for (const undo::Refusal &refusal : outcome.refused)
        refused << refusal.row.table + u' ' + QString::number(refusal.row.key) +
                       QStringList{u" changed"_s, u" gone"_s, u" taken"_s}[int(refusal.reason)];
    QTEST(refused.join(u", "), "refused");
    QFETCH(const QString, query);
    QTEST(m_program->rows(query), "left");
}

void tst_undo::refusedStepLetsTheOthersThrough()
{
    Connection &connection = m_program->database();
    accounts::add(connection, {u"Caixa"_s, u"1,00"_s, u" "_s});
    accounts::add(connection, {u"Banco"_s, u"2,00"_s, u" "_s});
    const qint64 second = undo::next(connection);
    journal::setAuthor(office);
    accounts::change(connection, u"Banco"_s, {u"Banco"_s, u"3,00"_s, u" "_s});
    QCOMPARE(undo::nextAgain(connection), 0);
    journal::setAuthor(counter);
    QVERIFY(!undo::takeBack(connection, second).isDone);
    QCOMPARE(undo::next(connection), second - 1);
    QVERIFY(undo::takeBack(connection, second - 1).isDone);
    QCOMPARE(m_program->rows(u"select banco, saldo from banco"_s), u"Banco | 3,00\n"_s);
    QCOMPARE(undo::nextAgain(connection), second - 1);
    QVERIFY(undo::doAgain(connection, second - 1).isDone);
    QVERIFY_THROWS_EXCEPTION(Error, undo::doAgain(connection, second - 1));
    QCOMPARE(m_program->rows(u"select banco from banco"_s), u"Caixa\nBanco\n"_s);
}

void tst_undo::failedWriteLeavesNoStep()
{
    Connection &connection = m_program->database();
    const qint64 before = newestStep(connection);
    {
        Transaction transaction(connection);
        connection.executeNative("DELETE FROM produto");
    }
    entry::save(connection, payable(), sampleEntry(), {});
    QCOMPARE(newestStep(connection), before + 1);
    QCOMPARE(int(journal::rows(connection, before + 1).size()), 2); // the entry and its goods
    const journal::Step step = journal::step(connection, before + 1);
    QCOMPARE(step.user + u'@' + step.machine, u"Ana@balcao"_s);
}

void tst_undo::largeStepIsOneStep()
{
    Connection &connection = m_program->database();
    const QByteArray before = contents(connection);
    InstallmentsForm run{};
    run.date = u"31/01/2026"_s;
    run.value = u"10,00"_s;
    run.count = u"480"_s;
    run.monthly = true;
    QCOMPARE(installments::write(connection, payable(), run, nullptr).written, 480);
    QVERIFY(undo::takeBack(connection, undo::next(connection)).isDone);
    QCOMPARE(contents(connection), before);
}

void tst_undo::olderFileGetsItsJournalAfterACopy()
{
    m_program->database().executeNative(
        "DROP TABLE historico; DROP TABLE historico_linha; PRAGMA user_version = 0");
    const QByteArray before = contents(m_program->database());
    closeDatabase();
    Connection &connection = m_program->database();
    QCOMPARE(undo::next(connection), 0);
    centres::add(connection, costCentres(), u"Luz"_s);
    QVERIFY(undo::takeBack(connection, undo::next(connection)).isDone);
    QCOMPARE(contents(connection), before);
    SharedConnection copies;
    QCOMPARE(contents(*copies.open(m_program->file(u"dados.antes-da-atualizacao.qorvex"_s))), before);
}

QTEST_MAIN(tst_undo)
#include "tst_undo.moc"
