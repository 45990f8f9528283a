#include "mail/mailer.h"
#include "mail/mailheaders.h"
#include "mail/mailserver.h"
#include "support/answers.h"
#include "support/mailserver.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString goodPassword = u"segredo-7 ç"_s;

/// How the send ended, why, and whether the message may have arrived.
QString told(const MailOutcome &outcome)
{
    const QString ends[] = {u"sent"_s, u"cancelled"_s, u"failed: "_s};
    return ends[int(outcome.end)] + outcome.reason + (outcome.mayArrive ? u" (may arrive)"_s : QString());
}

} // namespace

class tst_mailer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsServersAndAddresses();
    void deliversEveryByteAndLetter();
    void talksAsSecurelyAsTheServerDemands();
    void failuresAreTold();
    void waitsNoLongerThanItsLimits();

private:
    QString send(
        const QString &server, const QString &password = {}, bool anyCertificate = false,
        const MailLimits &limits = {}, const mailer::Step &step = [](qint64, qint64) { return true; })
    {
        const MailMessage message{u"Ana"_s, u"ana@loja.example"_s, u"Oi"_s, u"<p>Oi</p>"_s};
        return told(mailer::send(
            message, {server, password.isEmpty() ? QString() : u"ana"_s, password, anyCertificate}, limits,
            step));
    }

    MailServers m_servers;
    MailLimits m_trusting{.authorities = m_servers.certificate()};
};

void tst_mailer::readsServersAndAddresses()
{
    checkAnswers(u"smtp.loja.example -> smtp://smtp.loja.example:587\n"
                 " Smtp.Loja.example:25  -> smtp://smtp.loja.example:25\n"
                 "loja:465 -> smtps://loja:465\n"
                 "smtps://loja -> smtps://loja:465\n"
                 "smtps://127.0.0.1:2525 -> smtps://127.0.0.1:2525 here\n"
                 "LOCALHOST:2525 -> smtp://localhost:2525 here\n"
                 "[::1]:25 -> smtp://[::1]:25 here\n"
                 "::1 -> smtp://[::1]:587 here\n"
                 "localhost.loja.example -> smtp://localhost.loja.example:587\n"
                 "ação.example -> smtp://xn--ao-siap.example:587\n"
                 "loja:0 -> none\nloja:65536 -> none\nloja:x -> none\na b -> none\nana@loja -> none\n"
                 "loja/x -> none\n-oProxy=x -> none\nhttp://loja -> none\nloja:25:26 -> none"_s,
                 [](const QString &typed) {
                     const auto server = MailServer::read(typed);
                     return server
                                ? QString::fromLatin1(server->url()) + (server->isHere() ? u" here"_s : u""_s)
                                : u"none"_s;
                 });
    checkAnswers(u"ana@loja.example -> ana@loja.example ; a.b+c@ação.example -> a.b+c@xn--ao-siap.example\n"
                 "ana -> none ; ana@ -> none ; @loja -> none ; ana b@loja -> none ; ana@loja> -> none\n"
                 "joão@loja.example -> none ; <ana@loja.example> -> none"_s,
                 [](const QString &typed) {
                     const auto address = mailheaders::address(typed);
                     return address ? QString::fromLatin1(*address) : u"none"_s;
                 });
    QVERIFY(!mailheaders::address(u"ana@loja.example\r\nRCPT TO:<b@c>"_s));
    QVERIFY(!MailServer::read(u"loja\r\nQUIT"_s));
}

void tst_mailer::deliversEveryByteAndLetter()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"relatório \"via\" e-mail; 100%.txt"_s));
    QVERIFY(file.open(QFile::WriteOnly));
    QByteArray bytes("\r\n.\r\n..\nFrom fim\n");
    for (int i = 0; i < 300'000; ++i)
        bytes += char(qint64(i) * i / 7);
    file.write(bytes);
    file.close();
    const QString subject =
        u"Relatório de ações, 🙂 e quem lê não se perde: "_s + u"çãõ "_s.repeated(60);
    const MailMessage message{u"João <da> \"Silva\"\r\nBcc: x@y.example"_s, u"joao@loja.example"_s, subject,
                              u"<p>Olá &amp; \n.\n€ 🙂</p>"_s + u"linha longa "_s.repeated(200),
                              file.fileName()};
    QList<qint64> progress;
    const MailOutcome outcome = mailer::send(message, {m_servers[u"login"_s], u"ana"_s, goodPassword},
                                             m_trusting, [&](qint64 sent, qint64 total) {
                                                 progress << (total > 0 ? sent * 100 / total : 0);
                                                 return true;
                                             });
    QCOMPARE(told(outcome), u"sent"_s);
    QVERIFY(std::ranges::is_sorted(progress));
    QCOMPARE(progress.last(), 100);
    const QJsonObject got = m_servers.message();
    QCOMPARE(got[u"server"_s].toString(), u"login"_s);
    QVERIFY(got[u"tls"_s].toBool());
    QCOMPARE(got[u"login"_s].toString(), u"ana"_s);
    QCOMPARE(got[u"envelope"_s].toString(), u"joao@loja.example joao@loja.example"_s);
    QCOMPARE(got[u"defects"_s].toArray(), QJsonArray());
    const QJsonObject headers = got[u"headers"_s].toObject();
    const QString mailbox = u"\"João <da> \\\"Silva\\\" Bcc: x@y.example\" <joao@loja.example>"_s;
    QCOMPARE(headers[u"From"_s].toString(), mailbox);
    QCOMPARE(headers[u"To"_s].toString(), mailbox);
    QCOMPARE(headers[u"Subject"_s].toString(), subject.trimmed());
    QVERIFY(!headers.contains(u"Bcc"_s));
    QVERIFY(headers.contains(u"Date"_s) && headers.contains(u"Message-ID"_s));
    for (const QString &line : got[u"raw"_s].toString().split(u"\r\n"_s))
        QVERIFY2(line.size() <= 80, qPrintable(line));
    QCOMPARE(got[u"types"_s].toArray(), QJsonArray({u"text/html utf-8"_s, u"text/plain utf-8"_s}));
    QCOMPARE(got[u"file"_s].toString(), u"[None, 'relatório \"via\" e-mail; 100%.txt']"_s);
    QCOMPARE(got[u"html"_s].toString(), message.html);
    QCOMPARE(got[u"attachment"_s].toString().toLatin1(), bytes);
}

