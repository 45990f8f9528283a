#include "data/clock.h"
#include "data/recordset.h"
#include "entries/entry.h"
#include "entries/entryfilter.h"
#include "entries/entrylist.h"
#include "stock/stock.h"
#include "support/testprogram.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QDate today(2026, 11, 14);

EntryForm sampleForm()
{
    return {.status = u"Pendente"_s,
            .account = u"Caixa"_s,
            .contact = u"Padaria São João"_s,
            .date = u"14/11/2026"_s,
            .due = u"10/12/2026"_s,
            .description = u"Aluguel"_s,
            .document = u""_s,
            .notes = u"  "_s,
            .value = u"1234,5"_s,
            .unitCost = u"3,00"_s,
            .product = u"Café"_s,
            .quantity = u"5"_s,
            .currency = u"R$"_s};
}

} // namespace

class tst_entries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void queryText_data();
    void queryText();
    void settledPayableOfANamedMonth();
    void blankFieldsInOrder();
    void savedRowHoldsTheStoredForms();
    void stockFollowsEverySave();
    void failedStockStatementSavesNothing();
    void unreadableValuesAreRefused();
    void deletingCorrectsTheStockOfTheNamedProduct();
    void settlingWritesTheDayFirst();
    void listAndTotals();
    void distinctValuesForFilterBoxes();
};

void tst_entries::queryText_data()
{
    QTest::addColumn<bool>("ofPayables");
    QTest::addColumn<EntryFilter>("filter");
    QTest::addColumn<QString>("sql");

    QTest::newRow("everything") << true
                                << EntryFilter{u"Data vencimento"_s,       u"Pendentes e Concluídos"_s,
                                               u"Todos os bancos"_s,       u"Todos os centros de custos"_s,
                                               u"Todos os fornecedores"_s, u"Todos os dados"_s}
                                << u"SELECT * FROM pagar where (estatus like '%%')  order by vencimento"_s;
    QTest::newRow("every box")
        << true << EntryFilter{u"Data cadastro"_s, u"pendentes"_s, u"Caixa"_s,
                               u"Água"_s,          u"Zé"_s,        u"apenas deste ano"_s}
        << u"SELECT * FROM pagar where(data like '%2026/%')  and (estatus like 'Pendente')  and (origem like "
           "'Caixa')  and (descricao like 'Água')  and (fornecedor like 'Zé')  order by data"_s;
    QTest::newRow("status with all data is not repeated")
        << true << EntryFilter{u"Data vencimento"_s, u"Concluídos"_s, u"Caixa"_s, {}, {}, u"todos os dados"_s}
        << u"SELECT * FROM pagar where (estatus like 'Concluído')  and (origem like 'Caixa')  order by vencimento"_s;
    QTest::newRow("the year half of the month tests the entry date")
        << true << EntryFilter{u"Data vencimento"_s, {}, {}, {}, {}, u"apenas deste mês"_s}
        << u"SELECT * FROM pagar where(vencimento like '%/11/%' AND data like '%2026/%')  order by vencimento"_s;
    QTest::newRow("next month rolls over the year")
        << true << EntryFilter{u"Data vencimento"_s, {}, {}, {}, {}, u"próximo mês"_s}
        << u"SELECT * FROM pagar WHERE vencimento BETWEEN '2026/12/01' AND '2026/12/31'  order by vencimento"_s;
    QTest::newRow("receivables always test the entry date and are not ordered")
        << false << EntryFilter{u"Data vencimento"_s, u"Pendentes"_s, {}, {}, u"Ana"_s, u"ultimos 7 dias"_s}
        << u"SELECT * FROM receber WHERE data BETWEEN '2026/11/07' AND '2026/11/14'  and (estatus like "
           u"'Pendente')  and (cliente like "
           "'Ana')"_s;
    QTest::newRow("receivables of the day") << false << EntryFilter{{}, {}, {}, {}, {}, u"apenas do dia"_s}
                                            << u"SELECT * FROM receber where(Data like '2026/11/14')"_s;
}

void tst_entries::queryText()
{
    QFETCH(bool, ofPayables);
    QFETCH(EntryFilter, filter);
    QFETCH(QString, sql);
    QCOMPARE(entryfilter::query(ofPayables ? payable() : receivable(), filter, today), sql);
}

