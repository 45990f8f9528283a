#include "data/recordset.h"
#include "support/shop.h"
#include "widgets/listview.h"

#include <QComboBox>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

/// One whole day of a shop on an empty database, played on the real screens.
class tst_day : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDayInTheShop();

private:
    static void openTheShop(Shop &shop);
    static void contacts(Shop &shop);
    static void products(Shop &shop);
    static void purchase(Shop &shop);
    static void sales(Shop &shop);
    static void installments(Shop &shop);
    static void transferAndSettle(Shop &shop);
    static void takeTheListsHome(Shop &shop);
};

void tst_day::openTheShop(Shop &shop)
{
    const std::pair<QString, QString> accounts[] = {{u"Caixa"_s, u"500"_s}, {u"Banco"_s, u"2000"_s}};
    for (const auto &[name, opening] : accounts) {
        shop.command(u"mnucadbancos"_s);
        shop.type(u"txtnome"_s, name);
        shop.type(u"txtvalor"_s, opening);
        shop.press(u"cmdinserir"_s);
    }
    QCOMPARE(shop.list(u"lstcaixabanco"_s)->rowCount(), 2);

    const std::pair<QString, QString> centres[] = {{u"mnucentrocusto"_s, u"Mercadorias"_s},
                                                   {u"mnucentrolucro"_s, u"Vendas"_s}};
    for (const auto &[command, name] : centres) {
        shop.command(command);
        shop.type(u"txtnome"_s, name);
        shop.press(u"cmdcad"_s);
        QCOMPARE(shop.list(u"lstcentro"_s)->cell(0, 0), name);
        shop.press(u"cmdsair"_s);
    }
    QCOMPARE(shop.told(), QString());
}

void tst_day::contacts(Shop &shop)
{
    shop.command(u"mnuclientes"_s);
    shop.command(u"novo"_s);
    shop.press(u"cmdok"_s);
    QCOMPARE(shop.told(), u"exclamation | Erro | O nome do cliente é de preenchimento obrigatório!"_s);
    shop.type(u"txtnome"_s, u"Ana & Filhos"_s);
    shop.press(u"cmdok"_s);
    QCOMPARE(shop.list(u"lstcontato"_s)->cell(0, 1), u"Ana & Filhos"_s);
    shop.screen(u"frmCliente"_s)->close();
}

void tst_day::products(Shop &shop)
{
    shop.command(u"mnuestoque"_s);
    shop.press(u"cmdnovoproduto"_s);
    shop.fill(u"txtproduto=Café, txtqtde=0, txtvalor=12,5"_s);
    shop.press(u"cmdadicionar"_s);
    QCOMPARE(shop.list(u"lstprodutos"_s)->cell(0, 2), u"R$ 12,50"_s);
    shop.press(u"cmdfechar"_s);
}

void tst_day::purchase(Shop &shop)
{
    shop.command(u"cmdadicionard"_s);
    QTest::mouseClick(shop.find<QWidget>(u"cmdforncliinc"_s), Qt::LeftButton);
    shop.type(u"txtnome"_s, u"Torrefação São José"_s);
    shop.press(u"cmdok"_s);
    QCOMPARE(shop.text(u"cbotipo"_s), u"Torrefação São José"_s); // the new name is picked at once
    shop.fill(u"txtdescricao=Mercadorias, cboproduto=Café, txtqtde=10, txtvalor=125"_s);
    shop.press(u"cmdinserir"_s);
    QCOMPARE(shop.told(), u"information | Cadastrada | Despesa cadastrada com sucesso!"_s);
    QCOMPARE(shop.program.rows(u"select qtde from produto"_s), u"10\n"_s);
}

