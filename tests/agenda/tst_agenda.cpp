#include "agenda/appointments.h"
#include "agenda/frmalerta.h"
#include "app/daywatch.h"
#include "data/clock.h"
#include "settings/settings.h"
#include "support/answers.h"
#include "support/ledger.h"
#include "support/shop.h"

#include <QCalendarWidget>

using namespace Qt::StringLiterals;

namespace {

QString storedTitles(TestProgram &program)
{
    return program.rows(u"select Titulo, data, hora, local from compromisso order by rowid"_s);
}

void addDue(TestProgram &program, const QString &table, const QString &due, const QString &status)
{
    addRow(
        program, table,
        u"data=2026/11/01, vencimento=%1, valor=1.234,50, moeda=R$, estatus=%2, origem=Caixa, descricao=%1"_s
            .arg(due, status));
}

QString descriptions(const Shop &shop, const QString &alert, const QString &list)
{
    const QDialog *screen = shop.screen(alert);
    return screen ? linesOf(*screen->findChild<ListView *>(list)->tableSource()) : u"no alert"_s;
}

} // namespace

class tst_agenda : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesTellDaysInDateOrder();
    void titleIsTheKey();
    void bookIsKept();
    void filterAndResult();
    void calendarShowsTheDay();
    void alertListsWhatIsDueToday();
    void alertComesOnlyWhenWanted();
    void alertSettlesAndOpens();
};

void tst_agenda::linesTellDaysInDateOrder()
{
    TestProgram program;
    for (const QString &row :
         {u"Titulo=fim, data=2026/03/31, hora=18:00"_s, u"Titulo=depois, data=2026/04/01, hora="_s,
          u"Titulo=meio, data=2026/03/11, local=Loja"_s, u"Titulo=antes, data=2026/02/28"_s,
          u"Titulo=início, data=2026/03/01"_s})
        addRow(program, u"compromisso"_s, row);
    const QDate today(2026, 3, 8);
    const auto all = appointments::read(program.database(), std::nullopt, today);
    QCOMPARE(linesOf(*all.rows), u"28/02/2026 |  | antes |  | -8 dias\n"
                                 "01/03/2026 |  | início |  | -7 dias\n"
                                 "11/03/2026 |  | meio | Loja | 3 dias\n"
                                 "31/03/2026 | 18:00 | fim |  | 23 dias\n"
                                 "01/04/2026 |  | depois |  | 24 dias\n"_s);
    QCOMPARE(all.heading, u"Exibindo todos os compromissos"_s);
    const auto march =
        appointments::read(program.database(), AppointmentDates{{2026, 3, 1}, {2026, 3, 31}}, today);
    QCOMPARE(linesOf(*march.rows).count(u'\n'), 3);
    QCOMPARE(march.heading, u"Filtrando dados entre as datas de 01/03/2026 e 31/03/2026"_s);
}

/// Appointments of one title are changed and removed together, others never.
void tst_agenda::titleIsTheKey()
{
    struct Line
    {
        QString title, left;
    };
    const Line lines[] = {
        {u"Dentista"_s, u"100% | Ana's"_s},
        {u"100%"_s, u"Dentista | dentista | Ana's"_s},
        {u"Ana's"_s, u"Dentista | 100% | dentista"_s},
    };
    for (const Line &line : lines) {
        TestProgram program;
        for (const QString &title : {u"Dentista"_s, u"100%"_s, u"dentista"_s, u"Ana's"_s})
            addRow(program, u"compromisso"_s, u"data=2026/11/20, local=antes, Titulo="_s + title);
        appointments::change(program.database(),
                             {u"21/11/2026"_s, u"9h"_s, line.title, u"o'Porto"_s, u"d"_s});
        const QString after = storedTitles(program);
        QCOMPARE(after.count(u"2026/11/21 | 9h | o'Porto"_s), line.title == u"Dentista" ? 2 : 1);
        QCOMPARE(after.count(u"2026/11/20"_s), line.title == u"Dentista" ? 2 : 3);
        appointments::remove(program.database(), line.title);
        QStringList left;
        for (const QString &row : storedTitles(program).split(u'\n', Qt::SkipEmptyParts))
            left << row.section(u" | "_s, 0, 0);
        QCOMPARE(left.join(u" | "_s), line.left);
        QVERIFY_THROWS_EXCEPTION(Error, appointments::remove(program.database(), line.title));
    }
}

