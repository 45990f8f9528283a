#include "support/shop.h"

using namespace Qt::StringLiterals;

/// One whole day of a shop on an empty database, played on the real screens.
class tst_day : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDayInTheShop();
};

void tst_day::aDayInTheShop()
{
    struct Step
    {
        QString command, fields, button;
        QString told = {};
    };
    const QString
        bought = u"information | Cadastrada | Despesa cadastrada com sucesso!"_s,
        sold = u"information | Cadastrada | Receita cadastrada com sucesso!"_s,
        low = u"exclamation | Aviso de estoque | A quantidade de produtos adicionada é maior do que a "
              "quantidade de itens no estoque! Seu saldo no estoque ficara negativo\n"_s,
        sale = u"txtdescricao=Vendas, cbotipo=Ana & Filhos, cboorigem=Caixa, cboproduto=Café, "
               "txtvalor=100, txtqtde="_s;
    const Step steps[] = {
        {u"mnucadbancos"_s, u"txtnome=Caixa, txtvalor=500"_s, u"cmdinserir"_s},
        {u"mnucadbancos"_s, u"txtnome=Banco, txtvalor=2000"_s, u"cmdinserir"_s},
        {u"mnucentrocusto"_s, u"txtnome=Mercadorias"_s, u"cmdcad cmdsair"_s},
        {u"mnucentrolucro"_s, u"txtnome=Vendas"_s, u"cmdcad cmdsair"_s},
        {u"mnuclientes novo"_s, u"txtnome=Ana & Filhos"_s, u"cmdok"_s},
        {u"mnuestoque"_s, u""_s, u"cmdnovoproduto"_s},
        {u""_s, u"txtproduto=Café, txtqtde=0, txtvalor=12,5"_s, u"cmdadicionar cmdfechar"_s},
        // The supplier is added on the way, and picked at once.
        {u"cmdadicionard"_s, u"txtdescricao=Mercadorias, cboproduto=Café, txtqtde=10, txtvalor=125"_s,
         u"cmdforncliinc"_s},
        {u""_s, u"txtnome=Torrefação São José"_s, u"cmdok cmdinserir"_s, bought},
        {u"cmdadicionarr"_s, sale + u'4', u"cmdinserir"_s, sold},
        {u"cmdadicionarr"_s, sale + u'7', u"cmdinserir"_s, low + sold},
        {u"cmdmultiplosp"_s,
         u"txtdescricao=Mercadorias, cbotipo=Torrefação São José, txtvalor=50, txtinfo=Moedor, txtnparcelas=2"_s,
         u"cmdinserir"_s},
        {u"mnucadbancario"_s,
         u"txtvalor=300, cbomovimento=Transferência entre contas, cboorigem=Banco, cbodestino=Caixa, cboestatus=Concluído"_s,
         u"cmdadicionar"_s}};
    Shop shop;
    shop.open();
    for (const Step &step : steps) {
        for (const QString &command : step.command.split(u' ', Qt::SkipEmptyParts))
            shop.command(command);
        if (!step.fields.isEmpty())
            shop.fill(step.fields);
        for (const QString &button : step.button.split(u' '))
            shop.press(button);
        QCOMPARE(shop.told(), step.told);
    }
    shop.list(u"lstreceber"_s)->selectRow(0);
    shop.boxes.answer(QMessageBox::Yes);
    shop.command(u"popbaixareceber"_s);
    QCOMPARE(shop.list(u"lstcaixabanco"_s)->cell(0, 1) + shop.list(u"lstcaixabanco"_s)->cell(1, 1),
             u"R$ 900,00R$ 1.700,00"_s);
    QCOMPARE(shop.program.rows(u"select qtde from produto"_s), u"-1\n"_s);
    QCOMPARE(
        shop.program.rows(u"select fornecedor, descricao, produto, informacoes, vencimento from pagar"_s),
        u"Torrefação São José | Mercadorias | Café |   | 2026/11/14\n"
        "Torrefação São José | Mercadorias |  | Moedor  - Parcela 1 de 2 | 2026/12/14\n"
        "Torrefação São José | Mercadorias |  | Moedor  - Parcela 2 de 2 | 2027/01/14\n"_s);

    const QString printed = shop.printed([&] { shop.command(u"cmdimprimirr"_s); });
    for (const QString &expected : {u"DESCRIÇÃO DA RECEITA"_s, u"Ana & Filhos"_s, u"CONTAS A RECEBER"_s})
        QVERIFY2(printed.contains(expected), qPrintable(printed));
    QVERIFY2(shop.boxes.unanswered().isEmpty(), qPrintable(shop.boxes.unanswered().join(u'\n')));
}

QTEST_MAIN(tst_day)
#include "tst_day.moc"
