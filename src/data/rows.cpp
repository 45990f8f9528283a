#include "data/rows.h"

#include "data/like.h"

using namespace Qt::StringLiterals;

namespace {

Recordset select(Connection &connection, const QString &from)
{
    return Recordset(connection, u"SELECT * "_s + from);
}

/// How many rows bear the name.
struct Bearers
{
    int alike = 0;     ///< as it is written
    int otherCase = 0; ///< in other letter case
};

/// Throws when a row of another name is reached.
Bearers bearers(Connection &connection, const QString &from, QStringView column, const QString &name)
{
    Bearers found;
    QString other;
    for (Recordset reached = select(connection, from); reached.next();) {
        const QString text = reached.text(column);
        if (text == name)
            ++found.alike;
        else if (textorder::equalFolded(text, name))
            ++found.otherCase;
        else if (other.isEmpty())
            other = text;
    }
    if (!other.isEmpty())
        throw Error(Error::Kind::Data,
                    u"o nome \"%1\" tem um curinga (% ou _) e o comando alcançaria também \"%2\". Nada foi "
                    "alterado."_s.arg(name, other));
    return found;
}

} // namespace

namespace rows {

bool remove(Connection &connection, Transaction &transaction, Subject subject, const QString &from)
{
    bool any = false;
    for (Recordset gone = select(connection, from); gone.next(); any = true)
        transaction.note(subject, {gone.rowKey(), gone.image(), {}});
    connection.execute(u"Delete "_s + from);
    return any;
}

std::optional<Recordset> named(Connection &connection, const QString &from, QStringView column,
                               const QString &name)
{
    std::optional<qint64> key;
    bool alike = false;
    for (Recordset reached = select(connection, from); !alike && reached.next();) {
        const QString text = reached.text(column);
        alike = text == name;
        if (alike || (!key && textorder::equalFolded(text, name)))
            key = reached.rowKey();
    }
    if (!key)
        return std::nullopt;
    std::optional<Recordset> row(select(connection, from));
    while (row->next())
        if (row->rowKey() == *key)
            return row;
    return std::nullopt;
}

void removeNamed(Connection &connection, Transaction &transaction, Subject subject, const QString &from,
                 QStringView column, const QString &name)
{
    const auto [alike, otherCase] = bearers(connection, from, column, name);
    if (alike + otherCase == 0)
        throw Error(Error::Kind::Data, u"\"%1\" não existe mais."_s.arg(name));
    if (alike == 0 || otherCase == 0) {
        remove(connection, transaction, subject, from);
        return;
    }
    for (Recordset row = select(connection, from); row.next();)
        if (row.text(column) == name)
            transaction.note(subject, row.remove());
}

void refuseOthers(Connection &connection, const QString &from, QStringView column, const QString &name)
{
    bearers(connection, from, column, name);
}

} // namespace rows