void tst_mailer::talksAsSecurelyAsTheServerDemands()
{
    const auto delivered = [this] {
        const QJsonObject got = m_servers.message();
        return got[u"server"_s].toString() + (got[u"tls"_s].toBool() ? u" tls "_s : u" clear "_s) +
               got[u"login"_s].toString();
    };
    QCOMPARE(send(u"smtps://"_s + m_servers[u"tls"_s], goodPassword, false, m_trusting), u"sent"_s);
    QCOMPARE(delivered(), u"tls tls ana"_s);
    QCOMPARE(send(m_servers[u"plain"_s], goodPassword), u"sent"_s); // on this machine
    QCOMPARE(delivered(), u"plain clear ana"_s);
    QCOMPARE(send(m_servers[u"other"_s], goodPassword, true), u"sent"_s); // by the user's choice
    QCOMPARE(delivered(), u"other tls ana"_s);
}

void tst_mailer::failuresAreTold()
{
    const QString login = m_servers[u"login"_s], other = m_servers[u"other"_s], notls = m_servers[u"notls"_s];
    QCOMPARE(
        send(login, u"errada"_s, false, m_trusting),
        u"failed: O servidor não aceitou o login ou a senha. Resposta do servidor: 535 5.7.8 Authentication "
        "credentials invalid"_s);
    QCOMPARE(
        send(login, {}, false, m_trusting),
        u"failed: O servidor recusou a mensagem. Resposta do servidor: 530 5.7.0 Authentication required"_s);
    const QString unchecked = u"failed: O certificado do servidor %1 não pôde ser conferido, e nada foi "
                              u"enviado. Se o servidor é seu e "
                              "o certificado foi feito por ele mesmo, aceite-o na tela \"Login e senha\"."_s;
    QCOMPARE(send(login, goodPassword), unchecked.arg(login)); // known to nobody
    MailLimits trustingOther = m_trusting;
    trustingOther.authorities.replace(u"cert.pem"_s, u"other-cert.pem"_s);
    QCOMPARE(send(other, goodPassword, false, trustingOther), unchecked.arg(other)); // of another name
    const QString insecure =
        u"failed: O servidor %1 não oferece conexão segura (TLS), e sem ela nada é enviado."_s.arg(notls);
    QCOMPARE(send(notls, goodPassword), insecure);
    QCOMPARE(send(notls, goodPassword, true), insecure);
    const QString hostile = send(m_servers[u"hostile"_s], goodPassword);
    QVERIFY2(
        hostile.startsWith(u"failed: O servidor recusou a mensagem. Resposta do servidor: 550 <b>pare</b> a "
                           "senha *** xxxx"_s),
        qPrintable(hostile));
    QVERIFY(hostile.size() < 400);
    QCOMPARE(send(m_servers[u"flood"_s]),
             u"failed: O servidor %1 responde o que não se espera de um servidor de e-mail."_s.arg(
                 m_servers[u"flood"_s]));
    QCOMPARE(
        send(m_servers[u"drop"_s]),
        u"failed: A conexão com o servidor %1 foi interrompida. (may arrive)"_s.arg(m_servers[u"drop"_s]));
    QCOMPARE(send(u"127.0.0.1:1"_s), u"failed: Não foi possível conectar ao servidor 127.0.0.1:1."_s);
    QCOMPARE(send(u"a b"_s),
             u"failed: O servidor \"a b\" não é válido. Digite o nome dele ou \"nome:porta\"."_s);
    const MailMessage lost{u"Ana"_s, u"ana@loja.example"_s, u"Oi"_s, u"Oi"_s, u"/não/existe.txt"_s};
    QVERIFY(told(mailer::send(lost, {m_servers[u"plain"_s], {}, {}}, {}, [](qint64, qint64) {
                return true;
            })).startsWith(u"failed: Não foi possível ler o arquivo \"/não/existe.txt\": "_s));
    QCOMPARE(m_servers.message(100), QJsonObject()); // nothing got through
}

void tst_mailer::waitsNoLongerThanItsLimits()
{
    const QString hang = m_servers[u"hang"_s], silent = m_servers[u"silent"_s];
    const QString late = u"failed: O servidor %1 não respondeu a tempo."_s;
    QCOMPARE(send(silent, {}, false, {.connecting = 300ms}), late.arg(silent));
    QCOMPARE(send(hang, {}, false, {.answering = 1s}), late.arg(hang) + u" (may arrive)"_s);
    int steps = 0;
    QCOMPARE(send(silent, {}, false, {}, [&](qint64, qint64) { return ++steps < 3; }), u"cancelled"_s);
    QCOMPARE(send(hang, {}, false, {}, [](qint64 sent, qint64 total) { return total == 0 || sent < total; }),
             u"cancelled (may arrive)"_s);
}

QTEST_GUILESS_MAIN(tst_mailer)
#include "tst_mailer.moc"
