#include "mail/mailer.h"

#include "data/clock.h"
#include "mail/mailheaders.h"
#include "mail/mailserver.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>

#include <curl/curl.h>

#include <sys/socket.h>

#include <csignal>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestReplies = 65536; ///< bytes of all replies to one message; nobody needs so many
constexpr std::chrono::seconds afterRefusal{20}; ///< for another answer
constexpr qsizetype longestShown = 300;          ///< characters of a reply

struct Free
{
    void operator()(CURL *curl) const { curl_easy_cleanup(curl); }
    void operator()(curl_mime *mime) const { curl_mime_free(mime); }
    void operator()(curl_slist *list) const { curl_slist_free_all(list); }
};

using List = std::unique_ptr<curl_slist, Free>;

void append(List &list, const QByteArray &line)
{
    list.reset(curl_slist_append(list.release(), line.constData()));
}

/// While it lives, a connection that the server has closed does not end the program when it is written to.
class NoPipeSignal
{
public:
    NoPipeSignal()
    {
        sigemptyset(&m_pipe);
        sigaddset(&m_pipe, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &m_pipe, &m_before);
    }
    ~NoPipeSignal()
    {
        const timespec now{};
        while (sigtimedwait(&m_pipe, nullptr, &now) > 0) {
        }
        pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    }
    Q_DISABLE_COPY_MOVE(NoPipeSignal)

private:
    sigset_t m_pipe{}, m_before{};
};

/// What a server says, on its way to the user: one line, of bounded length, without the password.
QString shownReply(const QByteArray &reply, const QString &password)
{
    QString text = QString::fromUtf8(reply);
    if (!password.isEmpty())
        text.replace(password, u"***"_s);
    for (QChar &c : text)
        if (!c.isPrint())
            c = u' ';
    text = text.simplified();
    return text.size() > longestShown ? text.first(longestShown) + u'…' : text;
}

/// One send: what the transfer library calls back into.
class Transfer
{
public:
    Transfer(const MailLimits &limits, const mailer::Step &step) : m_limits(limits), m_step(step) {}

    MailOutcome run(const MailMessage &message, const MailAccess &access);

private:
    static std::size_t readFile(char *buffer, std::size_t size, std::size_t count, void *self);
    static int seekFile(void *self, curl_off_t offset, int origin);
    static std::size_t takeReply(char *line, std::size_t size, std::size_t count, void *self);
    static int progress(void *self, curl_off_t, curl_off_t, curl_off_t total, curl_off_t sent);

    void setSecurity(const MailServer &server, const MailAccess &access);
    void setCallbacks();
    void setAnswerTime(std::chrono::milliseconds time)
    {
        set(CURLOPT_SERVER_RESPONSE_TIMEOUT, long(std::chrono::ceil<std::chrono::seconds>(time).count()));
    }
    bool setContent(const MailMessage &message, const QByteArray &address);
    void hangUp(bool sent);
    MailOutcome outcome(CURLcode code, const MailServer &server, const MailAccess &access) const;
    QString reason(CURLcode code, const MailServer &server, const QString &reply, bool refused) const;

    template <typename Value>
    void set(CURLoption option, Value value)
    {
        curl_easy_setopt(m_curl.get(), option, value);
    }

    const MailLimits &m_limits;
    const mailer::Step &m_step;
    // The handle goes first, for it uses the others.
    QFile m_file;
    List m_headers, m_recipients;
    std::unique_ptr<curl_mime, Free> m_mime;
    std::unique_ptr<CURL, Free> m_curl;

    QByteArray m_reply;      ///< the last one, of one line or more
    qsizetype m_replies = 0; ///< bytes of all
    qint64 m_sent = 0, m_total = 0;
    QDeadlineTimer m_stalled; ///< while a message is under way
    bool m_cancelled = false, m_silent = false, m_fileFailed = false;
};

std::size_t Transfer::readFile(char *buffer, std::size_t size, std::size_t count, void *self)
{
    auto &transfer = *static_cast<Transfer *>(self);
    const qint64 read = transfer.m_file.read(buffer, qint64(size) * qint64(count));
    transfer.m_fileFailed = read < 0;
    return read < 0 ? std::size_t(CURL_READFUNC_ABORT) : std::size_t(read);
}

int Transfer::seekFile(void *self, curl_off_t offset, int origin)
{
    auto &file = static_cast<Transfer *>(self)->m_file;
    return origin == SEEK_SET && file.seek(offset) ? CURL_SEEKFUNC_OK : CURL_SEEKFUNC_CANTSEEK;
}

