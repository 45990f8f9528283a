// What needs no window: balances, opening, saving.

#include "bank/accounts.h"
#include "data.h"
#include "entries/entry.h"
#include "floor.h"
#include "measures.h"
#include "settings/database.h"
#include "table.h"

using namespace Qt::StringLiterals;

void measureAccounts(Table &table)
{
    const QString folder = benchdata::large();
    benchdata::use(folder);
    Floor floor(benchdata::databaseIn(folder));
    const Timing timing = inTurn(
        21, [] { accounts::balances(openDatabase(), true, nullptr); }, [&floor] { floor.settledSums(); });
    table.add(u"Balances of 20 accounts over 220,000 rows"_s, timing, 1.5);
}

void measureOpening(Table &table)
{
    benchdata::use(benchdata::large());
    const Timing timing = inTurn(
        21, [] { openDatabase(); },
        [] {
            closeDatabase();
            openDatabase();
        });
    table.add(u"Opening the database again, against the first time"_s, timing, 0.01);
}

void measureSaving(Table &table)
{
    const QString source = benchdata::large();
    const QString folder = benchdata::copyOf(source, u"saving"_s);
    Floor floor(benchdata::databaseIn(benchdata::copyOf(source, u"saving-floor"_s)));
    benchdata::use(folder);
    const QString product = entry::productNames(openDatabase()).last();
    const EntryForm form{.status = u"Pendente"_s,
                         .account = u"Caixa da loja"_s,
                         .contact = u"Distribuidora Aurora"_s,
                         .date = u"30/06/2026"_s,
                         .due = u"15/07/2026"_s,
                         .description = u"Mercadorias"_s,
                         .document = u"NF 001234"_s,
                         .notes = u"entrega pela manhã"_s,
                         .value = u"1.234,56"_s,
                         .unitCost = QString(),
                         .product = product,
                         .quantity = u"12"_s,
                         .currency = u"R$"_s};
    const QByteArray insert =
        u"INSERT INTO pagar (estatus, origem, fornecedor, data, descricao, documento, informacoes, valor, "
        u"vencimento, "
        "produto, qtde, moeda) VALUES ('Pendente', 'Caixa da loja', 'Distribuidora Aurora', '2026/06/30', "
        "'Mercadorias', 'NF 001234 ', 'entrega pela manhã ', '1.234,56', '2026/07/15', '%1', '12', 'R$')"_s
            .arg(product)
            .toUtf8();
    const Timing timing = inTurn(
        400, [&] { entry::save(openDatabase(), payable(), form, QString()); },
        [&] {
            floor.execute("BEGIN IMMEDIATE");
            floor.execute(insert.constData());
            floor.execute("COMMIT");
        });
    table.add(u"Saving an entry with its stock move, against a bare insert"_s, timing, 1.5);
}
