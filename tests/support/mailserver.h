#pragma once

#include <QHash>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

/// Mail servers on this machine, with a certificate made for them; see mailserver.py.
class MailServers
{
public:
    MailServers();
    ~MailServers();

    /// "127.0.0.1:40001".
    QString operator[](const QString &name) const;
    /// The certificate that the servers but one have, to be trusted.
    QString certificate() const { return m_folder.filePath(QStringLiteral("cert.pem")); }
    /// The next message that one of them got; empty when there is none.
    QJsonObject message(int timeout = 5000);

private:
    QByteArray readLine(int timeout);
    void makeCertificate(const QString &prefix, const QString &names) const;

    QTemporaryDir m_folder;
    QProcess m_process;
    QHash<QString, QString> m_servers;
};
