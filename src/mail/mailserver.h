#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// Where messages are handed in, as the user types it: "host", "host:port", "[::1]:25".
struct MailServer
{
    QByteArray host; ///< in ASCII; an IPv6 address without brackets
    int port = 587;
    /// TLS begins with the connection, as on port 465; elsewhere the two sides agree on it (STARTTLS).
    bool tlsFromStart = false;

    /// "smtps://host:port" says that TLS begins with the connection, whatever the port. Nothing for a text
    /// that names no server.
    static std::optional<MailServer> read(const QString &typed);

    /// localhost, 127.0.0.1 or ::1: what is said to it leaves no machine.
    bool isHere() const;
    /// "host:port", as it is told to the user.
    QString name() const;
    QByteArray url() const;
};