void tst_entries::settledPayableOfANamedMonth()
{
    TestProgram program;
    program.run(
        u"insert into pagar (estatus, data, vencimento, descricao) values ('Concluído', '2026/10/30', '14/11/2026', 'a')"_s);
    program.run(
        u"insert into pagar (estatus, data, vencimento, descricao) values ('Pendente', '2025/10/30', '2026/11/20', 'b')"_s);
    program.run(
        u"insert into pagar (estatus, data, vencimento, descricao) values ('Pendente', '2026/01/02', '2026/11/20', 'c')"_s);
    const EntryFilter month{u"Data vencimento"_s, {}, {}, {}, {}, u"apenas deste mês"_s};
    const EntryList list =
        entrylist::load(program.database(), payable(), entryfilter::query(payable(), month, today), nullptr);
    QStringList found;
    for (int row = 0; row < list.rows.rowCount(); ++row)
        found << list.rows.text(row, 2) + u' ' + list.rows.text(row, 5);
    QCOMPARE(found.join(u", "_s), u"a 14/11/2026, c 20/11/2026"_s);
}

void tst_entries::blankFieldsInOrder()
{
    EntryForm blank;
    blank.date = u" "_s;
    QCOMPARE(entry::blankFields(blank),
             (QStringList{u"Descrição"_s, u"Fornecedor/cliente"_s, u"Valor"_s, u"Data"_s, u"Vencimento"_s}));
    QVERIFY(entry::blankFields(sampleForm()).isEmpty());
}

void tst_entries::savedRowHoldsTheStoredForms()
{
    TestProgram program;
    entry::save(program.database(), receivable(), sampleForm(), {});
    QCOMPARE(
        program.rows(u"select * from receber"_s),
        u"1 | Pendente | Caixa | Padaria São João | 2026/11/14 | 2026/12/10 | Aluguel |   |   | 1.234,50 | R$ | Café | 5 |  | 3,00\n"_s);
    const auto loaded = entry::load(program.database(), receivable(), u"1"_s);
    QVERIFY(loaded);
    EntryForm changed = *loaded;
    changed.contact = u"D'Ávila"_s;
    changed.value = u"R$ -2.000,999"_s;
    entry::save(program.database(), receivable(), changed, u"1"_s);
    QCOMPARE(program.rows(u"select código, cliente, valor, vencimento from receber"_s),
             u"1 | D'Ávila | -2.001,00 | 2026/12/10\n"_s);
}

void tst_entries::stockFollowsEverySave()
{
    TestProgram program;
    program.run(u"insert into produto (produto, qtde, custo) values ('Café', 3, '2,50')"_s);
    Connection &connection = program.database();
    EntryForm form = sampleForm();
    QVERIFY(entry::exceedsStock(connection, receivable(), form));
    QVERIFY(!entry::exceedsStock(connection, payable(), form));
    form.quantity = u"3"_s;
    QVERIFY(!entry::exceedsStock(connection, receivable(), form));

    form.quantity = u"5"_s;
    entry::save(connection, receivable(), form, {});
    QCOMPARE(stock::onHand(connection, u"CAFÉ"_s)->plain(), u"-2"_s);
    entry::save(connection, receivable(), form, u"1"_s);
    QCOMPARE(stock::onHand(connection, u"Café"_s)->plain(), u"-7"_s);
    form.quantity = u"0,1"_s;
    for (int i = 0; i < 3; ++i)
        entry::save(connection, payable(), form, {});
    QCOMPARE(stock::onHand(connection, u"Café"_s)->plain(), u"-6,7"_s);
    form.product = u"-"_s;
    entry::save(connection, payable(), form, {});
    QCOMPARE(program.rows(u"select qtde from produto"_s), u"-6,7\n"_s);
}

void tst_entries::failedStockStatementSavesNothing()
{
    TestProgram program;
    EntryForm form = sampleForm();
    form.product = u"Copo d'água"_s;
    QVERIFY_THROWS_EXCEPTION(Error, entry::save(program.database(), payable(), form, {}));
    QCOMPARE(program.rows(u"select * from pagar"_s), QString());
}

void tst_entries::unreadableValuesAreRefused()
{
    TestProgram program;
    const auto refused = [&](auto change) {
        EntryForm form = sampleForm();
        change(form);
        try {
            entry::save(program.database(), receivable(), form, {});
        } catch (const Error &error) {
            return error.text();
        }
        return QString();
    };
    QCOMPARE(refused([](EntryForm &form) { form.date = u"31/02/2026"_s; }),
             u"a data \"31/02/2026\" do campo Data não existe."_s);
    QCOMPARE(refused([](EntryForm &form) { form.value = u"99999999999999999999"_s; }),
             u"o texto \"99999999999999999999\" do campo Valor não é um valor válido."_s);
    QVERIFY(!refused([](EntryForm &form) { form.quantity = u"dois"_s; }).isEmpty());
    QCOMPARE(program.rows(u"select * from receber"_s), QString());
    EntryForm gone = sampleForm();
    QVERIFY_THROWS_EXCEPTION(Error, entry::save(program.database(), payable(), gone, u"99"_s));
}

