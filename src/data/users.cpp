#include "data/users.h"

#include "data/like.h"
#include "data/literal.h"
#include "data/recordset.h"
#include "data/rows.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView forbidden = u"'*%=-#;";

qint64 userCount(Connection &connection)
{
    return Recordset(connection, u"SELECT * FROM login"_s).count();
}

} // namespace

namespace users {

bool hasForbidden(const QString &text)
{
    return std::ranges::any_of(text, [](QChar c) { return forbidden.contains(c); });
}

Answer check(Connection &connection, const QString &name, const QString &password)
{
    if (userCount(connection) == 0)
        return Answer::NoUsers;
    if (name.isEmpty() || password.isEmpty())
        return Answer::Incomplete;
    if (hasForbidden(name) || hasForbidden(password))
        return Answer::Refused;
    Recordset found(connection, u"SELECT * FROM login WHERE (nome like "_s + sql::literal(name) +
                                    u" AND senha LIKE "_s + sql::literal(password) + u")"_s);
    while (found.next()) // "_" stands for any character in a pattern; it must not open the door
        if (textorder::equalFolded(found.text(u"nome"), name) &&
            textorder::equalFolded(found.text(u"senha"), password))
            return Answer::Accepted;
    return Answer::Refused;
}

QStringList names(Connection &connection)
{
    QStringList names;
    for (Recordset rows(connection, u"SELECT * FROM login"_s); rows.next();)
        names << rows.text(u"nome");
    return names;
}

std::optional<User> find(Connection &connection, const QString &name)
{
    const std::optional<Recordset> row = rows::named(
        connection, u"FROM login where (nome like "_s + sql::containing(name) + u")"_s, u"nome", name);
    if (!row)
        return std::nullopt;
    return User{row->text(u"codigo").toLongLong(), row->text(u"nome"), row->text(u"senha")};
}

void add(Connection &connection, const QString &name, const QString &password)
{
    Transaction transaction(connection);
    Recordset table(connection, u"login"_s);
    table.addNew();
    table.set(u"nome", name);
    table.set(u"senha", password);
    table.update();
    transaction.commit();
}

void update(Connection &connection, const User &user)
{
    Transaction transaction(connection);
    Recordset row(connection, u"SELECT * FROM login where(codigo = %1)"_s.arg(user.code));
    if (!row.next())
        throw Error(Error::Kind::Data, u"este usuário não existe mais."_s);
    row.set(u"nome", user.name);
    row.set(u"senha", user.password);
    row.update();
    transaction.commit();
}

bool remove(Connection &connection, const QString &name)
{
    Transaction transaction(connection);
    const QString from = u"from login where(nome like "_s + sql::literal(name) + u")"_s;
    rows::refuseOthers(connection, from, u"nome", name);
    connection.execute(u"Delete * "_s + from);
    if (userCount(connection) == 0)
        return false;
    transaction.commit();
    return true;
}

bool isLoginRequired(Connection &connection)
{
    Recordset row(connection, u"SELECT * FROM login_inicia"_s);
    return row.next() && row.text(u"exigirlogin") == "1"_L1;
}

void setLoginRequired(Connection &connection, bool required)
{
    Transaction transaction(connection);
    Recordset row(connection, u"SELECT * FROM login_inicia"_s);
    const bool isNew = !row.next();
    Recordset table(connection, u"login_inicia"_s);
    Recordset &target = isNew ? table : row;
    if (isNew)
        target.addNew();
    target.set(u"exigirlogin", required ? u"1"_s : u"0"_s);
    target.update();
    transaction.commit();
}

} // namespace users
