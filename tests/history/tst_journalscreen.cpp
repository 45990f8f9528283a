#include "data/undo.h"
#include "entries/entry.h"
#include "entries/side.h"
#include "history/steptexts.h"
#include "settings/database.h"
#include "stock/products.h"
#include "support/ledger.h"
#include "support/samples.h"
#include "support/shop.h"

#include <QStatusBar>

using namespace Qt::StringLiterals;

namespace {

/// A shop that bought coffee, settled the bill and changed its mind.
void work(Shop &shop)
{
    Connection &connection = shop.program.database();
    products::add(connection, {u"Café"_s, u"10"_s, u"2,00"_s, u" "_s});
    entry::save(connection, payable(), sampleEntry(), {});
    entry::settle(connection, payable(), {u"1"_s}, QDate(2026, 11, 14));
    entry::remove(connection, payable(), {{u"1"_s, u"Café"_s, Quantity::fromInteger(5)}});
}

QString deeds(Shop &shop)
{
    const ListView *list = shop.list(u"lsthistorico"_s);
    QStringList lines;
    for (int row = 0; row < list->rowCount(); ++row)
        lines << list->cell(row, 2) + u": "_s + list->cell(row, 5) + u' ' + list->cell(row, 4);
    return lines.join(u'\n');
}

void select(Shop &shop, int row)
{
    shop.list(u"lsthistorico"_s)->selectRow(row);
}

} // namespace

class tst_journalscreen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyStepIsToldInWords();
    void keysTakeBackAndDoAgain();
    void anyStepIsTakenBackWithItsGoods();
    void whatCannotBeTakenBackIsTold();
    void stepsBelongToWhoLoggedIn();
};

void tst_journalscreen::everyStepIsToldInWords()
{
    Shop shop;
    shop.open();
    work(shop);
    shop.command(u"mnuhistorico"_s);
    const QString user = journal::author().user;
    QCOMPARE(deeds(shop), user + u": Exclusão de conta a pagar: Aluguel - Ana - R$ 1.234,50 \n"_s + user +
                              u": Baixa de conta a pagar: Aluguel - Ana - R$ 1.234,50 \n"_s + user +
                              u": Inclusão de conta a pagar: Aluguel - Ana - R$ 1.234,50 \n"_s + user +
                              u": Inclusão de produto: Café "_s);
    select(shop, 1);
    const auto changes = linesOf(*shop.list(u"lstmudancas"_s)->tableSource());
    QCOMPARE(changes,
             u"conta a pagar: Aluguel - Ana - R$ 1.234,50 | Estatus | Pendente | Concluído\n"
             "conta a pagar: Aluguel - Ana - R$ 1.234,50 | Vencimento | 10/12/2026 | 14/11/2026\n"_s);
    shop.find<QLineEdit>(u"txtprocurar"_s)->setText(u"exclusao ANA"_s);
    shop.press(u"cmdfiltrar"_s);
    QCOMPARE(shop.label(u"lbltotal"_s), u"1 ação"_s);
}

void tst_journalscreen::keysTakeBackAndDoAgain()
{
    Shop shop;
    shop.open();
    work(shop);
    const QString rows = u"select estatus, vencimento from pagar"_s;
    const auto said = [&shop] { return shop.window->statusBar()->currentMessage(); };
    shop.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(shop.window.get()));
    QTest::keyClick(shop.list(u"lstpagar"_s), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(said(), u"Desfeito: Exclusão de conta a pagar: Aluguel - Ana - R$ 1.234,50"_s);
    QCOMPARE(shop.list(u"lstpagar"_s)->rowCount(), 1);
    shop.command(u"mnudesfazer"_s);
    QCOMPARE(shop.program.rows(rows), u"Pendente | 2026/12/10\n"_s);
    QVERIFY(shop.label(u"lbltotalp"_s).contains(u"Total pendente: R$ 1.234,50"_s));
    shop.command(u"mnurefazer"_s);
    QCOMPARE(shop.program.rows(rows), u"Concluído | 14/11/2026\n"_s);
    for (int i = 0; i < 4; ++i)
        shop.command(u"mnudesfazer"_s);
    QCOMPARE(said(), u"Não há nada para desfazer"_s);
    QCOMPARE(shop.program.rows(u"select produto from produto"_s), QString());
    QCOMPARE(shop.told(), QString());
}

void tst_journalscreen::anyStepIsTakenBackWithItsGoods()
{
    Shop shop;
    shop.open();
    work(shop);
    const QString stock = u"select qtde from produto"_s;
    QCOMPARE(shop.program.rows(stock), u"10\n"_s);
    shop.command(u"mnuhistorico"_s);
    select(shop, 0);
    shop.press(u"cmddesfazer"_s);
    QCOMPARE(shop.program.rows(stock), u"15\n"_s);
    QCOMPARE(shop.program.rows(u"select código, produto from pagar"_s), u"1 | Café\n"_s);
    select(shop, 1);
    QVERIFY(shop.list(u"lsthistorico"_s)->cell(1, 4) == u"Desfeita"_s);
    shop.press(u"cmdrefazer"_s);
    QCOMPARE(shop.program.rows(stock), u"10\n"_s);
}

void tst_journalscreen::whatCannotBeTakenBackIsTold()
{
    Shop shop;
    shop.open();
    work(shop);
    shop.command(u"mnuhistorico"_s);
    select(shop, 2);
    shop.press(u"cmddesfazer"_s);
    QCOMPARE(shop.told(),
             u"exclamation | Desfazer | Esta ação não pode mais ser desfeita, e nada foi alterado:\n\n"
             "conta a pagar: Aluguel - Ana - R$ 1.234,50 (não existe mais)"_s);
    QCOMPARE(shop.program.rows(u"select qtde from produto"_s), u"10\n"_s);
}

void tst_journalscreen::stepsBelongToWhoLoggedIn()
{
    Shop shop;
    shop.program.run(u"insert into login (nome, senha) values ('Rui', 'abc')"_s);
    shop.program.run(u"update login_inicia set exigirlogin = '1'"_s);
    shop.boxes.drive(Shop::enter(u"Rui"_s, u"abc"_s));
    shop.open();
    work(shop);
    shop.command(u"mnuhistorico"_s);
    QVERIFY(deeds(shop).startsWith(u"Rui: Exclusão"_s));
    QCOMPARE(shop.find<QComboBox>(u"cbousuario"_s)->itemText(1), u"Rui"_s);
}

QTEST_MAIN(tst_journalscreen)
#include "tst_journalscreen.moc"
