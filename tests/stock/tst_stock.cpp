#include "data/changes.h"
#include "sales/frmestoque.h"
#include "sales/stocklists.h"
#include "stock/products.h"
#include "support/readlist.h"
#include "support/samples.h"
#include "support/shop.h"

using namespace Qt::StringLiterals;

namespace {

const QDate today(2026, 11, 14);

EntryForm form(const QString &product, const QString &quantity, const QString &value,
               const QString &cost = {})
{
    EntryForm entry = sampleEntry();
    entry.product = product;
    entry.quantity = quantity;
    entry.value = value;
    entry.unitCost = cost;
    return entry;
}

KeyedList loaded(const StockKind &kind, const StockFilter &filter = {})
{
    return readList(stocklists::columns(kind), StockTotals(kind), stocklists::query(kind, filter, today));
}

QString totals(const StockKind &kind)
{
    return static_cast<const StockTotals &>(loaded(kind).totals()).text();
}

/// The stock screen, with some coffee in stock.
struct StockScreen : Shop
{
    StockScreen()
    {
        program.run(
            u"insert into produto (produto, qtde, custo, info) values ('Café', 10, '2,50', 'moído')"_s);
    }
    void open() { stock.reset(frmestoque::open(nullptr)); }
    QDialog *product() const { return screen(u"frmcadproduto"_s); }
    void write(const QString &name, const QString &text) const { find<QLineEdit>(name)->setText(text); }
    QString stored() { return program.rows(u"select produto, qtde, custo, info from produto"_s); }

    std::unique_ptr<frmestoque> stock;
};

} // namespace

class tst_stock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersOfAProduct();
    void productListAndSummary();
    void salesListCountsProfit();
    void purchasesListCountsAmounts();
    void productScreen();
    void stockScreenFollowsEntries();
    void filtersOfTheStockScreen();
};

void tst_stock::numbersOfAProduct()
{
    TestProgram program;
    Connection &connection = program.database();
    for (const QString &name : {u" "_s, u"Copo d'água"_s, u" - "_s})
        QVERIFY(products::problem({name, {}, {}, {}}));
    QVERIFY(!products::problem({u"Café - moído"_s, {}, {}, {}}));
    products::add(connection, {u" Café "_s, u" 1.002,5 "_s, u"1234,5"_s, u"nota"_s});
    products::add(connection, {u"Chá"_s, u" "_s, u""_s, u""_s});
    QVERIFY_THROWS_EXCEPTION(Error,
                             products::change(connection, u"Chá"_s, {u"Pão"_s, u"1"_s, u"caro"_s, u""_s}));
    QCOMPARE(program.rows(u"select produto, qtde, custo, info from produto"_s),
             u"Café | 1002,5 | 1.234,50 | nota\nChá | 0 | 0,00 | \n"_s);
}

void tst_stock::productListAndSummary()
{
    TestProgram program;
    QCOMPARE(products::list(program.database()).summary(),
             u"Total de produtos no estoque: 0 - Valor total em estoque: R$ 0,00"_s);
    products::add(program.database(), {u"Café"_s, u"1000,5"_s, u"3,33"_s, u"x"_s});
    products::add(program.database(), {u"Chá"_s, u"-2"_s, u"10"_s, u""_s});
    products::add(program.database(), {u"Mel"_s, u"0,5"_s, u"3,33"_s, u""_s});
    const ProductList list = products::list(program.database());
    QString cells;
    for (int row = 0; row < list.rows.rowCount(); ++row)
        for (int column = 0; column < list.rows.columnCount(); ++column)
            cells += list.rows.text(row, column) + u'|';
    QCOMPARE(cells,
             u"Café|1000,5|R$ 3,33|R$ 3.331,67|x|Chá|-2|R$ 10,00|R$ -20,00||Mel|0,5|R$ 3,33|R$ 1,67||"_s);
    // 3331,665 - 20 + 1,665: the values are added as they are, not as they are shown
    QCOMPARE(list.summary(), u"Total de produtos no estoque: 999 - Valor total em estoque: R$ 3.313,33"_s);
}

