#include "bank/backupcontents.h"

#include "bank/accounts.h"
#include "data/connection.h"
#include "data/dates.h"
#include "data/schema.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace {

struct Facts
{
    QStringList names; ///< in the order in which they are shown
    QHash<QString, QString> values;

    void add(const QString &name, const QString &value)
    {
        names << name;
        values[name] = value;
    }
};

QString single(Connection &connection, const QString &sql)
{
    Statement found = connection.prepareNative(sql.toUtf8());
    return found.step() ? found.text(0) : QString();
}

Facts read(const QString &path)
{
    const std::shared_ptr<Connection> connection =
        Connection::openForReading(path, schema::password.toString());
    if (!schema::isComplete(*connection))
        throw Error(Error::Kind::Open,
                    u"O arquivo \"%1\" é um banco de dados, mas não tem as tabelas do Tavaro."_s.arg(path));
    Facts facts;
    const std::pair<QString, QString> kinds[] = {
        {u"Contas a pagar"_s, u"pagar"_s},          {u"Contas a receber"_s, u"receber"_s},
        {u"Movimentos bancários"_s, u"bancario"_s}, {u"Clientes"_s, u"cliente"_s},
        {u"Fornecedores"_s, u"fornecedor"_s},       {u"Produtos"_s, u"produto"_s},
        {u"Compromissos"_s, u"compromisso"_s}};
    for (const auto &[name, table] : kinds)
        facts.add(name, single(*connection, u"SELECT count(*) FROM "_s + table));
    for (const auto &[name, table] :
         {std::pair(u"Última conta a pagar"_s, u"pagar"_s), {u"Última conta a receber"_s, u"receber"_s}}) {
        const QString last = u"FROM %1 WHERE código = (SELECT max(código) FROM %1)"_s.arg(table);
        const QString date = dates::shownFromStored(single(*connection, u"SELECT data "_s + last));
        facts.add(name, (date + u' ' + single(*connection, u"SELECT descricao "_s + last)).trimmed());
    }
    for (const AccountBalance &account : accounts::balances(connection))
        facts.add(u"Saldo de "_s + account.name, account.current().inReais());
    return facts;
}

Facts readIfThere(const QString &path)
{
    try {
        return read(path);
    } catch (const Error &) {
        return {};
    }
}

} // namespace

namespace backupcontents {

std::shared_ptr<StoredTable> compare(const QString &backup, const QString &live)
{
    const Facts there = read(backup), now = readIfThere(live);
    auto table = std::make_shared<StoredTable>(
        std::vector<ListColumn>{{u"dado"_s, u"Dados"_s, CellKind::Text, 180},
                                {u"copia"_s, u"Nesta cópia"_s, CellKind::Text, 180},
                                {u"agora"_s, u"Agora"_s, CellKind::Text, 180}});
    QStringList names = there.names + now.names;
    names.removeDuplicates();
    for (const QString &name : std::as_const(names))
        table->append(QStringList{name, there.values.value(name, u"-"_s), now.values.value(name, u"-"_s)});
    return table;
}

} // namespace backupcontents