void tst_agenda::bookIsKept()
{
    Shop shop;
    shop.open();
    shop.command(u"mnucomp"_s);
    shop.press(u"novo"_s);
    QDialog *record = shop.screen(u"frmCadCompromisso"_s);
    QCOMPARE(record->windowTitle() + u' ' + record->findChild<QPushButton *>(u"cmdok"_s)->text(),
             u"Cadastrar novo compromisso &Adicionar compromisso"_s);
    shop.press(u"cmdok"_s);
    QVERIFY(shop.told().contains(u"título"_s));
    shop.fill(u"cbodata=32/11/2026, txttitulo=Feira"_s);
    shop.press(u"cmdok"_s);
    QVERIFY(shop.told().contains(u"Data"_s));
    QCOMPARE(storedTitles(shop.program), QString());
    shop.fill(u"cbodata=17/11/2026, txthora=10h, txtlocal=Centro"_s);
    shop.press(u"cmdok"_s);
    QCOMPARE(storedTitles(shop.program), u"Feira | 2026/11/17 | 10h | Centro\n"_s);
    ListView *list = shop.list(u"lstcompromisso"_s);
    QCOMPARE(linesOf(*list->tableSource()), u"17/11/2026 | 10h | Feira | Centro | 3 dias\n"_s);

    shop.press(u"editar"_s);
    QCOMPARE(shop.told(), u"information | Compromissos | Selecione um compromisso na lista."_s);
    list->selectRow(0);
    shop.press(u"editar"_s);
    record = shop.screen(u"frmCadCompromisso"_s);
    QCOMPARE(record->windowTitle() + u' ' + shop.text(u"cbodata"_s) + u' ' + shop.text(u"txttitulo"_s),
             u"Editar compromisso 17/11/2026 Feira"_s);
    shop.fill(u"cbodata=18/11/2026"_s);
    shop.press(u"cmdok"_s);
    QCOMPARE(linesOf(*list->tableSource()), u"18/11/2026 | 10h | Feira | Centro | 4 dias\n"_s);

    const QString path = shop.program.file(u"agenda.txt"_s);
    shop.boxes.chooseFile(path);
    shop.boxes.answer(QMessageBox::No);
    shop.press(u"txt"_s);
    QCOMPARE(shop.told(), u"file | Salvar lista de compromissos em txt | Arquivos de Texto(*.txt)\n"
                          "question | Visualizar | Os dados foram salvos com sucesso para arquivo, deseja "
                          "abrir o arquivo agora?"_s);
    QFile file(path);
    QVERIFY(file.open(QFile::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    QVERIFY2(text.contains(u"LISTA DE COMPROMISSO"_s) && text.contains(u"4 dias"_s) &&
                 text.contains(u"Filtrado por: Exibindo todos os compromissos\nTotal de compromissos: 1\n"_s),
             qPrintable(text));

    list->selectRow(0);
    shop.boxes.answer(QMessageBox::No);
    shop.press(u"remover"_s);
    QVERIFY(!storedTitles(shop.program).isEmpty());
    shop.boxes.answer(QMessageBox::Yes);
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(storedTitles(shop.program), QString());
    QCOMPARE(list->rowCount(), 0);
}

void tst_agenda::filterAndResult()
{
    Shop shop;
    addRow(shop.program, u"compromisso"_s, u"Titulo=a, data=2026/11/30"_s);
    addRow(shop.program, u"compromisso"_s, u"Titulo=b, data=2026/12/01"_s);
    shop.open();
    shop.command(u"mnucomp"_s);
    shop.fill(u"cbodata1=01/11/2026"_s);
    for (const QString &button : {u"cmdfiltrar"_s, u"cmdresultado"_s}) {
        shop.press(button);
        QCOMPARE(shop.told(), u"exclamation | Erro | As datas devem ser preenchidas!"_s);
    }
    QCOMPARE(shop.list(u"lstcompromisso"_s)->rowCount(), 2);
    shop.fill(u"cbodata2=30/11/2026"_s);
    shop.press(u"cmdfiltrar"_s);
    const QString heading = u"Filtrando dados entre as datas de 01/11/2026 e 30/11/2026"_s;
    QCOMPARE(shop.label(u"lbltopo"_s), heading);
    QCOMPARE(shop.list(u"lstcompromisso"_s)->rowCount(), 1);
    shop.press(u"cmdresultado"_s);
    const QDialog *result = shop.screen(u"frmRetCompromisso"_s);
    QVERIFY(result);
    QCOMPARE(result->findChild<QLabel *>(u"lbltopo"_s)->text(), heading);
    QCOMPARE(result->findChild<ListView *>(u"lstcompromisso"_s)->rowCount(), 1);
    shop.press(u"fechar"_s);
    QVERIFY(!shop.screen(u"frmRetCompromisso"_s));
}

void tst_agenda::calendarShowsTheDay()
{
    Shop shop;
    addRow(shop.program, u"compromisso"_s, u"Titulo=hoje, data=2026/11/14"_s);
    addRow(shop.program, u"compromisso"_s, u"Titulo=dezembro, data=2026/12/24"_s);
    shop.open();
    shop.command(u"mnucal"_s);
    auto *calendar = shop.find<QCalendarWidget>(u"calendario"_s);
    const auto isMarked = [&](QDate day) { return calendar->dateTextFormat(day).fontUnderline(); };
    QVERIFY(isMarked({2026, 11, 14}) && !isMarked({2026, 11, 15}));
    QCOMPARE(shop.list(u"lstcompromisso"_s)->cell(0, 2), u"hoje"_s);
    calendar->setSelectedDate({2026, 12, 24});
    QVERIFY(isMarked({2026, 12, 24}));
    QCOMPARE(shop.list(u"lstcompromisso"_s)->cell(0, 2), u"dezembro"_s);
    shop.press(u"cmdnovo"_s);
    QCOMPARE(shop.text(u"cbodata"_s), u"24/12/2026"_s);
}

void tst_agenda::alertListsWhatIsDueToday()
{
    Shop shop;
    settings::setValue(settings::dueAlerts, u"1"_s);
    for (const QString &table : {u"pagar"_s, u"receber"_s})
        for (const auto &[due, status] : {std::pair(u"2026/11/14"_s, u"Pendente"_s),
                                          {u"2026/11/13"_s, u"Pendente"_s},
                                          {u"2026/11/15"_s, u"Pendente"_s},
                                          {u"14/11/2026"_s, u"Concluído"_s},
                                          {u"2026/11/14"_s, u"Concluído"_s}})
            addDue(shop.program, table, due, status);
    shop.open();
    const QString due =
        u"1 | 01/11/2026 | 2026/11/14 |  |  | 14/11/2026 | R$ 1.234,50 | Pendente | Caixa | \n"_s;
    QCOMPARE(descriptions(shop, u"frmAlerta"_s, u"lstpagar"_s), due);
    QCOMPARE(descriptions(shop, u"frmAlerta"_s, u"lstreceber"_s), due);
}

void tst_agenda::alertComesOnlyWhenWanted()
{
    Shop shop;
    addDue(shop.program, u"pagar"_s, u"2026/11/15"_s, u"Pendente"_s);
    settings::setValue(settings::dueAlerts, u"1"_s);
    shop.open();
    QVERIFY(!shop.screen(u"frmAlerta"_s)); // nothing is due
    auto *day = shop.window->findChild<DayWatch *>();
    programclock::set(QDateTime(QDate(2026, 11, 14), QTime(23, 59)));
    day->look();
    QVERIFY(!shop.screen(u"frmAlerta"_s));
    programclock::set(QDateTime(QDate(2026, 11, 15), QTime(0, 0)));
    day->look();
    QCOMPARE(descriptions(shop, u"frmAlerta"_s, u"lstpagar"_s).count(u'\n'), 1);
    shop.screen(u"frmAlerta"_s)->close();
    day->look();
    QVERIFY(!shop.screen(u"frmAlerta"_s)); // once a day
    shop.command(u"mnualertavenc"_s);
    QCOMPARE(settings::value(settings::dueAlerts), u"0"_s);
    shop.window.reset();
    shop.open();
    QVERIFY(!shop.screen(u"frmAlerta"_s));
    shop.command(u"mnualertavenc"_s);
    QCOMPARE(settings::value(settings::dueAlerts), u"1"_s);
}

void tst_agenda::alertSettlesAndOpens()
{
    Shop shop;
    settings::setValue(settings::dueAlerts, u"1"_s);
    shop.program.run(u"insert into banco (banco, saldo) values ('Caixa', '2.000,00')"_s);
    for (int i = 0; i < 2; ++i)
        addDue(shop.program, u"pagar"_s, u"2026/11/14"_s, u"Pendente"_s);
    shop.open();
    QDialog *alert = shop.screen(u"frmAlerta"_s);
    auto *list = alert->findChild<ListView *>(u"lstpagar"_s);
    list->selectRow(1);
    QTest::keyClick(list, Qt::Key_Return);
    QVERIFY(shop.screen(u"frmAdicionar"_s));
    QCOMPARE(shop.text(u"txtvalor"_s), u"1.234,50"_s);
    shop.screen(u"frmAdicionar"_s)->close();
    list->selectRow(1);
    shop.boxes.answer(QMessageBox::Yes);
    alert->findChild<QPushButton *>(u"cmdbaixap"_s)->click();
    QCOMPARE(shop.told(), u"question | Efetuar baixa | Deseja efetuar uma baixa para está despesa?"_s);
    QCOMPARE(shop.program.rows(u"select código, estatus, vencimento from pagar order by código"_s),
             u"1 | Pendente | 2026/11/14\n2 | Concluído | 14/11/2026\n"_s);
    QCOMPARE(list->rowCount(), 1);
    QCOMPARE(shop.window->findChild<ListView *>(u"lstcaixabanco"_s)->cell(0, 1), u"R$ 765,50"_s);
}

QTEST_MAIN(tst_agenda)
#include "tst_agenda.moc"