void tst_stock::salesListCountsProfit()
{
    TestProgram program;
    Connection &connection = program.database();
    entry::save(connection, receivable(), form(u"Café"_s, u"2,5"_s, u"1.015,00"_s, u"10"_s), {});
    entry::save(connection, receivable(), form(u"Chá"_s, u"3"_s, u"4"_s, u"5"_s), {});
    entry::save(connection, receivable(), form(u"Pão"_s, u"1"_s, u"7"_s, u"0"_s), {});
    entry::save(connection, receivable(), form(u"-"_s, u""_s, u"1.000.000"_s), {});
    entry::settle(connection, receivable(), {u"2"_s}, today);
    QCOMPARE(
        linesOf(loaded(sales())),
        u"1 | 14/11/2026 | Aluguel | NF 7  | Ana | 10/12/2026 | R$ 1.015,00 | R$ 10,00 | 10.050,00% | R$ "
        u"1.005,00 | Café | 2,5 | Pendente | Caixa |  \n"
        "2 | 14/11/2026 | Aluguel | NF 7  | Ana | 14/11/2026 | R$ 4,00 | R$ 5,00 | -20,00% | R$ -1,00 | Chá "
        "| 3 | Concluído | Caixa |  \n"
        "3 | 14/11/2026 | Aluguel | NF 7  | Ana | 10/12/2026 | R$ 7,00 | R$ 0,00 | - | R$ 7,00 | Pão | 1 | Pendente | Caixa |  \n"_s);
    // 2512,50 - 3,00 + 7,00
    QCOMPARE(
        totals(sales()),
        u"3 cadastrados  -  Total de vendas(lucro real): R$ 2.516,50  -  Total recebido: R$ 4,00  -  Total pendente: R$ 1.022,00"_s);
}

void tst_stock::purchasesListCountsAmounts()
{
    TestProgram program;
    Connection &connection = program.database();
    entry::save(connection, payable(), form(u"Café"_s, u"10"_s, u"25"_s), {});
    entry::save(connection, payable(), form(u"Chá"_s, u"1"_s, u"1,5"_s), {});
    entry::save(connection, payable(), form(u"-"_s, u""_s, u"500"_s), {});
    entry::settle(connection, payable(), {u"1"_s}, today);
    QCOMPARE(
        totals(purchases()),
        u"2 cadastros  -  Total de recebimentos: R$ 26,50  -  Total pago: R$ 25,00  -  Total pendente: R$ 1,50"_s);
    QCOMPARE(
        linesOf(loaded(purchases(), {{}, u"Pendentes"_s, u"chá"_s, u"Ana"_s})),
        u"2 | 14/11/2026 | Aluguel | NF 7  | Ana | 10/12/2026 | R$ 1,50 | Chá | 1 | Pendente | Caixa |  \n"_s);
    QCOMPARE(stocklists::productNames(connection, purchases()).join(u'|'), u"Café|Chá"_s);
}