void tst_entries::deletingCorrectsTheStockOfTheNamedProduct()
{
    TestProgram program;
    program.run(u"insert into produto (produto, qtde, custo) values ('P', 10, '1,00')"_s);
    program.run(u"insert into produto (produto, qtde, custo) values ('Q', 10, '1,00')"_s);
    EntryForm form = sampleForm();
    form.product = u"P"_s;
    form.quantity = u"4"_s;
    entry::save(program.database(), payable(), form, {});
    entry::remove(program.database(), payable(), {{u"1"_s, u"Q"_s, Money::fromInteger(2)}});
    QCOMPARE(program.rows(u"select produto, qtde from produto"_s), u"P | 14\nQ | 8\n"_s);

    entry::save(program.database(), receivable(), form, {});
    QVERIFY_THROWS_EXCEPTION(
        Error, entry::remove(program.database(), receivable(),
                             {{u"1"_s, u"P"_s, Money::fromInteger(4)}, {u"1"_s, u"d'"_s, Money()}}));
    QCOMPARE(program.rows(u"select código from receber"_s), u"1\n"_s);
    entry::remove(program.database(), receivable(), {{u"1"_s, u"P"_s, Money::fromInteger(4)}});
    QCOMPARE(program.rows(u"select produto, qtde from produto"_s), u"P | 14\nQ | 8\n"_s);
    QCOMPARE(program.rows(u"select código from receber"_s), QString());
}

void tst_entries::settlingWritesTheDayFirst()
{
    TestProgram program;
    entry::save(program.database(), payable(), sampleForm(), {});
    QVERIFY(entry::settle(program.database(), payable(), u"1"_s, today));
    QCOMPARE(program.rows(u"select estatus, data, vencimento from pagar"_s),
             u"Concluído | 2026/11/14 | 14/11/2026\n"_s);
    QVERIFY(!entry::settle(program.database(), payable(), u"2"_s, today));
    QCOMPARE(entry::plainCode(u"0012"_s), u"12"_s);
}

void tst_entries::listAndTotals()
{
    TestProgram program;
    const QString all = u"SELECT * FROM receber where (estatus like '%%')"_s;
    QCOMPARE(entrylist::load(program.database(), receivable(), all, nullptr).totals.text(receivable()),
             u"0 cadastrados  -  Total de lucros: 0,00  -  Total recebido: 0,00  -  Total pendente: 0,00 - "
             u"Quantidade de "
             "produtos (vendas): 0"_s);

    EntryForm form = sampleForm();
    entry::save(program.database(), receivable(), form, {});
    form.status = u"Concluído"_s;
    form.currency = u"€"_s;
    form.quantity = u"2,5"_s;
    entry::save(program.database(), receivable(), form, {});
    const EntryList list = entrylist::load(program.database(), receivable(), all, nullptr);
    QCOMPARE(list.totals.text(receivable()), u"2 cadastrados  -  Total de lucros: R$ 2.469,00  -  Total "
                                             u"recebido: R$ 1.234,50  -  Total pendente: R$ "
                                             "1.234,50 - Quantidade de produtos (vendas): 7,5"_s);
    QStringList cells;
    for (int column = 0; column < list.rows.columnCount(); ++column)
        cells << list.rows.text(1, column);
    QCOMPARE(
        cells.join(u'|'),
        u"2|14/11/2026|Aluguel| |Padaria São João|10/12/2026|€ 1.234,50|3,00|Café|2,5|Concluído|Caixa| "_s);
    QCOMPARE(EntryTotals().text(payable()), u"0 cadastros  -  Total de despesas: 0,00  -  Total pago: 0,00  "
                                            u"-  Total pendente: 0,00 - Quantidade de "
                                            "produtos (entrada): 0"_s);
    QCOMPARE(entrylist::columns(payable())[std::size_t(entrylist::columnOf(payable(), u"produto"))].title,
             u"Produto"_s);
}

void tst_entries::distinctValuesForFilterBoxes()
{
    TestProgram program;
    EntryForm form = sampleForm();
    for (const QString &name : {u"zebra"_s, u"Água"_s, u"ÁGUA"_s, u"abelha"_s, u"Zebra"_s}) {
        form.contact = name;
        entry::save(program.database(), payable(), form, {});
    }
    const QStringList found = entrylist::distinct(program.database(), payable(), u"fornecedor"_s);
    QCOMPARE(found.size(), 3);
    QCOMPARE(found[0], u"abelha"_s);
    QCOMPARE(found[1].toLower(), u"água"_s);
    QCOMPARE(found[2].toLower(), u"zebra"_s);
}

QTEST_GUILESS_MAIN(tst_entries)
#include "tst_entries.moc"
