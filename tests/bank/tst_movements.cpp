#include "bank/accounts.h"
#include "bank/movement.h"
#include "settings/database.h"
#include "support/shop.h"

using namespace Qt::StringLiterals;

namespace {

/// Accounts whose name order is not their table order, each with 1.000,00.
void addAccounts(TestProgram &program)
{
    accounts::add(program.database(), {u"Cofre"_s, u"1000"_s, u""_s});
    accounts::add(program.database(), {u"Banco"_s, u"1000"_s, u""_s});
}

QString balances()
{
    QStringList texts;
    for (const AccountBalance &account : accounts::balances(openDatabase()))
        texts << account.name + u' ' + account.current().grouped();
    return texts.join(u", "_s);
}

QString movements(TestProgram &program)
{
    return program.rows(
        u"select código, data, movimento, origem, destino, valor, estatus, informacoes from bancario"_s);
}

MovementForm deposit(const QString &status)
{
    return {.date = u"14/11/2026"_s,
            .value = u"R$ 100,00"_s,
            .kind = movement::deposit.toString(),
            .origin = u"Cofre"_s,
            .destination = u"Banco"_s,
            .status = status,
            .notes = u" nota "_s};
}

} // namespace

class tst_movements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newScreenStartsAndTellsWhatIsMissing();
    void savingATransferMovesBothBalances();
    void editing();
};

void tst_movements::newScreenStartsAndTellsWhatIsMissing()
{
    Shop shop;
    addAccounts(shop.program);
    shop.open();
    shop.command(u"mnucadbancario"_s);
    QCOMPARE(shop.text(u"txtdata"_s) + shop.text(u"cboorigem"_s), u"14/11/2026Banco"_s); // the table's last
    QVERIFY(!shop.find<QComboBox>(u"cbodestino"_s)->isEnabled());
    shop.press(u"cmdadicionar"_s);
    shop.type(u"txtvalor"_s, u","_s);
    QCOMPARE(shop.text(u"txtvalor"_s), u"R$ 0,00"_s);
    for (const QString &date : {u""_s, u"31022026"_s, u"01112026"_s}) {
        shop.find<QLineEdit>(u"txtdata"_s)->clear();
        shop.type(u"txtdata"_s, date);
        QCOMPARE(movements(shop.program), QString());
        shop.press(u"cmdadicionar"_s);
    }
    QCOMPARE(
        shop.told().section(u"31/02"_s, 0, 0),
        u"exclamation | Erro | O campo valor deve preenchido!\nexclamation | Erro | O campo data deve preenchido!\ncritical | Erro | Ocorreu o seguinte erro ao tentar cadastrar os dados: a data \""_s);
    QVERIFY(!shop.screen(u"frmmovimentobanc"_s));
    QCOMPARE(movements(shop.program), u"1 | 2026/11/01 | Depósito | Banco |  -  | 0,00 | Pendente |  \n"_s);
}

void tst_movements::savingATransferMovesBothBalances()
{
    Shop shop;
    addAccounts(shop.program);
    shop.open();
    shop.command(u"cmdadicionarm"_s);
    shop.choose(u"cbomovimento"_s, u"Transferência entre contas"_s);
    QVERIFY(shop.find<QComboBox>(u"cbodestino"_s)->isEnabled());
    shop.fill(u"txtvalor=250,5, cboestatus=Concluído"_s);
    QCOMPARE(shop.text(u"txtvalor"_s), u"R$ 250,50"_s);
    shop.type(u"cboorigem"_s, u"Cofre"_s);
    shop.press(u"cmdadicionar"_s);
    QCOMPARE(shop.told(), QString());
    QCOMPARE(movements(shop.program),
             u"1 | 2026/11/14 | Transferência entre contas | Cofre | Banco | 250,50 | Concluído |  \n"_s);
    QCOMPARE(
        shop.label(u"lbltotalm"_s),
        u"Depósitos: R$ 0,00 (0 cad.) - Retiradas: R$ 0,00 (0 cad.) - Transferência: R$ 250,50 (1 cad.)"_s);
    const QString moved = u"Cofre 749,50, Banco 1.250,50"_s;
    QCOMPARE(balances(), moved);
    // A kind that is typed in other letter case is another kind.
    shop.command(u"cmdadicionarm"_s);
    shop.type(u"cbomovimento"_s, u"transferência entre contas"_s);
    shop.fill(u"txtvalor=10, cboestatus=Concluído"_s);
    shop.press(u"cmdadicionar"_s);
    QVERIFY(movements(shop.program)
                .endsWith(u"| transferência entre contas | Banco |  -  | 10,00 | Concluído |  \n"));
    QCOMPARE(balances(), moved);
}

void tst_movements::editing()
{
    Shop shop;
    addAccounts(shop.program);
    movement::add(shop.program.database(), deposit(u"Pendente"_s));
    QCOMPARE(balances(), u"Cofre 1.000,00, Banco 1.000,00"_s);
    shop.open();
    shop.list(u"lstmovimento"_s)->selectRow(0);
    QTest::keyClick(shop.list(u"lstmovimento"_s), Qt::Key_Return);
    QVERIFY(shop.screen(u"frmeditarbancario"_s));
    QCOMPARE(shop.find<QComboBox>(u"cboorigem"_s)->itemText(0), u"Banco"_s);
    QCOMPARE(shop.text(u"cboorigem"_s), u"Cofre"_s);
    QCOMPARE(shop.text(u"txtvalor"_s), u"R$ 100,00"_s);
    shop.find<QLineEdit>(u"txtvalor"_s)->clear();
    shop.press(u"cmdeditar"_s);
    shop.type(u"txtvalor"_s, u"80"_s);
    shop.find<QLineEdit>(u"txtdata"_s)->clear();
    shop.press(u"cmdeditar"_s);
    QCOMPARE(shop.told(), u"exclamation | Erro | O campo valor deve ser preenchido!\n"
                          "exclamation | Erro | O campo data deve ser preenchido!"_s);
    shop.type(u"txtdata"_s, u"15112026"_s);
    shop.choose(u"cboestatus"_s, u"Concluído"_s);
    shop.press(u"cmdeditar"_s);
    QCOMPARE(movements(shop.program),
             u"1 | 2026/11/15 | Depósito | Cofre |  -  | 80,00 | Concluído | nota \n"_s);
    QCOMPARE(shop.list(u"lstcaixabanco"_s)->cell(0, 1), u"R$ 1.080,00"_s);
}

QTEST_MAIN(tst_movements)
#include "tst_movements.moc"
