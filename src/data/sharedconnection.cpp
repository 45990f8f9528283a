#include "data/sharedconnection.h"

#include "data/journal.h"
#include "data/migration.h"
#include "data/schema.h"

using namespace Qt::StringLiterals;

std::shared_ptr<Connection> SharedConnection::open(const QString &path)
{
    if (m_connection && m_connection->path() == path && m_connection->isCurrent())
        return m_connection;
    close();
    std::unique_ptr<Connection> fresh = Connection::open(path, schema::password.toString());
    if (!schema::isComplete(*fresh))
        throw Error(Error::Kind::Open,
                    u"O arquivo \"%1\" é um banco de dados, mas não tem as tabelas do Tavaro."_s.arg(path));
    schema::upgrade(*fresh);
    migration::run(*fresh);
    journal::keep(*fresh);
    m_connection = std::move(fresh);
    return m_connection;
}
