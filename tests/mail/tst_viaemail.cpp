#include "mail/frmenviando.h"
#include "mail/frmviaemail.h"
#include "settings/settings.h"
#include "support/answers.h"
#include "support/mailserver.h"
#include "support/shop.h"

#include <QProgressBar>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString sendingReport = u"information | Relatório via e-mail | Enviado relatório via e-mail, este "
                              u"processo pode demorar dependendo do "
                              "tamanho dos dados a serem enviados e da velocidade de conexão.\n"_s;
const QString sendingStatistics = QString(sendingReport)
                                      .replace(u"Relatório"_s, u"Estatísticas"_s)
                                      .replace(u"relatório"_s, u"estatísticas"_s);
const QString success =
    u"information | Via e-mail | O e-mail foi enviado com sucesso para o endereço especificado!"_s;
const QString failure =
    u"critical | Erro | Não foi possível enviaro e-mail verifique se os dados foram digitados "
    "corretamente! | "_s;

void addBusiness(TestProgram &program)
{
    program.database().executeNative(
        "INSERT INTO pagar (estatus, data, vencimento, descricao, documento, fornecedor, moeda, valor, "
        "origem) "
        "VALUES ('Pendente', '2026/11/01', '2026/12/10', 'Aluguel <b>', 'NF 1', 'Zé', 'R$', '1.000,00', "
        "'Caixa'), "
        "('Concluído', '05/11/2026', '05/11/2026', 'Luz', ' ', 'Cia', 'US$', '20,50', 'Banco'), "
        "('PENDENTE', '2026/12/01', '2026/12/01', 'Água', ' ', 'Cia', 'R$', '3,00', 'Caixa'), "
        "('Conluído', '2026/11/30', '2026/11/30', 'Gás', ' ', 'Cia', 'R$', '0,25', 'Caixa');"
        "INSERT INTO bancario (estatus, data, movimento, origem, destino, valor, informacoes) VALUES "
        "('Concluído', '2026/11/02', 'Depósito', 'Caixa', ' - ', '7,00', 'x'), "
        "('Pendente', '2026/11/03', 'Retirada', 'Caixa', ' - ', '2,00', ' '), "
        "('Concluído', '2026/11/30', 'Transferência entre contas', 'Caixa', 'Banco', '1,00', ' ')");
}

QString attachmentFile(const Shop &shop)
{
    QFile file(shop.program.file(u"relatório via-email.txt"_s));
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : u"none"_s;
}

} // namespace

class tst_viaemail : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mailer::setLimits({.authorities = m_servers.certificate()}); }
    void queriesAreToTheLetterAndWork();
    void reportArrives();
    void statisticsArrive();
    void whatIsMissingIsTold();
    void failureKeepsSettingsAndFile();
    void closingWhileSendingAsks();

