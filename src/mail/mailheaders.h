#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringView>

#include <optional>

/// Texts on their way into the headers of an e-mail message. No text, whatever is in it, ends a header line.
namespace mailheaders {

/// A name or a subject: as it is when it is made of letters, digits and blanks, else as encoded words of
/// which none is longer than 64 characters, each on a line of its own.
QByteArray text(const QString &text);
/// `Name <address>`; `address` is one that address() returned.
QByteArray mailbox(const QString &name, const QByteArray &address);
/// The header by which a reader saves a part as a file of this name.
QByteArray attachment(const QString &fileName);
/// "16 Nov 2026 14:05:09 -0300".
QByteArray date(const QDateTime &moment);
/// A new one at each call, of the address's domain.
QByteArray messageId(const QByteArray &address);

/// The address as mail servers take it, its domain in ASCII; nothing when it is none: not of the form
/// name@domain, with accents before the "@", with blanks or characters that mean something to a server.
std::optional<QByteArray> address(const QString &typed);

} // namespace mailheaders
