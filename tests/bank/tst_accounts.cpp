#include "bank/accounts.h"
#include "settings/database.h"
#include "support/testprogram.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString shown(const std::vector<AccountBalance> &balances)
{
    QStringList lines;
    for (const AccountBalance &account : balances)
        lines << account.name + u" | "_s + account.current().inReais() + u" | "_s +
                     account.opening().inReais();
    return lines.join(u'\n');
}

void entry(TestProgram &program, const QString &table, const QString &status, const QString &account,
           const QString &value)
{
    program.run(u"insert into %1 (estatus, origem, valor) values ('%2', '%3', '%4')"_s.arg(table, status,
                                                                                           account, value));
}

void movementRow(TestProgram &program, const QString &status, const QString &kind, const QString &from,
                 const QString &to, const QString &value, const QString &date = u"2026/05/20"_s)
{
    program.run(
        u"insert into bancario (estatus, movimento, origem, destino, valor, data, informacoes) values "
        "('%1', '%2', '%3', '%4', '%5', '%6', ' ')"_s.arg(status, kind, from, to, value, date));
}

} // namespace

class tst_accounts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void balancesFollowSettledEntriesOnly();
    void namesMatchAsPatterns();
    void sumOutOfRangeIsShownAsSuch();
    void summaryText();
    void formIsCheckedAndStored();
};

void tst_accounts::balancesFollowSettledEntriesOnly()
{
    TestProgram program;
    QVERIFY(accounts::balances(openDatabase()).empty());
    accounts::add(program.database(), {u"Caixa"_s, u"1500"_s, u" gaveta "_s});
    accounts::add(program.database(), {u"Banco"_s, u"R$ -10,00"_s, u""_s});
    entry(program, u"pagar"_s, u"Concluído"_s, u"CAIXA"_s, u"100,00"_s);
    entry(program, u"pagar"_s, u"Pendente"_s, u"Caixa"_s, u"9.000,00"_s);
    for (int i = 0; i < 2; ++i)
        entry(program, u"receber"_s, u"concluído"_s, u"Caixa"_s, u"0,335"_s); // each counts as 0,34
    entry(program, u"receber"_s, u"CONCLUÍDO"_s, u"Banco"_s, u"1.000,00"_s);
    movementRow(program, u"Concluído"_s, u"Depósito"_s, u"Caixa"_s, u"Banco"_s, u"5,00"_s);
    movementRow(program, u"Concluído"_s, u"Retirada"_s, u"Banco"_s, u" - "_s, u"1,00"_s);
    movementRow(program, u"Concluído"_s, u"Transferência entre contas"_s, u"Caixa"_s, u"Banco"_s,
                u"400,00"_s);
    movementRow(program, u"Pendente"_s, u"Transferência entre contas"_s, u"Caixa"_s, u"Banco"_s,
                u"7.000,00"_s);
    movementRow(program, u"Concluído"_s, u"depósito"_s, u"Caixa"_s, u" - "_s, u"8.000,00"_s); // no known kind

    QCOMPARE(shown(accounts::balances(openDatabase())),
             u"Caixa | R$ 1.005,68 | R$ 1.500,00\nBanco | R$ 1.389,00 | R$ -10,00"_s);
    QCOMPARE(shown(accounts::balances(openDatabase(), false)),
             u"Caixa | R$ 1.500,00 | R$ 1.500,00\nBanco | R$ -10,00 | R$ -10,00"_s);

    accounts::remove(program.database(), u"caixa"_s);
    QCOMPARE(program.rows(u"select banco, saldo, informacoes from banco"_s), u"Banco | -10,00 |  \n"_s);
    QCOMPARE(program.rows(u"select código from pagar"_s), u"1\n2\n"_s);
}

void tst_accounts::namesMatchAsPatterns()
{
    TestProgram program;
    accounts::add(program.database(), {u"Caixa%"_s, u"0,00"_s, u""_s});
    accounts::add(program.database(), {u"Caixa 2"_s, u"0,00"_s, u""_s});
    entry(program, u"receber"_s, u"Concluído"_s, u"Caixa 2"_s, u"10,00"_s);
    entry(program, u"receber"_s, u"Concluído"_s, u"caixa grande"_s, u"5,00"_s);
    QCOMPARE(shown(accounts::balances(openDatabase())),
             u"Caixa% | R$ 15,00 | R$ 0,00\nCaixa 2 | R$ 10,00 | R$ 0,00"_s);
}

void tst_accounts::sumOutOfRangeIsShownAsSuch()
{
    TestProgram program;
    for (const QString &name : {u"Caixa"_s, u"Banco"_s})
        accounts::add(program.database(), {name, u"1"_s, u""_s});
    for (int i = 0; i < 2; ++i)
        entry(program, u"receber"_s, u"Concluído"_s, u"Caixa"_s, u"900.000.000.000.000,00"_s);
    const auto balances = accounts::balances(openDatabase());
    QCOMPARE(shown(balances), u"Caixa | valor grande demais | R$ 1,00\nBanco | R$ 1,00 | R$ 1,00"_s);
    QVERIFY(accounts::summary(balances).contains(u"Movimentação de valor grande demais\r\n"_s));
}

void tst_accounts::summaryText()
{
    const std::vector<AccountBalance> two{
        {u"Caixa"_s, u"gaveta "_s, Money::fromInteger(1500), Money::stored(QStringView(u"-494,66"))},
        {u"Banco"_s, u" "_s, Money::stored(QStringView(u"12,50")), {}}};
    QCOMPARE(
        accounts::summary(two),
        u"Caixa/Banco: Caixa(gaveta )\r\nO saldo neste banco inicio com R$ 1500\r\nO saldo atual é R$ "
        u"1.005,34\r\n"
        "Movimentação de R$ -494,66\r\n.\r\n"
        "Caixa/Banco: Banco( )\r\nO saldo neste banco inicio com R$ 12,5\r\nO saldo atual é R$ 12,50\r\n"
        "Movimentação de R$ 0,00\r\n.\r\n"
        " > REFERÊNCIAS RÁPIDAS\r\n.\r\nValor total em caixa/banco\r\nR$ 1.017,84\r\n\r\n"
        "Valor total de inicio em caixa/banco\r\nR$ 1.512,50\r\n\r\nSaldo total de movimentação \r\nR$ -494,66\r\n\r\n"_s);
}

void tst_accounts::formIsCheckedAndStored()
{
    QVERIFY(accounts::problem({u"D'Ávila"_s, u"1"_s, u""_s}) &&
            !accounts::problem({u"Caixa"_s, u"1"_s, u""_s}));
    TestProgram program;
    accounts::add(program.database(), {u" Caixa "_s, u"1234,5"_s, u" nota "_s});
    accounts::change(program.database(), u" Caixa "_s, {u"Outro"_s, u"2"_s, u""_s});
    QVERIFY_THROWS_EXCEPTION(Error,
                             accounts::change(program.database(), u"D'Ávila"_s, {u""_s, u"1"_s, u""_s}));
    QCOMPARE(program.rows(u"select * from banco"_s), u" Caixa  | 2,00 |  \n"_s);
}

QTEST_GUILESS_MAIN(tst_accounts)
#include "tst_accounts.moc"
