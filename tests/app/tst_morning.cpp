#include "settings/database.h"
#include "settings/settings.h"
#include "support/ledger.h"
#include "support/mailserver.h"
#include "support/shop.h"

using namespace Qt::StringLiterals;

/// A morning with all that is not entries and accounts, played on the real screens.
class tst_morning : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aMorningInTheShop();
    void backupIsRestored();
    void failedRestoreChangesNothing();

private:
    void logInAndSettle();
    void keepAppointment();
    void printPapers();
    void sendReport();
    void lockAndUnlock();

    std::unique_ptr<Shop> m_shop;
};

void tst_morning::init()
{
    m_shop.reset(); // before another takes the program folder
    m_shop = std::make_unique<Shop>();
    TestProgram &program = m_shop->program;
    addRow(program, u"login"_s, u"nome=Ana, senha=abc"_s);
    addRow(program, u"banco"_s, u"banco=Caixa, saldo=100,00"_s);
    addRow(program, u"produto"_s, u"produto=Café, qtde=5, custo=1,00"_s);
    for (const auto &[table, contact] :
         {std::pair(u"pagar"_s, u"fornecedor"_s), {u"receber"_s, u"cliente"_s}})
        addRow(program, table,
               u"data=2026/11/01, vencimento=2026/11/14, valor=40,00, moeda=R$, estatus=Pendente, "
               "origem=Caixa, descricao=Luz, %1=Zé"_s.arg(contact));
}

void tst_morning::aMorningInTheShop()
{
    logInAndSettle();
    keepAppointment();
    printPapers();
    sendReport();
    lockAndUnlock();
    QVERIFY2(m_shop->boxes.unanswered().isEmpty(), qPrintable(m_shop->boxes.unanswered().join(u'\n')));
}

void tst_morning::logInAndSettle()
{
    Shop &shop = *m_shop;
    shop.program.run(u"update login_inicia set exigirlogin = '1'"_s);
    settings::setValue(settings::dueAlerts, u"1"_s);
    shop.boxes.drive([&](QDialog &dialog) {
        QVERIFY(!shop.screen(u"frmAlerta"_s));
        Shop::enter(u"ana"_s, u"ABC"_s)(dialog);
    });
    shop.open();
    QCOMPARE(shop.told(), u"dialog | frmLogin | Login"_s);
    QDialog *alert = shop.screen(u"frmAlerta"_s);
    QVERIFY(alert);
    for (const auto &[list, button] :
         {std::pair(u"lstpagar"_s, u"cmdbaixap"_s), {u"lstreceber"_s, u"cmdbaixar"_s}}) {
        alert->findChild<ListView *>(list)->selectRow(0);
        shop.boxes.answer(QMessageBox::Yes);
        alert->findChild<QPushButton *>(button)->click();
        QCOMPARE(alert->findChild<ListView *>(list)->rowCount(), 0);
    }
    shop.told();
    alert->close();
    QCOMPARE(shop.list(u"lstcaixabanco"_s)->cell(0, 1), u"R$ 100,00"_s);
}

void tst_morning::keepAppointment()
{
    Shop &shop = *m_shop;
    shop.command(u"mnucomp"_s);
    shop.press(u"novo"_s);
    shop.fill(u"cbodata=17/11/2026, txthora=10h, txttitulo=Feira"_s);
    shop.press(u"cmdok"_s);
    QCOMPARE(shop.list(u"lstcompromisso"_s)->cell(0, 4), u"3 dias"_s);
    shop.press(u"cmdsair"_s);
}

void tst_morning::printPapers()
{
    Shop &shop = *m_shop;
    shop.list(u"lstpagar"_s)->selectRow(0);
    shop.command(u"cmdrecibod"_s);
    const QString receipt = shop.printed([&] { shop.press(u"cmdimprimir"_s); }).simplified();
    QVERIFY2(receipt.contains(u"Pagamento para: Zé"_s) && receipt.contains(u"Valor: R$ 40,00"_s),
             qPrintable(receipt));
    shop.press(u"cmdsair"_s);
    shop.command(u"mnuordemserv"_s);
    shop.press(u"cmdadpro"_s);
    shop.fill(u"txtnome=Café, txtvalor=12,5, txtqtde=2"_s);
    shop.press(u"cmdadicionar"_s);
    const QString order = shop.printed([&] { shop.press(u"cmdimprimir"_s); }).simplified();
    QVERIFY2(order.contains(u"Total a pagar: R$ 25,00"_s), qPrintable(order));
    shop.press(u"cmdsair"_s);
}

