#include "support/mailserver.h"

#include <QDeadlineTimer>
#include <QJsonDocument>
#include <QTest>

using namespace Qt::StringLiterals;

MailServers::MailServers()
{
    makeCertificate(QString(), u"IP:127.0.0.1,IP:127.0.0.2"_s);
    makeCertificate(u"other-"_s, u"DNS:outro.example"_s);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(u"/usr/bin/python3"_s, {QFINDTESTDATA("support/mailserver.py"), m_folder.path()});
    for (QString line; line != u"ready";) {
        line = QString::fromUtf8(readLine(20'000));
        if (line.isEmpty())
            qFatal("the mail servers do not start");
        if (const QStringList words = line.split(u' '); words.size() == 3) {
            const bool elsewhere = QStringList{u"login"_s, u"notls"_s, u"other"_s}.contains(words[1]);
            m_servers[words[1]] = (elsewhere ? u"127.0.0.2:"_s : u"127.0.0.1:"_s) + words[2];
        }
    }
}

MailServers::~MailServers()
{
    m_process.closeWriteChannel();
    if (!m_process.waitForFinished(2000))
        m_process.kill();
    m_process.waitForFinished();
}

QString MailServers::operator[](const QString &name) const
{
    return m_servers.value(name);
}

QJsonObject MailServers::message(int timeout)
{
    return QJsonDocument::fromJson(readLine(timeout)).object();
}

QByteArray MailServers::readLine(int timeout)
{
    const QDeadlineTimer until(timeout);
    while (!m_process.canReadLine())
        if (!m_process.waitForReadyRead(int(until.remainingTime())))
            return {};
    return m_process.readLine().trimmed();
}

void MailServers::makeCertificate(const QString &prefix, const QString &names) const
{
    QProcess openssl;
    openssl.start(u"openssl"_s, {u"req"_s, u"-x509"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s,
                                 u"ec_paramgen_curve:prime256v1"_s, u"-nodes"_s, u"-days"_s, u"2"_s,
                                 u"-subj"_s, u"/CN=teste"_s, u"-addext"_s, u"subjectAltName="_s + names,
                                 u"-keyout"_s, m_folder.filePath(prefix + u"key.pem"_s), u"-out"_s,
                                 m_folder.filePath(prefix + u"cert.pem"_s)});
    if (!openssl.waitForFinished(20'000) || openssl.exitCode() != 0)
        qFatal("no certificate");
}