void tst_day::sales(Shop &shop)
{
    const QString warning =
        u"exclamation | Aviso de estoque | A quantidade de produtos adicionada é maior do que a "
        "quantidade de itens no estoque! Seu saldo no estoque ficara negativo\n"_s;
    const QString saved = u"information | Cadastrada | Receita cadastrada com sucesso!"_s;
    const std::pair<QString, QString> sold[] = {{u"4"_s, saved}, {u"7"_s, warning + saved}};
    for (const auto &[quantity, expected] : sold) {
        shop.command(u"cmdadicionarr"_s);
        shop.fill(u"txtdescricao=Vendas, cbotipo=Ana & Filhos, cboorigem=Caixa, cboproduto=Café, "
                  "txtvalor=100, txtqtde="_s +
                  quantity);
        shop.press(u"cmdinserir"_s);
        QCOMPARE(shop.told(), expected);
    }
    QCOMPARE(shop.program.rows(u"select qtde from produto"_s), u"-1\n"_s);
}

void tst_day::installments(Shop &shop)
{
    shop.command(u"cmdmultiplosp"_s);
    shop.fill(u"txtdescricao=Mercadorias, cbotipo=Torrefação São José, txtvalor=50, txtinfo=Moedor, "
              "txtnparcelas=3"_s);
    shop.press(u"cmdinserir"_s);
    QCOMPARE(shop.told(), QString());
    QCOMPARE(shop.list(u"lstpagar"_s)->rowCount(), 4);
    QCOMPARE(
        shop.program.rows(u"select vencimento, informacoes from pagar where (informacoes like 'Moedor%')"_s),
        u"2026/12/14 | Moedor  - Parcela 1 de 3\n2027/01/14 | Moedor  - Parcela 2 de 3\n"
        "2027/02/14 | Moedor  - Parcela 3 de 3\n"_s);
}

void tst_day::transferAndSettle(Shop &shop)
{
    shop.command(u"mnucadbancario"_s);
    shop.fill(u"txtvalor=300, cbomovimento=Transferência entre contas, cboorigem=Banco, cbodestino=Caixa, "
              "cboestatus=Concluído"_s);
    shop.press(u"cmdadicionar"_s);
    QCOMPARE(shop.tab(), int(frmPrincipal::MovementsTab));

    shop.list(u"lstreceber"_s)->selectRow(0);
    shop.boxes.answer(QMessageBox::Yes);
    shop.command(u"popbaixareceber"_s);
    shop.boxes.seen();
    QCOMPARE(shop.list(u"lstcaixabanco"_s)->cell(0, 1), u"R$ 900,00"_s);
    QCOMPARE(shop.list(u"lstcaixabanco"_s)->cell(1, 1), u"R$ 1.700,00"_s);
}

void tst_day::takeTheListsHome(Shop &shop)
{
    const QString paper = shop.program.file(u"dia.pdf"_s);
    shop.boxes.drive([&shop, paper](QDialog &preview) {
        shop.boxes.chooseFile(paper);
        shop.boxes.answer(QMessageBox::No);
        QTest::mouseClick(preview.findChild<QPushButton *>(u"cmdpdf"_s), Qt::LeftButton);
        preview.close();
    });
    shop.command(u"cmdimprimirr"_s);
    QProcess reader;
    reader.start(u"pdftotext"_s, {u"-layout"_s, paper, u"-"_s});
    QVERIFY(reader.waitForFinished());
    const QString printed = QString::fromUtf8(reader.readAllStandardOutput());
    for (const QString &expected : {u"DESCRIÇÃO DA RECEITA"_s, u"Ana & Filhos"_s, u"CONTAS A RECEBER"_s})
        QVERIFY2(printed.contains(expected), qPrintable(printed));
}

void tst_day::aDayInTheShop()
{
    Shop shop;
    shop.open();
    for (const auto step :
         {&tst_day::openTheShop, &tst_day::contacts, &tst_day::products, &tst_day::purchase, &tst_day::sales,
          &tst_day::installments, &tst_day::transferAndSettle, &tst_day::takeTheListsHome}) {
        step(shop);
        if (QTest::currentTestFailed())
            return;
    }
    QVERIFY2(shop.boxes.unanswered().isEmpty(), qPrintable(shop.boxes.unanswered().join(u'\n')));
}

QTEST_MAIN(tst_day)
#include "tst_day.moc"
