#include "demodata.h"

#include "democontacts.h"
#include "demoentries.h"
#include "demoshop.h"

#include "data/connection.h"
#include "data/dates.h"
#include "data/schema.h"

#include <algorithm>
#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

void insertTexts(Statement &insert, std::initializer_list<QString> values)
{
    int parameter = 0;
    for (const QString &value : values)
        insert.bind(++parameter, value);
    insert.step();
    insert.reset();
}

void writeAccounts(Connection &connection, qint64 count)
{
    Statement insert =
        connection.prepareNative("insert into banco (banco, saldo, informacoes) values (?, ?, ?)");
    for (qint64 i = 0; i < count; ++i) {
        const demoshop::Account account = demoshop::account(i);
        insertTexts(insert, {account.name, demoshop::amount(account.opening), account.notes + u' '});
    }
}

void writeCentres(Connection &connection, const QByteArray &table, std::span<const demoshop::Centre> centres)
{
    Statement insert = connection.prepareNative("insert into " + table + " (descricao) values (?)");
    for (const demoshop::Centre &centre : centres)
        insertTexts(insert, {centre.name.toString()});
}

/// What is left in stock: never less than what remains of a first delivery.
void writeProducts(Connection &connection, Random &random, const std::vector<qint64> &stockChange)
{
    Statement insert =
        connection.prepareNative("insert into produto (produto, custo, info, qtde) values (?, ?, ?, ?)");
    for (std::size_t i = 0; i < stockChange.size(); ++i) {
        const demoshop::Product &product = demoshop::products()[i];
        insert.bind(4, std::max<qint64>(stockChange[i], 0) + random.mostlySmall(0, 60));
        insertTexts(insert,
                    {product.name.toString(), demoshop::amount(product.cost), product.info.toString()});
    }
}

void writeAppointments(Connection &connection, Random &random, QDate today)
{
    Statement insert = connection.prepareNative(
        "insert into compromisso (Titulo, data, hora, local, descricao) values (?, ?, ?, ?, ?)");
    qint64 days = -20;
    for (const demoshop::Appointment &appointment : demoshop::appointments()) {
        insertTexts(insert, {appointment.title.toString(), dates::stored(today.addDays(days)),
                             appointment.time.toString(), appointment.place.toString(),
                             appointment.description.toString()});
        days += random.between(1, 8);
    }
}

} // namespace

void fillDemo(Connection &connection, const DemoOptions &options)
{
    Random random(options.seed);
    const DemoContacts clients(DemoContacts::Kind::Clients, (options.contacts * 2 + 1) / 3);
    const DemoContacts suppliers(DemoContacts::Kind::Suppliers, options.contacts - clients.count());

    Transaction transaction(connection);
    schema::dropIndexes(connection);
    writeAccounts(connection, options.accounts);
    writeCentres(connection, "pcontapagar"_ba, demoshop::costCentres());
    writeCentres(connection, "pcontareceber"_ba, demoshop::profitCentres());
    clients.write(connection, random, options.today);
    suppliers.write(connection, random, options.today);
    DemoEntries entries(connection, random, options);
    entries.writePayables(suppliers);
    entries.writeReceivables(clients);
    entries.writeMovements();
    writeProducts(connection, random, entries.stockChange());
    writeAppointments(connection, random, options.today);
    schema::createIndexes(connection);
    transaction.commit();
}
