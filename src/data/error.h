#pragma once

#include <QString>

#include <exception>

/// The one exception of the program: a text in Portuguese that the user can read. Only a screen shows it,
/// behind that screen's own prefix; the data layer opens no message box.
class Error : public std::exception
{
public:
    enum class Kind {
        Open,    ///< the database could not be opened
        Busy,    ///< another process holds the database
        Storage, ///< disk full, input/output failure, read-only place
        Query,   ///< the statement is wrong or names something unknown
        Data,    ///< a value cannot be understood or does not fit
        File     ///< a file other than the database could not be read or written
    };

    Error(Kind kind, QString text) : m_kind(kind), m_text(std::move(text)), m_utf8(m_text.toUtf8()) {}

    Kind kind() const { return m_kind; }
    const QString &text() const { return m_text; }
    const char *what() const noexcept override { return m_utf8.constData(); }

private:
    Kind m_kind;
    QString m_text;
    QByteArray m_utf8;
};
