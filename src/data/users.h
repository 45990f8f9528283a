#pragma once

#include "data/connection.h"

#include <QStringList>

#include <optional>

/// The users who may log in. A login keeps honest people apart: names and passwords are compared without
/// regard to letter case and kept as they were typed, in the encrypted file that every copy of the program
/// opens.
namespace users {

struct User
{
    qint64 code = 0;
    QString name, password;
};

enum class Answer {
    NoUsers,    ///< nobody is registered: whoever asks is let in
    Incomplete, ///< name or password is empty
    Refused,
    Accepted
};

/// True when the text has a character that neither a name nor a password may hold.
bool hasForbidden(const QString &text);
/// What the one who typed this is told. A text with a forbidden character is refused without a query.
Answer check(Connection &connection, const QString &name, const QString &password);

/// In the order in which they were added.
QStringList names(Connection &connection);
/// The user of that name, as it is written or else in other letter case.
std::optional<User> find(Connection &connection, const QString &name);
void add(Connection &connection, const QString &name, const QString &password);
/// Throws Error::Kind::Data when the user is no longer there.
void update(Connection &connection, const User &user);
/// False, and nothing is removed, when nobody would be left.
bool remove(Connection &connection, const QString &name);

/// Whether the program asks for a login when it starts.
bool isLoginRequired(Connection &connection);
void setLoginRequired(Connection &connection, bool required);

} // namespace users
