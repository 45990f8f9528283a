#include "data/recordset.h"
#include "data/schema.h"
#include "support/testprogram.h"

#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

QString failure(const std::function<void()> &work)
{
    try {
        work();
        return u"ok"_s;
    } catch (const Error &error) {
        return error.text();
    }
}

} // namespace

class TestRecordset : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_program = std::make_unique<TestProgram>(); }
    void cleanup() { m_program.reset(); }

    void numbersInBrazilianText();
    void editsEveryRowItWalks();
    void lockEndsWithTheWalk();
    void editWaitsWithoutLocking();

private:
    Connection &database() { return m_program->database(); }
    void addAccounts(const QStringList &names)
    {
        Recordset table(database(), u"banco"_s);
        for (const QString &name : names) {
            table.addNew();
            table.set(u"BANCO", name);
            table.set(u"saldo", u"1,00"_s);
            table.update();
        }
    }
    QString accounts() { return m_program->rows(u"select banco, saldo from banco"_s); }

    std::unique_ptr<TestProgram> m_program;
};

void TestRecordset::numbersInBrazilianText()
{
    Recordset products(database(), u"produto"_s);
    for (const QString &quantity : {u"1.234,5"_s, u"-3"_s, u"0,1"_s}) {
        products.addNew();
        products.set(u"qtde", quantity);
        products.set(u"custo", u"não é conferido"_s);
        products.update();
    }
    QCOMPARE(m_program->rows(u"select qtde, typeof(qtde) from produto order by qtde"_s),
             u"-3 | integer\n0,1 | real\n1234,5 | real\n"_s);
    products.addNew();
    QCOMPARE(failure([&] { products.set(u"qtde", u"muitos"_s); }),
             u"\"muitos\" não é um número e não pode ser gravado em \"qtde\"."_s);
}

void TestRecordset::editsEveryRowItWalks()
{
    addAccounts({u"á"_s, u"Joana d'Arc \"x\"; -- %"_s, u"Á"_s, u"á"_s});
    // The index serves this query and the change moves the rows within it.
    Recordset rows(database(), u"select * from banco where banco like 'Á'"_s);
    QCOMPARE(rows.count(), 3);
    QString seen;
    while (rows.next()) {
        seen += rows.text(u"banco") + u'|';
        rows.set(u"banco", u"Á"_s);
        rows.set(u"saldo", u"2,00"_s);
        rows.update();
    }
    QCOMPARE(seen, u"á|Á|á|"_s);
    QCOMPARE(accounts(), u"Á | 2,00\nJoana d'Arc \"x\"; -- % | 1,00\nÁ | 2,00\nÁ | 2,00\n"_s);
}

void TestRecordset::lockEndsWithTheWalk()
{
    addAccounts({u"a"_s, u"b"_s});
    const auto other = Connection::open(m_program->databaseFile(), schema::password.toString());
    other->setBusyTimeout(0);
    const auto write = [&] { return failure([&] { other->execute(u"update banco set saldo='2,00'"_s); }); };
    {
        Recordset rows(database(), u"select * from banco"_s);
        QVERIFY(rows.next());
        QVERIFY(write() != u"ok");
    }
    QCOMPARE(write(), u"ok"_s); // given up half way
}

/// A recordset that stands on a row would make the other writer and itself wait for each other.
void TestRecordset::editWaitsWithoutLocking()
{
    addAccounts({u"a"_s, u"b"_s});
    const auto other = Connection::open(m_program->databaseFile(), schema::password.toString());
    Recordset rows(database(), u"select * from banco"_s);
    QVERIFY(rows.next());
    rows.set(u"saldo", u"9,00"_s);
    {
        Transaction transaction(*other);
        other->execute(u"update banco set saldo='5,00' where banco like 'b'"_s);
        database().setBusyTimeout(10);
        QVERIFY(failure([&] { rows.update(); }).startsWith(u"Outro computador"));
        other->setBusyTimeout(0);
        transaction.commit();
    }
    rows.set(u"saldo", u"9,00"_s);
    rows.update();
    QCOMPARE(accounts(), u"a | 9,00\nb | 5,00\n"_s);
}

QTEST_GUILESS_MAIN(TestRecordset)
#include "tst_recordset.moc"