void tst_morning::sendReport()
{
    Shop &shop = *m_shop;
    MailServers servers;
    shop.command(u"mnuretviaemail"_s);
    shop.fill(u"txtnome=Ana, txtemail=ana@loja.example, txtservidor="_s + servers[u"plain"_s]);
    shop.find<QCheckBox>(u"chkpagar"_s)->click();
    shop.told(); // the previews
    shop.press(u"cmdenviarret"_s);
    QString told;
    QVERIFY(QTest::qWaitFor(
        [&] {
            told += shop.told();
            return told.contains(u"O e-mail foi enviado com sucesso"_s);
        },
        20'000));
    const QString file =
        QString::fromUtf8(servers.message()[u"attachment"_s].toString().toLatin1()).simplified();
    QVERIFY2(file.contains(u"R$ 40,00 Concluído Caixa"_s), qPrintable(file));
    shop.press(u"cmdsair"_s);
}

void tst_morning::lockAndUnlock()
{
    Shop &shop = *m_shop;
    shop.command(u"mnucomp"_s);
    shop.told();
    bool hidden = false;
    shop.boxes.drive([&](QDialog &dialog) {
        hidden = !shop.screen(u"frmCompromisso"_s) && !shop.window->centralWidget()->isVisible();
        Shop::enter(u"Ana"_s, u"abc"_s)(dialog);
    });
    shop.command(u"mnubloquearsoft"_s);
    QVERIFY(hidden);
    QCOMPARE(shop.told(), u"dialog | frmLoginSoft | Programa bloqueado"_s);
    QCOMPARE(shop.list(u"lstcompromisso"_s)->rowCount(), 1);
    shop.press(u"cmdsair"_s);
}

void tst_morning::backupIsRestored()
{
    Shop &shop = *m_shop;
    shop.open();
    const QString filter = u" do banco de dados | Arquivo de banco de dados(*.qorvex)"_s;
    shop.boxes.chooseFile({});
    shop.command(u"mnurealizarbak"_s);
    QCOMPARE(shop.told(), u"file | Realizar backup"_s + filter);
    const QString copy = shop.program.file(u"cópia.qorvex"_s);
    shop.boxes.chooseFile(copy);
    shop.command(u"mnurealizarbak"_s);
    QVERIFY(shop.told().endsWith(u"information | Backup | Backup realizado com sucesso!"_s));
    shop.command(u"mnuestsoftware"_s);
    QCOMPARE(shop.label(u"lblbackup"_s), u"14/11/2026 10:00"_s);
    shop.screen(u"frmEstSoftware"_s)->close();

    shop.list(u"lstpagar"_s)->selectRow(0);
    shop.boxes.answer(QMessageBox::Yes);
    shop.command(u"popbaixapagar"_s);
    QCOMPARE(shop.told(), u"question | Efetuar baixa | Deseja efetuar uma baixa para está despesa?"_s);
    addRow(shop.program, u"receber"_s, u"data=2026/11/14, valor=1,00, estatus=Pendente"_s);
    QCOMPARE(shop.list(u"lstcaixabanco"_s)->cell(0, 1), u"R$ 60,00"_s);
    shop.boxes.chooseFile(copy);
    shop.command(u"mnurestbak"_s);
    QCOMPARE(shop.told(), u"file | Restaurar backup"_s + filter +
                              u"\ninformation | Backup | Backup restaurado com sucesso!"_s);
    QTRY_COMPARE(shop.list(u"lstcaixabanco"_s)->cell(0, 1), u"R$ 100,00"_s);
    QCOMPARE(shop.list(u"lstpagar"_s)->rowCount(), 1);
    QCOMPARE(shop.list(u"lstreceber"_s)->rowCount(), 1);
    QCOMPARE(shop.list(u"lstpagar"_s)->cell(0, 9), u"Pendente"_s);
    // What the lists show is the restored file, and commands write into it.
    shop.list(u"lstpagar"_s)->selectRow(0);
    shop.boxes.answer(QMessageBox::Yes);
    shop.command(u"popbaixapagar"_s);
    QCOMPARE(openDatabase()->path(), shop.program.databaseFile());
    QCOMPARE(shop.list(u"lstpagar"_s)->cell(0, 9), u"Concluído"_s);
}

void tst_morning::failedRestoreChangesNothing()
{
    Shop &shop = *m_shop;
    shop.open();
    const QString text = shop.program.file(u"texto.qorvex"_s);
    QFile file(text);
    QVERIFY(file.open(QFile::WriteOnly) && file.write("nada") > 0);
    file.close();
    for (const QString &chosen : {text, shop.program.databaseFile()}) {
        shop.boxes.chooseFile(chosen);
        shop.command(u"mnurestbak"_s);
        const QString told = shop.told();
        QVERIFY2(told.contains(u"Ocorreu o seguinte erro"_s) && !told.contains(u"sucesso"_s),
                 qPrintable(told));
    }
    QCOMPARE(shop.list(u"lstpagar"_s)->rowCount(), 1);
    shop.list(u"lstpagar"_s)->selectRow(0);
    shop.boxes.answer(QMessageBox::Yes);
    shop.command(u"popbaixapagar"_s);
    QCOMPARE(shop.list(u"lstpagar"_s)->cell(0, 9), u"Concluído"_s);
}

QTEST_MAIN(tst_morning)
#include "tst_morning.moc"