/// A line of a reply. "250-" goes on in the next line, "250 " is the last one.
std::size_t Transfer::takeReply(char *line, std::size_t size, std::size_t count, void *self)
{
    auto &transfer = *static_cast<Transfer *>(self);
    const QByteArray text(line, qsizetype(size * count));
    transfer.m_replies += text.size();
    if (transfer.m_replies > longestReplies)
        return 0;
    if (text.startsWith("221")) // to our good-bye, which comes after a refusal too
        return size * count;
    if (text.startsWith('4') || text.startsWith('5')) // little is left to be said
        transfer.setAnswerTime(
            std::min<std::chrono::milliseconds>(transfer.m_limits.answering, afterRefusal));
    const bool begins = transfer.m_reply.size() < 4 || !transfer.m_reply.endsWith('\n');
    transfer.m_reply = begins ? text : transfer.m_reply + text;
    if (text.size() > 3 && text[3] == ' ')
        transfer.m_reply = transfer.m_reply.trimmed();
    return size * count;
}

int Transfer::progress(void *self, curl_off_t, curl_off_t, curl_off_t total, curl_off_t sent)
{
    auto &transfer = *static_cast<Transfer *>(self);
    const bool moved = sent != transfer.m_sent;
    transfer.m_sent = sent;
    transfer.m_total = total;
    const bool underWay = sent > 0 && sent < total;
    if (moved)
        transfer.m_stalled = QDeadlineTimer(transfer.m_limits.answering);
    transfer.m_silent = underWay && transfer.m_stalled.hasExpired();
    transfer.m_cancelled = !transfer.m_step(sent, total);
    return transfer.m_silent || transfer.m_cancelled;
}

void Transfer::setSecurity(const MailServer &server, const MailAccess &access)
{
    set(CURLOPT_PROTOCOLS_STR, "smtp,smtps");
    set(CURLOPT_PROXY, "");
    set(CURLOPT_USE_SSL, long(server.isHere() ? CURLUSESSL_TRY : CURLUSESSL_ALL));
    set(CURLOPT_SSLVERSION, long(CURL_SSLVERSION_TLSv1_2));
    set(CURLOPT_SSL_VERIFYPEER, access.anyCertificate ? 0L : 1L);
    set(CURLOPT_SSL_VERIFYHOST, access.anyCertificate ? 0L : 2L);
    if (!m_limits.authorities.isEmpty())
        set(CURLOPT_CAINFO, QFile::encodeName(m_limits.authorities).constData());
    if (!access.login.isEmpty()) {
        set(CURLOPT_USERNAME, access.login.toUtf8().constData());
        set(CURLOPT_PASSWORD, access.password.toUtf8().constData());
        set(CURLOPT_LOGIN_OPTIONS, "AUTH=PLAIN;AUTH=LOGIN;AUTH=CRAM-MD5");
    }
}

void Transfer::setCallbacks()
{
    set(CURLOPT_NOSIGNAL, 1L); // signals and threads do not go together
    set(CURLOPT_CONNECTTIMEOUT_MS, long(m_limits.connecting.count()));
    setAnswerTime(m_limits.answering);
    set(CURLOPT_HEADERFUNCTION, &takeReply);
    set(CURLOPT_HEADERDATA, this);
    set(CURLOPT_NOPROGRESS, 0L);
    set(CURLOPT_XFERINFOFUNCTION, &progress);
    set(CURLOPT_XFERINFODATA, this);
}

/// False when the file cannot be read.
bool Transfer::setContent(const MailMessage &message, const QByteArray &address)
{
    const QByteArray mailbox = mailheaders::mailbox(message.name, address);
    append(m_headers, "Date: " + mailheaders::date(programclock::now()));
    append(m_headers, "From: " + mailbox);
    append(m_headers, "To: " + mailbox);
    append(m_headers, "Subject: " + mailheaders::text(message.subject));
    append(m_headers, "Message-ID: " + mailheaders::messageId(address));
    append(m_recipients, '<' + address + '>');
    set(CURLOPT_HTTPHEADER, m_headers.get());
    set(CURLOPT_MAIL_FROM, QByteArray('<' + address + '>').constData());
    set(CURLOPT_MAIL_RCPT, m_recipients.get());

    m_mime.reset(curl_mime_init(m_curl.get()));
    curl_mimepart *page = curl_mime_addpart(m_mime.get());
    const QByteArray html = message.html.toUtf8();
    curl_mime_data(page, html.constData(), std::size_t(html.size()));
    curl_mime_type(page, "text/html; charset=utf-8");
    curl_mime_encoder(page, "base64");
    if (!message.attachment.isEmpty()) {
        m_file.setFileName(message.attachment);
        if (!m_file.open(QFile::ReadOnly))
            return false;
        curl_mimepart *file = curl_mime_addpart(m_mime.get());
        curl_mime_data_cb(file, m_file.size(), &readFile, &seekFile, nullptr, this);
        curl_mime_type(file, "text/plain; charset=utf-8");
        curl_mime_encoder(file, "base64");
        const QByteArray header = mailheaders::attachment(QFileInfo(message.attachment).fileName());
        curl_mime_headers(file, curl_slist_append(nullptr, header.constData()), 1);
    }
    set(CURLOPT_MIMEPOST, m_mime.get());
    return true;
}