void tst_stock::productScreen()
{
    StockScreen stock;
    stock.open();
    stock.press(u"cmdnovoproduto"_s);
    for (const auto &[name, quantity] :
         {std::pair(u""_s, u"4"_s), {u"Chá"_s, u"dez"_s}, {u"Chá"_s, u"4"_s}}) {
        QCOMPARE(stock.stored(), u"Café | 10 | 2,50 | moído\n"_s);
        stock.write(u"txtproduto"_s, name);
        stock.write(u"txtqtde"_s, quantity);
        stock.press(u"cmdadicionar"_s);
    }
    QCOMPARE(
        stock.told(),
        u"critical | Erro | O nome do produto é de preenchimento obrigatório!\n"
        "critical | Erro | Ocorreu o seguinte erro ao tentar cadastrar os dados: o texto \"dez\" do campo "
        "Quantidade não é um valor válido."_s);
    QVERIFY(!stock.product());
    stock.list(u"lstprodutos"_s)->selectRow(0);
    stock.press(u"cmdalterarproduto"_s);
    QCOMPARE(stock.product()->windowTitle() + stock.find<QPushButton>(u"cmdadicionar"_s)->text(),
             u"Editar Produto&Editar"_s);
    for (const QString &name : {u"D'Oro"_s, u"Café moído"_s}) {
        stock.write(u"txtproduto"_s, name);
        stock.press(u"cmdadicionar"_s);
    }
    QCOMPARE(stock.boxes.seen().size(), 1);
    QCOMPARE(stock.stored(), u"Café moído | 10 | 2,50 | moído\nChá | 4 | 0,00 | \n"_s);
    stock.list(u"lstprodutos"_s)->selectRow(0);
    replaceDatabase(); // by a copy: what is listed is removed from the file that it was read from, or not
    stock.press(u"cmdremoverproduto"_s);
    QVERIFY(stock.told().contains(u"foi trocado"_s));
    QTRY_COMPARE(stock.list(u"lstprodutos"_s)->rowCount(), 2);
    stock.list(u"lstprodutos"_s)->selectRow(0);
    stock.press(u"cmdremoverproduto"_s); // at once
    QCOMPARE(stock.told(), QString());
    QCOMPARE(stock.label(u"lblprodutoest"_s),
             u"Total de produtos no estoque: 4 - Valor total em estoque: R$ 0,00"_s);
}

void tst_stock::stockScreenFollowsEntries()
{
    StockScreen stock;
    stock.open();
    QVERIFY(stock.label(u"lblreceberest"_s)
                .startsWith(u"0 cadastrados  -  Total de vendas(lucro real): R$ 0,00"));
    entry::save(stock.program.database(), receivable(), form(u"Café"_s, u"4"_s, u"3"_s, u"2,5"_s), {});
    QCOMPARE(stock.list(u"lstprodutos"_s)->cell(0, 1), u"6"_s);
    QCOMPARE(
        stock.label(u"lblreceberest"_s),
        u"1 cadastrados  -  Total de vendas(lucro real): R$ 2,00  -  Total recebido: R$ 0,00  -  Total pendente: R$ 3,00"_s);
}

void tst_stock::filtersOfTheStockScreen()
{
    StockScreen stock;
    stock.program.run(
        u"insert into receber (estatus, cliente, data, produto, qtde, valor, custo, moeda) values ('Pendente', 'Ana', '2026/11/14', 'Café', '1', '9', '10', 'R$'), ('Pendente', 'Ana', '2026/11/14', 'Chá', '1', '100', '10', 'R$'), ('Pendente', 'Ana', '2026/11/14', 'D''Oro', '1', '2', '10', 'R$')"_s);
    stock.open();
    auto *list = stock.list(u"lstreceber"_s);
    const int markupColumn = 8;
    list->sortByColumn(markupColumn, Qt::AscendingOrder);
    QCOMPARE(list->cell(0, markupColumn) + list->cell(1, markupColumn) + list->cell(2, markupColumn),
             u"-80,00%-10,00%900,00%"_s);
    stock.choose(u"cboprodutor"_s, u"Chá"_s);
    stock.choose(u"cboprodutor"_s, u"D'Oro"_s); // the query breaks: list and boxes stay
    QCOMPARE(stock.boxes.seen().size(), 1);
    QCOMPARE(stock.text(u"cboprodutor"_s), u"Chá"_s);
    QCOMPARE(list->rowCount(), 1);
    stock.choose(u"cboprodutor"_s, u"Todos os produtos"_s);
    QCOMPARE(list->rowCount(), 3);
}

QTEST_MAIN(tst_stock)
#include "tst_stock.moc"
