#include "sales/serviceorder.h"
#include "support/ledger.h"
#include "support/shop.h"

#include <QCompleter>

using namespace Qt::StringLiterals;

namespace {

/// One line each; a value at a print column as "label @30 value".
QString textOf(const PageDocument &pages)
{
    QString text;
    for (const PageBlock &block : pages.blocks)
        if (const auto *line = std::get_if<PageText>(&block)) {
            text += line->size ? QString::number(line->size) + u'|' : QString();
            text += line->text.startsWith(u'-') ? u"---"_s : line->text.section(u"---"_s, 0, 0);
            text += line->tab ? u"@%1 "_s.arg(line->tab) + line->tabbed : QString();
            text += u'\n';
        }
    return text;
}

} // namespace

class tst_serviceorder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printsToTheLetter();
    void isComposedAndPrinted();
};

void tst_serviceorder::printsToTheLetter()
{
    const ServiceOrder order{
        .client = u"Ana"_s,
        .phone = u"55"_s,
        .products = {{u"Placa"_s, u"X"_s, u"Y"_s, u"9"_s, u"d"_s, u"10,00"_s, u"3"_s},
                     {u"Cabo"_s, {}, {}, {}, {}, u"1.000,10"_s, u"1,5"_s}},
        .services = {{u"Troca"_s, u"rápida"_s, u"20,00"_s}, {u"Teste"_s, {}, u"0,01"_s}},
    };
    QVERIFY2(textOf(serviceorder::document(order, {2026, 11, 14}))
                 .contains(u"13|Telefone de contato: 55\n"
                           "13|---\n"
                           "11|@40 ORDEM DE SERVIÇO\n"
                           "11|Nome do cliente: Ana\n"
                           "11|Data de emissão: sábado, 14 de novembro de 2026\n"
                           "11|\n"
                           "11|PRODUTOS \n"
                           "11|Nome do produto: @30 Placa\n"
                           "11|Marca: @30 X\n"
                           "11|Modelo: @30 Y\n"
                           "11|Nº de serie: @30 9\n"
                           "11|Descrição: @30 d\n"
                           "11|Valor: @30 10,00\n"
                           "11|Quantidade: @30 3\n"
                           "11|\n"_s),
             qPrintable(textOf(serviceorder::document(order, {2026, 11, 14}))));
    const QString text = textOf(serviceorder::document(order, {2026, 11, 14}));
    QCOMPARE(text.mid(text.indexOf(u"11|SERVIÇOS"_s)).section(u"11|Gerado "_s, 0, 0),
             u"11|SERVIÇOS \n"
             "11|Tipo de serviço: @25 Troca\n"
             "11|Descrição: @25 rápida\n"
             "11|Valor: @25 20,00\n"
             "11|\n"
             "11|Tipo de serviço: @25 Teste\n"
             "11|Descrição: @25 \n"
             "11|Valor: @25 0,01\n"
             "11|\n"
             "11|---\n"
             "11|\n"
             "11|RESUMO\n"
             "11|Total de produtos:@25 R$ 1.530,15\n"
             "11|Total de serviços:@25 R$ 20,01\n"
             "11|Total a pagar:@25 R$ 1.550,16\n"
             "11|---\n"
             "11|\n"_s);
}

void tst_serviceorder::isComposedAndPrinted()
{
    Shop shop;
    addRow(shop.program, u"produto"_s, u"produto=Placa, qtde=1, custo=1"_s);
    addRow(shop.program, u"cliente"_s, u"nome=Ana & Filhos"_s);
    shop.open();
    shop.command(u"mnuordemserv"_s);
    QCOMPARE(shop.find<QLineEdit>(u"txtcliente"_s)->completer()->completionModel()->rowCount(), 1);
    shop.fill(u"txtcliente=Ana & Filhos, txttelefone=55-1234"_s);
    shop.press(u"cmdadpro"_s);
    shop.press(u"cmdadicionar"_s);
    shop.fill(u"txtnome=Placa nova"_s);
    shop.press(u"cmdadicionar"_s);
    shop.fill(u"txtvalor=10"_s);
    shop.find<QLineEdit>(u"txtqtde"_s)->setText(u"muitos"_s);
    shop.press(u"cmdadicionar"_s);
    const QStringList told = shop.boxes.seen();
    QCOMPARE(told.mid(0, 2).join(u'\n'), u"exclamation | Erro | O nome do produto deve ser digitado!\n"
                                         "exclamation | Erro | O valor do produto deve ser digitado!"_s);
    QVERIFY(told.value(2).contains(u"Quantidade"_s));
    shop.fill(u"txtqtde=3"_s);
    shop.press(u"cmdadicionar"_s);
    QVERIFY(!shop.screen(u"frmCadProdOrc"_s));
    shop.press(u"cmdadserv"_s);
    shop.press(u"cmdadicionar"_s);
    shop.fill(u"txtnome=Troca"_s);
    shop.press(u"cmdadicionar"_s);
    QCOMPARE(shop.told(), u"exclamation | Erro | O tipo de serviço deve ser digitado!\n"
                          "exclamation | Erro | O valor do serviço deve ser digitado!"_s);
    shop.fill(u"txtvalor=1234,5"_s);
    shop.press(u"cmdadicionar"_s);
    ListView *products = shop.list(u"lstprodutos"_s), *services = shop.list(u"lstservicos"_s);
    QCOMPARE(linesOf(*products->tableSource()), u"Placa nova |  |  |  |  | 10,00 | 3\n"_s);
    QCOMPARE(linesOf(*services->tableSource()), u"Troca |  | 1.234,50\n"_s);

    const QString printed = shop.printed([&] { shop.press(u"cmdimprimir"_s); }).simplified();
    for (const QString &line : {u"Nome do cliente: Ana & Filhos"_s, u"Total de produtos: R$ 30,00"_s,
                                u"Total a pagar: R$ 1.264,50"_s})
        QVERIFY2(printed.contains(line), qPrintable(printed));

    for (int i = 0; i < 2; ++i) { // of two services the second goes
        shop.press(u"cmdadserv"_s);
        shop.fill(u"txtnome=s%1, txtvalor=1"_s.arg(i));
        shop.press(u"cmdadicionar"_s);
    }
    services->selectRow(1);
    shop.press(u"cmdremserv"_s);
    QCOMPARE(linesOf(*services->tableSource()), u"Troca |  | 1.234,50\ns1 |  | 1,00\n"_s);
    shop.press(u"cmd"_s);
    QCOMPARE(services->rowCount(), 0);
    QCOMPARE(products->rowCount(), 1);
    products->selectRow(0);
    shop.press(u"cmdrempro"_s);
    QCOMPARE(products->rowCount(), 0);
    shop.press(u"cmdsair"_s);
    shop.command(u"mnuordemserv"_s);
    QCOMPARE(shop.text(u"txtcliente"_s), QString()); // nothing is kept
}

QTEST_MAIN(tst_serviceorder)
#include "tst_serviceorder.moc"
