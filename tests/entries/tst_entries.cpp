#include "entries/entryfilter.h"
#include "entries/entrylist.h"
#include "stock/stock.h"
#include "support/readlist.h"
#include "support/samples.h"
#include "support/testprogram.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QDate today(2026, 11, 14);

} // namespace

class tst_entries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void queryText();
    void settledPayableOfANamedMonth();
    void savedRowHoldsTheStoredForms();
    void stockFollowsEverySave();
    void failedStockStatementSavesNothing();
    void unreadableValuesAreRefused();
    void deletingCorrectsTheStockOfTheNamedProduct();
    void settlingWritesTheDayFirst();
    void listAndTotals();
};

void tst_entries::queryText()
{
    const auto check = [](const Side &side, const EntryFilter &filter, const QString &sql) {
        QCOMPARE(entryfilter::query(side, filter, today), sql);
    };
    const QString byDue = u"Data vencimento"_s;
    check(payable(),
          {byDue, u"Pendentes e Concluídos"_s, u"Todos os bancos"_s, u"Todos os centros de custos"_s,
           u"Todos os fornecedores"_s, u"Todos os dados"_s},
          u"SELECT * FROM pagar where (estatus like '%%')  order by vencimento"_s);
    check(payable(),
          {u"Data cadastro"_s, u"pendentes"_s, u"Caixa"_s, u"Água"_s, u"Zé"_s, u"apenas deste ano"_s},
          u"SELECT * FROM pagar where(data like '%2026/%')  and (estatus like 'Pendente')  and (origem like "
          "'Caixa')  and (descricao like 'Água')  and (fornecedor like 'Zé')  order by data"_s);
    // The status is not repeated with all data, and the year half of a month tests the entry date.
    check(
        payable(), {byDue, u"Concluídos"_s, u"Caixa"_s, {}, {}, u"todos os dados"_s},
        u"SELECT * FROM pagar where (estatus like 'Concluído')  and (origem like 'Caixa')  order by vencimento"_s);
    check(
        payable(), {byDue, {}, {}, {}, {}, u"apenas deste mês"_s},
        u"SELECT * FROM pagar where(vencimento like '%/11/%' AND data like '%2026/%')  order by vencimento"_s);
    check(
        payable(), {byDue, {}, {}, {}, {}, u"próximo mês"_s},
        u"SELECT * FROM pagar WHERE vencimento BETWEEN '2026/12/01' AND '2026/12/31'  order by vencimento"_s);
    // Receivables always test the entry date and are not ordered.
    check(receivable(), {byDue, u"Pendentes"_s, {}, {}, u"Ana"_s, u"ultimos 7 dias"_s},
          u"SELECT * FROM receber WHERE data BETWEEN '2026/11/07' AND '2026/11/14'  and (estatus like "
          "'Pendente')  and (cliente like 'Ana')"_s);
    check(receivable(), {{}, {}, {}, {}, {}, u"apenas do dia"_s},
          u"SELECT * FROM receber where(Data like '2026/11/14')"_s);
}

void tst_entries::settledPayableOfANamedMonth()
{
    TestProgram program;
    program.run(
        u"insert into pagar (estatus, data, vencimento, descricao) values "
        "('Concluído', '2026/10/30', '14/11/2026', 'a'), ('Pendente', '2025/10/30', '2026/11/20', 'b'), "
        "('Pendente', '2026/01/02', '2026/11/20', 'c')"_s);
    const EntryFilter month{u"Data vencimento"_s, {}, {}, {}, {}, u"apenas deste mês"_s};
    const KeyedList list = readList(entrylist::columns(payable()), EntryTotals(),
                                    entryfilter::query(payable(), month, today));
    QCOMPARE(list.rows().rowCount(), 2);
    QCOMPARE(cellOf(list, 0, 2) + cellOf(list, 0, 5) + cellOf(list, 1, 2) + cellOf(list, 1, 5),
             u"a14/11/2026c20/11/2026"_s);
}

void tst_entries::savedRowHoldsTheStoredForms()
{
    TestProgram program;
    entry::save(program.database(), receivable(), sampleEntry(), {});
    QCOMPARE(
        program.rows(u"select * from receber"_s),
        u"1 | Pendente | Caixa | Ana | 2026/11/14 | 2026/12/10 | Aluguel | NF 7  |   | 1.234,50 | R$ | Café | 5 |  | 3,00\n"_s);
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
    EntryForm form = sampleEntry();
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
    EntryForm form = sampleEntry();
    form.product = u"Copo d'água"_s;
    QVERIFY_THROWS_EXCEPTION(Error, entry::save(program.database(), payable(), form, {}));
    QCOMPARE(program.rows(u"select * from pagar"_s), QString());
}

void tst_entries::unreadableValuesAreRefused()
{
    TestProgram program;
    const auto refused = [&](auto change) {
        EntryForm form = sampleEntry();
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
    EntryForm gone = sampleEntry();
    QVERIFY_THROWS_EXCEPTION(Error, entry::save(program.database(), payable(), gone, u"99"_s));
}

void tst_entries::deletingCorrectsTheStockOfTheNamedProduct()
{
    TestProgram program;
    program.run(u"insert into produto (produto, qtde, custo) values ('P', 10, '1,00')"_s);
    program.run(u"insert into produto (produto, qtde, custo) values ('Q', 10, '1,00')"_s);
    EntryForm form = sampleEntry();
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
    entry::save(program.database(), payable(), sampleEntry(), {});
    QVERIFY(entry::settle(program.database(), payable(), u"1"_s, today));
    QCOMPARE(program.rows(u"select estatus, data, vencimento from pagar"_s),
             u"Concluído | 2026/11/14 | 14/11/2026\n"_s);
    QVERIFY(!entry::settle(program.database(), payable(), u"2"_s, today));
}

void tst_entries::listAndTotals()
{
    TestProgram program;
    const QString all = u"SELECT * FROM receber where (estatus like '%%')"_s;
    QCOMPARE(EntryTotals().text(receivable()),
             u"0 cadastrados  -  Total de lucros: 0,00  -  Total recebido: 0,00  -  Total pendente: 0,00 - "
             u"Quantidade de "
             "produtos (vendas): 0"_s);

    EntryForm form = sampleEntry();
    entry::save(program.database(), receivable(), form, {});
    form.status = u"Concluído"_s;
    form.currency = u"€"_s;
    form.quantity = u"2,5"_s;
    entry::save(program.database(), receivable(), form, {});
    const KeyedList list = readList(entrylist::columns(receivable()), EntryTotals(), all);
    QCOMPARE(static_cast<const EntryTotals &>(list.totals()).text(receivable()), u"2 cadastrados  -  Total de lucros: R$ 2.469,00  -  Total "
                                             u"recebido: R$ 1.234,50  -  Total pendente: R$ "
                                             "1.234,50 - Quantidade de produtos (vendas): 7,5"_s);
    QCOMPARE(linesOf(list, u"|"_s).section(u'\n', 1, 1),
             u"2|14/11/2026|Aluguel|NF 7 |Ana|10/12/2026|€ 1.234,50|3,00|Café|2,5|Concluído|Caixa| "_s);
}

QTEST_GUILESS_MAIN(tst_entries)
#include "tst_entries.moc"
