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

    void addsRows();
    void numbersInBrazilianText();
    void editsTheCurrentRow();
    void editsEveryRowItWalks();
    void removesRows();
    void reportsMisuse();
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

void TestRecordset::addsRows()
{
    Recordset table(database(), u"[pagar]"_s);
    table.addNew();
    table.set(u"Fornecedor", u"Caixa D'Água \"da\" Vila; -- %"_s);
    table.set(u"valor", u"1.000,00"_s);
    table.set(u"valor", u"1.234,50"_s);
    table.update();
    QCOMPARE(m_program->rows(u"select código, fornecedor, valor from pagar"_s),
             u"1 | Caixa D'Água \"da\" Vila; -- % | 1.234,50\n"_s);
}

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

void TestRecordset::editsTheCurrentRow()
{
    addAccounts({u"Itaú"_s, u"Caixa"_s});
    Recordset rows(database(), u"SELECT * FROM banco where(banco like 'ITAÚ')"_s);
    QVERIFY(rows.next());
    rows.set(u"banco", u"Joana d'Arc"_s);
    rows.set(u"saldo", u"-2,50"_s);
    rows.update();
    QCOMPARE(accounts(), u"Joana d'Arc | -2,50\nCaixa | 1,00\n"_s);
    QVERIFY(!rows.next());
}

void TestRecordset::editsEveryRowItWalks()
{
    addAccounts({u"á"_s, u"b"_s, u"Á"_s, u"á"_s});
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
    QCOMPARE(accounts(), u"Á | 2,00\nb | 1,00\nÁ | 2,00\nÁ | 2,00\n"_s);
}

void TestRecordset::removesRows()
{
    addAccounts({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    Recordset rows(database(), u"select * from banco"_s);
    for (int i = 0; rows.next(); ++i) {
        if (i == 0)
            m_program->run(u"delete from banco where banco like 'c'"_s); // someone else's
        if (i < 2)
            rows.remove();
    }
    QCOMPARE(accounts(), u"d | 1,00\n"_s);
}

void TestRecordset::reportsMisuse()
{
    addAccounts({u"a"_s});
    Recordset rows(database(), u"select * from banco"_s), names(database(), u"select banco from banco"_s);
    QVERIFY(rows.next());
    QCOMPARE(failure([&] { rows.text(u"nome"); }), u"A consulta não tem a coluna \"nome\"."_s);
    QCOMPARE(failure([&] { rows.set(u"nome", QString()); }), u"A tabela banco não tem a coluna \"nome\"."_s);
    QCOMPARE(failure([&] { names.addNew(); }), u"As linhas desta consulta não podem ser alteradas."_s);
    m_program->run(u"delete from banco"_s);
    rows.set(u"banco", u"x"_s);
    QCOMPARE(failure([&] { rows.update(); }), u"A linha não existe mais: outro usuário a excluiu."_s);
    QVERIFY(failure([&] {
                Recordset(database(), u"delete from login_inicia"_s);
            }).startsWith(u"Só uma consulta"));
    QCOMPARE(m_program->rows(u"select * from login_inicia"_s), u"0\n"_s);
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
    {
        Transaction transaction(*other);
        other->execute(u"update banco set saldo='5,00' where banco like 'b'"_s);
        database().setBusyTimeout(10);
        rows.set(u"saldo", u"9,00"_s);
        QVERIFY(failure([&] { rows.update(); }).startsWith(u"Outro computador"));
        other->setBusyTimeout(0);
        transaction.commit();
    }
    rows.set(u"saldo", u"9,00"_s);
    rows.update();
    QVERIFY(rows.next());
    QCOMPARE(rows.text(u"saldo"), u"5,00"_s);
    QCOMPARE(accounts(), u"a | 9,00\nb | 5,00\n"_s);
}

QTEST_GUILESS_MAIN(TestRecordset)
#include "tst_recordset.moc"
