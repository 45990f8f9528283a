#include "mail/mailserver.h"

#include <QRegularExpression>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr int tlsPort = 465;

} // namespace

std::optional<MailServer> MailServer::read(const QString &typed)
{
    static const QRegularExpression form(
        uR"(\A(?:(smtps?)://)?(?:\[([0-9a-f:.]+)\]|([^\s:/@\[\]]+)|(::1))(?::([0-9]{1,5}))?/?\z)"_s,
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression asciiName(uR"(\A[a-z0-9]([a-z0-9.-]*[a-z0-9])?\z)"_s,
                                              QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(typed.trimmed());
    if (!match.hasMatch())
        return std::nullopt;
    MailServer server;
    if (const QString name = match.captured(3); !name.isEmpty()) {
        server.host = QUrl::toAce(name);
        if (!asciiName.match(QString::fromLatin1(server.host)).hasMatch())
            return std::nullopt;
    } else {
        server.host = (match.captured(2) + match.captured(4)).toLatin1();
    }
    const bool secure = match.captured(1).compare(u"smtps", Qt::CaseInsensitive) == 0;
    if (const QString port = match.captured(5); !port.isEmpty())
        server.port = port.toInt();
    else if (secure)
        server.port = tlsPort;
    server.tlsFromStart = secure || server.port == tlsPort;
    return server.port > 0 && server.port <= 0xFFFF ? std::optional(server) : std::nullopt;
}

bool MailServer::isHere() const
{
    return host.toLower() == "localhost" || host == "127.0.0.1" || host == "::1";
}

QString MailServer::name() const
{
    return (host.contains(':') ? u"[%1]:%2"_s : u"%1:%2"_s).arg(QString::fromLatin1(host)).arg(port);
}

QByteArray MailServer::url() const
{
    return (tlsFromStart ? "smtps://" : "smtp://") + name().toLatin1();
}