MailOutcome Transfer::run(const MailMessage &message, const MailAccess &access)
{
    const auto failed = [](const QString &reason) { return MailOutcome{MailOutcome::End::Failed, reason}; };
    const std::optional<MailServer> server = MailServer::read(access.server);
    if (!server)
        return failed(u"O servidor \"%1\" não é válido. Digite o nome dele ou \"nome:porta\"."_s.arg(
            access.server.simplified()));
    const std::optional<QByteArray> address = mailheaders::address(message.address);
    if (!address)
        return failed(u"O endereço de e-mail \"%1\" não é válido."_s.arg(message.address.simplified()));
    static const CURLcode ready = curl_global_init(CURL_GLOBAL_DEFAULT);
    m_curl.reset(ready == CURLE_OK ? curl_easy_init() : nullptr);
    if (!m_curl)
        return failed(u"Não foi possível preparar o envio."_s);
    set(CURLOPT_URL, server->url().constData());
    setSecurity(*server, access);
    setCallbacks();
    if (!setContent(message, *address))
        return failed(
            u"Não foi possível ler o arquivo \"%1\": %2"_s.arg(message.attachment, m_file.errorString()));
    const CURLcode code = curl_easy_perform(m_curl.get());
    hangUp(code == CURLE_OK);
    return outcome(code, *server, access);
}

/// The library takes leave of the server before it closes a connection, and would wait for the answer.
void Transfer::hangUp(bool sent)
{
    curl_socket_t socket = CURL_SOCKET_BAD;
    curl_easy_getinfo(m_curl.get(), CURLINFO_ACTIVESOCKET, &socket);
    if (socket != CURL_SOCKET_BAD)
        ::shutdown(socket, sent ? SHUT_RD : SHUT_RDWR);
}

MailOutcome Transfer::outcome(CURLcode code, const MailServer &server, const MailAccess &access) const
{
    if (code == CURLE_OK)
        return {};
    const bool refused = m_reply.startsWith('4') || m_reply.startsWith('5');
    MailOutcome result{MailOutcome::End::Failed, {}, m_total > 0 && m_sent >= m_total && !refused};
    if (m_cancelled)
        result.end = MailOutcome::End::Cancelled;
    else
        result.reason =
            reason(code, server, refused ? shownReply(m_reply, access.password) : QString(), refused);
    return result;
}

QString Transfer::reason(CURLcode code, const MailServer &server, const QString &reply, bool refused) const
{
    const QString said = reply.isEmpty() ? QString() : u" Resposta do servidor: "_s + reply;
    if (m_silent || code == CURLE_OPERATION_TIMEDOUT)
        return u"O servidor %1 não respondeu a tempo."_s.arg(server.name());
    if (m_fileFailed)
        return u"Não foi possível ler o arquivo: "_s + m_file.errorString();
    switch (code) {
    case CURLE_COULDNT_RESOLVE_HOST:
        return u"O servidor %1 não foi encontrado. Verifique o nome do servidor e a conexão com a internet."_s
            .arg(server.name());
    case CURLE_COULDNT_CONNECT:
        return u"Não foi possível conectar ao servidor %1."_s.arg(server.name());
    case CURLE_LOGIN_DENIED:
        return u"O servidor não aceitou o login ou a senha."_s + said;
    case CURLE_USE_SSL_FAILED:
        return u"O servidor %1 não oferece conexão segura (TLS), e sem ela nada é enviado."_s.arg(
            server.name());
    case CURLE_PEER_FAILED_VERIFICATION:
        return u"O certificado do servidor %1 não pôde ser conferido, e nada foi enviado. Se o servidor é "
               u"seu "
               "e o certificado foi feito por ele mesmo, aceite-o na tela \"Login e senha\"."_s.arg(
                   server.name());
    case CURLE_SSL_CONNECT_ERROR:
        return u"A conexão segura (TLS) com o servidor %1 falhou."_s.arg(server.name());
    case CURLE_WRITE_ERROR:
        return u"O servidor %1 responde o que não se espera de um servidor de e-mail."_s.arg(server.name());
    default:
        return refused ? u"O servidor recusou a mensagem."_s + said
                       : u"A conexão com o servidor %1 foi interrompida."_s.arg(server.name());
    }
}

MailLimits &currentLimits()
{
    static MailLimits limits;
    return limits;
}

} // namespace

namespace mailer {

MailOutcome send(const MailMessage &message, const MailAccess &access, const MailLimits &limits,
                 const Step &step)
{
    const NoPipeSignal alive;
    return Transfer(limits, step).run(message, access);
}

void setLimits(const MailLimits &limits)
{
    currentLimits() = limits;
}

const MailLimits &limits()
{
    return currentLimits();
}

} // namespace mailer
