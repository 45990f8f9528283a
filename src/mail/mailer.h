#pragma once

#include <QString>

#include <chrono>
#include <functional>

/// A message of the user to himself: an HTML page, with a file or without.
struct MailMessage
{
    QString name, address;
    QString subject, html;
    QString attachment = {}; ///< path of the file
};

/// How to get to the server that takes the message.
struct MailAccess
{
    QString server;          ///< as MailServer reads it
    QString login, password; ///< no login: the server is asked to take the message without
    /// The server's certificate is not checked, so that a self-made one will do. Otherwise it must be known
    /// to this machine and name the server.
    bool anyCertificate = false;
};

/// How long a send waits before it gives up.
struct MailLimits
{
    std::chrono::milliseconds connecting{30'000}; ///< until the server has let us in
    /// For an answer, in whole seconds, and for taking more of the message.
    std::chrono::milliseconds answering{120'000};
    QString authorities = {}; ///< file of the certificates to trust, in PEM; empty for this machine's
};

/// How a send ended.
struct MailOutcome
{
    enum class End { Sent, Cancelled, Failed };

    End end = End::Sent;
    QString reason = {}; ///< of a failure; what the server answered stands in it in one line
    /// The server got the whole message, and may deliver it although it ended otherwise.
    bool mayArrive = false;
};

/// Sending by SMTP. To a server that is not on this machine nothing is sent but over TLS, the password least
/// of all; a server of this machine is spoken to in the clear when it offers no TLS. The password stands in
/// no message, file or command line but the settings.
namespace mailer {

/// Told how many of the bytes are sent, about once a second at least; false gives up. `total` is 0 while it
/// is not known.
using Step = std::function<bool(qint64 sent, qint64 total)>;
/// Sends, and returns when that has ended: long work for a thread of its own.
MailOutcome send(const MailMessage &message, const MailAccess &access, const MailLimits &limits,
                 const Step &step);

/// The limits that are used from now on; for tests.
void setLimits(const MailLimits &limits);
const MailLimits &limits();

} // namespace mailer
