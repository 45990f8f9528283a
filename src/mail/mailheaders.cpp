#include "mail/mailheaders.h"

#include <QRegularExpression>
#include <QUrl>
#include <QUuid>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Bytes whose Base64 form, between "=?UTF-8?B?" and "?=" and behind "Subject: ", stays below 76 characters.
constexpr qsizetype encodedPiece = 39;

bool isPlain(QStringView text)
{
    return std::ranges::all_of(text, [](QChar c) {
        return c == u' ' || (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
    });
}

/// Where the piece that begins at `start` ends, so that no character is split.
qsizetype pieceEnd(const QByteArray &utf8, qsizetype start)
{
    qsizetype end = std::min(start + encodedPiece, utf8.size());
    while (end < utf8.size() && end > start + 1 && (utf8[end] & 0xC0) == 0x80)
        --end;
    return end;
}

} // namespace

namespace mailheaders {

QByteArray text(const QString &text)
{
    const QString line = text.simplified();
    if (isPlain(line))
        return line.toLatin1();
    const QByteArray utf8 = line.toUtf8();
    QByteArray words;
    for (qsizetype start = 0; start < utf8.size();) {
        const qsizetype end = pieceEnd(utf8, start);
        if (!words.isEmpty())
            words += "\r\n ";
        words += "=?UTF-8?B?" + utf8.sliced(start, end - start).toBase64() + "?=";
        start = end;
    }
    return words;
}

QByteArray mailbox(const QString &name, const QByteArray &address)
{
    const QByteArray before = text(name);
    return (before.isEmpty() ? before : before + "\r\n ") + '<' + address + '>';
}

QByteArray attachment(const QString &fileName)
{
    return "Content-Disposition: attachment;\r\n filename*=UTF-8''" + QUrl::toPercentEncoding(fileName);
}

QByteArray date(const QDateTime &moment)
{
    return moment.toOffsetFromUtc(moment.offsetFromUtc()).toString(Qt::RFC2822Date).toLatin1();
}

QByteArray messageId(const QByteArray &address)
{
    return '<' + QUuid::createUuid().toByteArray(QUuid::WithoutBraces) + '@' +
           address.sliced(address.lastIndexOf('@') + 1) + '>';
}

std::optional<QByteArray> address(const QString &typed)
{
    static const QRegularExpression local(uR"(\A[A-Za-z0-9.!#$%&'*+/=?^_`{|}~-]{1,64}\z)"_s);
    static const QRegularExpression domain(uR"(\A[A-Za-z0-9-]+([.][A-Za-z0-9-]+)*\z)"_s);
    const QString trimmed = typed.trimmed();
    const qsizetype at = trimmed.lastIndexOf(u'@');
    if (at < 0)
        return std::nullopt;
    const QString name = trimmed.first(at), host = QString::fromLatin1(QUrl::toAce(trimmed.sliced(at + 1)));
    if (!local.match(name).hasMatch() || !domain.match(host).hasMatch())
        return std::nullopt;
    return name.toLatin1() + '@' + host.toLatin1();
}

} // namespace mailheaders