private:
    frmViaEmail *open(Shop &shop, frmViaEmail::Tab tab, const QString &server)
    {
        shop.open();
        frmViaEmail *screen = frmViaEmail::open(tab, shop.window.get());
        shop.fill(u"txtnome=Zé <i>, txtemail=ze@loja.example, txtservidor="_s + m_servers[server]);
        return screen;
    }
    /// What was told from pressing a button to the end of the sending.
    QString send(Shop &shop, const QString &button)
    {
        shop.press(button);
        if (!QTest::qWaitFor([&] { return !shop.screen(u"frmEnviando"_s); }, 20'000))
            return u"still sending"_s;
        QString told;
        const auto ended = [&] {
            told += shop.told();
            return told.contains(u"Via e-mail"_s) || told.contains(u"enviaro"_s);
        };
        (void)QTest::qWaitFor(ended, 5000);
        return told;
    }

    MailServers m_servers;
};

void tst_viaemail::queriesAreToTheLetterAndWork()
{
    TestProgram program;
    addBusiness(program);
    using namespace mailreport;
    const auto answer = [&](const QString &choices) {
        MailChoice choice{.dated = choices.contains(u"november"_s),
                          .first = {2026, 11, 1},
                          .last = {2026, 11, 30},
                          .status = statusNamed(choices.section(u' ', 1, 1))};
        const Table table = choices.startsWith(u"pagar"_s)     ? Table::Payables
                            : choices.startsWith(u"receber"_s) ? Table::Receivables
                                                               : Table::Movements;
        const MailSection read = section(program.database(), table, choice, nullptr);
        QStringList codes;
        for (int row = 0; row < read.rows->rowCount(); ++row)
            codes << read.rows->cell(row, 0);
        return query(table, choice) + u" = "_s + codes.join(u',');
    };
    checkAnswers(u"pagar Todos -> select * from pagar = 1,2,3,4\n"
                 "pagar Pendentes -> select * from pagar WHERE estatus(like 'Pendente') = 1,3\n"
                 "pagar Concluidos -> select * from pagar WHERE estatus(like 'Concluído') = 2\n"
                 "pagar Todos november -> select * from pagar WHERE Data BETWEEN '2026/11/01' AND "
                 "'2026/11/30' = 1,2,4\n"
                 "pagar Pendentes november -> select * from pagar WHERE Data BETWEEN '2026/11/01' AND "
                 "'2026/11/30' AND  "
                 "WHERE estatus(like 'Pendente') = 1\n"
                 "receber Todos -> select * from receber = \n"
                 "bancario Concluidos november -> select * from bancario WHERE Data BETWEEN '2026/11/01' AND "
                 "'2026/11/30' "
                 "AND  WHERE estatus(like 'Concluído') = 1,3"_s,
                 answer);
}

void tst_viaemail::reportArrives()
{
    Shop shop;
    addBusiness(shop.program);
    settings::setValue(settings::companyName, u"Loja & Cia"_s);
    const QPointer<frmViaEmail> screen = open(shop, frmViaEmail::Report, u"login"_s);
    shop.press(u"cmdconflogin"_s);
    shop.fill(u"txtlogin=ze, txtsenha=segredo-7 ç"_s);
    QCOMPARE(shop.find<QLineEdit>(u"txtsenha"_s)->echoMode(), QLineEdit::Password);
    shop.press(u"cmdsalvar"_s);
    shop.find<QCheckBox>(u"chkpagar"_s)->click();
    shop.find<QCheckBox>(u"chkbancario"_s)->click();
    shop.find<QCheckBox>(u"chkpordata"_s)->click();
    shop.fill(u"cboinicioret=01/11/2026, cbofinalret=30/11/2026"_s);
    QCOMPARE(send(shop, u"cmdenviarret"_s), sendingReport + success);

    const QString text =
        u"RELATÓRIO ENVIADO POR E-MAIL\n"
        "\nCONTAS A PAGAR\n"
        "------------------------------------------------\n"
        "Código  Data        Descrição    Documento  Fornecedor  Vencimento  Valor        Estatus    Origem  "
        "\n"
        "******  **********  ***********  *********  **********  **********  ***********  *********  ******  "
        "\n"
        "\n"
        "1       01/11/2026  Aluguel <b>  NF 1       Zé          10/12/2026  R$ 1.000,00  Pendente   Caixa   "
        "\n"
        "2       05/11/2026  Luz                     Cia         05/11/2026  US$ 20,50    Concluído  Banco   "
        "\n"
        "4       30/11/2026  Gás                     Cia         30/11/2026  R$ 0,25      Conluído   Caixa   "
        "\n"
        "\n"
        "Valor total: R$ 1.020,75 - Total concluído: R$ 20,50 - Total pendente: R$ 1.000,00\n"
        "\nMOVIMENTO BANCÁRIO\n"
        "------------------------------------------------\n"
        "Código  Data        Movimento                   Origem  Destino  Valor    Informações  \n"
        "******  **********  **************************  ******  *******  *******  ***********  \n"
        "\n"
        "1       02/11/2026  Depósito                    Caixa    -       R$ 7,00  x            \n"
        "2       03/11/2026  Retirada                    Caixa    -       R$ 2,00               \n"
        "3       30/11/2026  Transferência entre contas  Caixa   Banco    R$ 1,00               \n"
        "\n"
        "Total depósito: R$ 7,00 - Total retirada: R$ 2,00 - Total transferência: R$ 1,00\n"
        "Gerado dia: sábado, 14 de novembro de 2026\nLoja & Cia\n"_s;
    QCOMPARE(attachmentFile(shop), text);
    const QJsonObject got = m_servers.message();
    QCOMPARE(got[u"login"_s].toString(), u"ze"_s);
    QCOMPARE(QString::fromUtf8(got[u"attachment"_s].toString().toLatin1()), text);
    QCOMPARE(got[u"file"_s].toString(), u"[None, 'relatório via-email.txt']"_s);
    QCOMPARE(got[u"headers"_s][u"Subject"_s].toString(), u"Relatorio do Tavaro"_s);
    QCOMPARE(got[u"headers"_s][u"To"_s].toString(), u"\"Zé <i>\" <ze@loja.example>"_s);
    QCOMPARE(
        got[u"html"_s].toString(),
        u"<p><font face='Verdana' style='font-size: 11pt'><b>Olá </b>Zé &lt;i&gt;,<br><br>Segue em anexo o "
        "relatório que foi enviado pelo senhor através do software Tavaro.<br><br> Obrigado por utilizar "
        "nossos softwares!<br><br>Os dados no arquivo em anexo foram filtrados de acordo com a sua "
        "preferência, segue abaixo os dados filtrados:<br><br><b>Filtrados entre as datas:</b> 01/11/2026 e "
        "30/11/2026<br><b>Filtrados por estatus:</b> Todas as contas (concluídas e "
        "pendentes)<br><b>Dados incluídos:</b> Contas a pagar / Movimento bancario<hr><br> Gerado dia: "
        "sábado, 14 de novembro de 2026<br><br><b>Tavaro</b><br>Relatório feito com o Tavaro</font></p>"_s);
    QCOMPARE(shop.list(u"lstpagar"_s)->rowCount(), 3);
    QCOMPARE(shop.find<QProgressBar>(u"pbprogresso"_s)->text(), u"100%"_s);

    // What was chosen is there when the screen is opened again.
    screen->close();
    QTRY_VERIFY(!screen);
    frmViaEmail::open(frmViaEmail::Report, shop.window.get());
    QCOMPARE(shop.text(u"txtservidor"_s), m_servers[u"login"_s]);
    QVERIFY(shop.find<QCheckBox>(u"chkpagar"_s)->isChecked());
    QVERIFY(!shop.find<QCheckBox>(u"chkreceber"_s)->isChecked());
    QVERIFY(shop.find<QCheckBox>(u"chkpordata"_s)->isChecked());
    shop.find<QRadioButton>(u"optconcluidosret"_s)->click();
    QCOMPARE(settings::value(settings::mailStatus), u"Concluidos"_s);
}

void tst_viaemail::statisticsArrive()
{
    Shop shop;
    addBusiness(shop.program);
    settings::setValue(settings::mailPayables2, u"1"_s);
    settings::setValue(settings::mailReceivables2, u"1"_s);
    open(shop, frmViaEmail::Statistics, u"plain"_s);
    QCOMPARE(send(shop, u"cmdenviar2"_s), sendingStatistics + success);
    const QJsonObject got = m_servers.message();
    QCOMPARE(got[u"headers"_s][u"Subject"_s].toString(), u"Estatisticas do Tavaro"_s);
    QCOMPARE(got[u"types"_s].toArray().size(), 1);
    const QString none =
        u"<b>Total de contas cadastradas:</b> 0 cadastros<br><br><b>Total de contas pendentes "
        u"cadastradas:</b> "
        "0<b>Valor total de contas pendentes:</b> R$ 0,00<br><br><b>Total de contas concluídas "
        "cadastradas:</b> "
        "0<b>Valor total de contas concluidas:</b> R$ 0,00<b>Total geral:</b> R$ 0,00<br><br><hr>"_s;
    QCOMPARE(
        got[u"html"_s].toString(),
        u"<p><font face='Verdana' style='font-size: 11pt'><b>Estatística enviada por "
        u"e-mail</b><br><br><b>Olá "
        "</b>Zé &lt;i&gt;,<br><br>Segue abaixo as estatísticas enviadas por você:<br><br>> Dados "
        "incluídos:<br><br>Contas a pagar<br>Contas a receber<br><br><br><hr>> Contas a "
        "pagar<br><br><b>Total "
        "de contas cadastradas:</b> 4 cadastros<br><br><b>Total de contas pendentes cadastradas:</b> "
        "2<b>Valor "
        "total de contas pendentes:</b> R$ 1.003,00<br><br><b>Total de contas concluídas cadastradas:</b> "
        "1<b>Valor total de contas concluidas:</b> R$ 20,50<b>Total geral:</b> R$ "
        "1.023,75<br><br><hr>> Contas a receber<br><br>"_s +
            none +
            u"<hr><br> Gerado dia: sábado, 14 de novembro de 2026<br><br><b>Corvel</b><br>Relatório feito "
            u"com "
            "o Tavaro</font></p>"_s);
}

void tst_viaemail::whatIsMissingIsTold()
{
    Shop shop;
    shop.open();
    frmViaEmail::open(frmViaEmail::Report, shop.window.get());
    shop.press(u"cmdaviso"_s);
    QCOMPARE(
        shop.told(),
        u"information | Aviso | É recomendável enviar pequenas quantidade de dados por e-mail, pois este "
        "processo pode ser extremamente lento se enviado todo o banco de dados, você pode filtrar os dados "
        "entre datas para que o envio seja mais rápido."_s);
    shop.find<QCheckBox>(u"chkpordata"_s)->click();
    shop.press(u"cmdenviarret"_s);
    QCOMPARE(shop.told(), u"exclamation | Erro | A data inicial e a data final devem ser preenchidas!"_s);
    for (const QString &field : {u"txtservidor"_s, u"txtnome"_s})
        shop.find<QLineEdit>(field)->setText(u" "_s);
    shop.press(u"cmdenviarret"_s);
    QCOMPARE(shop.told(), u"exclamation | Erro | Os campos Servidor Seu Nome  devem ser preenchidos."_s);
    frmViaEmail::open(frmViaEmail::Statistics, shop.window.get());
    shop.find<QLineEdit>(u"txtemail"_s)->clear();
    shop.press(u"cmdenviar2"_s);
    QCOMPARE(shop.told(),
             u"exclamation | Erro | Os campos Servidor Seu Nome Seu E-mail  devem ser preenchidos."_s);
    QCOMPARE(attachmentFile(shop), u"none"_s);
}

void tst_viaemail::failureKeepsSettingsAndFile()
{
    Shop shop;
    open(shop, frmViaEmail::Report, u"login"_s);
    settings::setValue(settings::mailLogin, u"ze"_s);
    settings::setValue(settings::mailPassword, u"errada"_s);
    QCOMPARE(send(shop, u"cmdenviarret"_s),
             sendingReport + failure +
                 u"O servidor não aceitou o login ou a senha. Resposta do servidor: 535 5.7.8 Authentication "
                 "credentials invalid"_s);
    QCOMPARE(settings::value(settings::mailServer), m_servers[u"login"_s]);
    QCOMPARE(settings::value(settings::mailName), u"Zé <i>"_s);
    QCOMPARE(attachmentFile(shop),
             u"RELATÓRIO ENVIADO POR E-MAIL\nGerado dia: sábado, 14 de novembro de 2026\nTavaro\n"_s);
    // A certificate that nobody knows is taken only by choice.
    mailer::setLimits({});
    settings::setValue(settings::mailPassword, u"segredo-7 ç"_s);
    QVERIFY(send(shop, u"cmdenviarret"_s).contains(u"| O certificado do servidor "_s));
    shop.press(u"cmdconflogin"_s);
    shop.find<QCheckBox>(u"chkcertificado"_s)->click();
    shop.press(u"cmdsalvar"_s);
    QCOMPARE(send(shop, u"cmdenviarret"_s), sendingReport + success);
    QCOMPARE(m_servers.message()[u"login"_s].toString(), u"ze"_s);
}

void tst_viaemail::closingWhileSendingAsks()
{
    Shop shop;
    frmViaEmail *screen = open(shop, frmViaEmail::Statistics, u"hang"_s);
    const QString question =
        u"question | Enviando e-mail | O e-mail ainda está sendo enviado. Deseja cancelar o "
        "envio%1?"_s;
    QVERIFY(frmViaEmail::mayClose(shop.window.get()));
    shop.press(u"cmdenviar2"_s);
    shop.told();
    QVERIFY(!shop.find<QPushButton>(u"cmdenviar2"_s)->isEnabled());
    shop.boxes.answer(QMessageBox::No);
    QVERIFY(!frmViaEmail::mayClose(shop.window.get()));
    QCOMPARE(shop.told(),
             u"question | Enviando e-mail | Um e-mail ainda está sendo enviado. Deseja cancelar o "
             "envio e sair?"_s);
    shop.boxes.answer(QMessageBox::No);
    screen->close();
    QCOMPARE(shop.told(), question.arg(u" e fechar"_s));
    QVERIFY(screen->isVisible());
    QTRY_COMPARE(shop.screen(u"frmEnviando"_s)->findChild<QLabel *>(u"lblmensagem"_s)->text(),
                 u"Aguardando a confirmação do servidor..."_s);
    shop.boxes.answer(QMessageBox::Yes);
    shop.screen(u"frmEnviando"_s)->close();
    QTRY_VERIFY(shop.find<QPushButton>(u"cmdenviar2"_s)->isEnabled());
    QTest::qWait(0);
    QCOMPARE(shop.told(),
             question.arg(QString()) +
                 u"\ninformation | Via e-mail | O envio foi cancelado. O servidor já tinha recebido "
                 "toda a mensagem, e ela ainda pode chegar."_s);

    shop.press(u"cmdenviar2"_s);
    shop.told();
    shop.boxes.answer(QMessageBox::Yes);
    QVERIFY(frmViaEmail::mayClose(shop.window.get()));
    QVERIFY(!shop.screen(u"frmEnviando"_s) && !shop.screen(u"frmViaEmail"_s));
    QCOMPARE(shop.told().count(u'\n'), 0); // the question alone
}

QTEST_MAIN(tst_viaemail)
#include "tst_viaemail.moc"
