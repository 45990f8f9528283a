#include "data/clock.h"
#include "data/sharedconnection.h"
#include "data/undo.h"
#include "entries/regular.h"
#include "settings/database.h"
#include "support/ledger.h"
#include "support/shop.h"

#include <QProcess>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

const QDate today(2026, 11, 14);

RegularForm rent()
{
    return {.side = &payable(),
            .account = u"Caixa"_s,
            .contact = u"Imobiliária"_s,
            .description = u"Aluguel"_s,
            .document = {},
            .notes = {},
            .value = u"1.200,00"_s,
            .currency = u"R$"_s,
            .rhythm = Rhythm::Monthly,
            .next = u"30/11/2026"_s,
            .until = {},
            .times = {},
            .ahead = u"30"_s};
}

const QString posted = u"select vencimento, valor from pagar order by vencimento"_s;

/// Another process at midnight: waits for a line, then puts in what is due.
int postOnce(const QString &database, const QString &day)
{
    try {
        SharedConnection shared;
        const std::shared_ptr<Connection> connection = shared.open(database);
        std::puts("ready");
        std::fflush(stdout);
        std::getchar();
        std::printf("%d\n", regular::post(*connection, QDate::fromString(day, Qt::ISODate)));
        return 0;
    } catch (const Error &error) {
        std::fputs(error.what(), stderr);
        return 2;
    }
}

} // namespace

class tst_regular : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { programclock::set(QDateTime(today, QTime(10, 0))); }
    void entriesComeInAheadOfTime_data();
    void entriesComeInAheadOfTime();
    void twoMachinesAtMidnightPutEachInOnce();
    void problemsAreTold_data();
    void problemsAreTold();
    void fromHereOnOrNot();
    void whatWasPutInIsNobodysLastCommand();
    void screensKeepTheRules();
};

void tst_regular::entriesComeInAheadOfTime_data()
{
    QTest::addColumn<int>("rhythm");
    QTest::addColumn<QString>("next");
    QTest::addColumn<QString>("until");
    QTest::addColumn<QString>("times");
    QTest::addColumn<QString>("ahead");
    QTest::addColumn<QDate>("day");
    QTest::addColumn<QString>("due");
    const auto row = [](const char *name, Rhythm rhythm, const char *next, const char *until,
                        const char *times, const char *ahead, QDate day, const char *due) {
        QTest::newRow(name) << int(rhythm) << QString::fromLatin1(next) << QString::fromLatin1(until)
                            << QString::fromLatin1(times) << QString::fromLatin1(ahead) << day
                            << QString::fromLatin1(due);
    };
    row("not yet", Rhythm::Monthly, "30/11/2026", "", "", "15", today, "");
    row("on the day", Rhythm::Monthly, "30/11/2026", "", "", "16", today, "30/11");
    row("month ends stay lowered", Rhythm::Monthly, "31/01/2027", "", "", "0", QDate(2027, 5, 1),
        "31/01 28/02 28/03 28/04");
    row("weeks", Rhythm::Weekly, "20/11/2026", "", "", "14", today, "20/11 27/11");
    row("leap day", Rhythm::Yearly, "29/02/2028", "", "", "0", QDate(2030, 3, 1), "29/02 28/02 28/02");
    row("until a day", Rhythm::Weekly, "20/11/2026", "04/12/2026", "", "60", today, "20/11 27/11 04/12");
    row("so many times", Rhythm::Monthly, "01/12/2026", "", "2", "365", today, "01/12 01/01");
    row("overdue ones too", Rhythm::Monthly, "10/09/2026", "", "", "0", today, "10/09 10/10 10/11");
}

void tst_regular::entriesComeInAheadOfTime()
{
    TestProgram program;
    RegularForm form = rent();
    QFETCH(const int, rhythm);
    QFETCH(const QDate, day);
    form.rhythm = Rhythm(rhythm);
    for (const auto &[field, column] : {std::pair(&form.next, "next"),
                                        {&form.until, "until"},
                                        {&form.times, "times"},
                                        {&form.ahead, "ahead"}})
        *field = *static_cast<QString *>(QTest::qData(column, qMetaTypeId<QString>()));
    regular::save(program.database(), 0, form);
    const int count = regular::post(program.database(), day);
    QCOMPARE(regular::post(program.database(), day), 0);
    QStringList due;
    for (const QString &line :
         program.rows(u"select vencimento from pagar order by código"_s).split(u'\n', Qt::SkipEmptyParts))
        due << line.mid(8, 2) + u'/' + line.mid(5, 2);
    QTEST(due.join(u' '), "due");
    QCOMPARE(count, int(due.size()));
}

void tst_regular::twoMachinesAtMidnightPutEachInOnce()
{
    TestProgram program;
    for (int i = 0; i < 20; ++i)
        regular::save(program.database(), 0, rent());
    const QString day = u"2026-12-31"_s;
    std::vector<std::unique_ptr<QProcess>> machines;
    for (int i = 0; i < 3; ++i) {
        machines.push_back(std::make_unique<QProcess>());
        machines.back()->start(QCoreApplication::applicationFilePath(), {u"--lancar"_s, databasePath(), day});
    }
    for (const auto &machine : machines)
        QVERIFY(machine->waitForReadyRead(30'000) && machine->readLine().startsWith("ready"));
    for (const auto &machine : machines)
        machine->write("\n");
    int sum = 0;
    for (const auto &machine : machines) {
        QVERIFY(machine->waitForFinished(30'000));
        QCOMPARE(machine->readAllStandardError(), QByteArray());
        sum += machine->readAllStandardOutput().trimmed().toInt();
    }
    QCOMPARE(sum, 60); // November, December and January of each
    QCOMPARE(program.rows(u"select count(*) from pagar"_s), u"60\n"_s);
}

void tst_regular::problemsAreTold_data()
{
    QTest::addColumn<QString>("next");
    QTest::addColumn<QString>("until");
    QTest::addColumn<QString>("times");
    QTest::addColumn<QString>("ahead");
    QTest::addColumn<QString>("told");
    const QString next = u"30/11/2026"_s;
    QTest::newRow("fine") << next << u"31/12/2027"_s << u"12"_s << u"0"_s << QString();
    QTest::newRow("no date") << u"31/02/2027"_s << QString() << QString() << u"0"_s
                             << u"O próximo vencimento"_s;
    QTest::newRow("long past") << u"01/10/2025"_s << QString() << QString() << u"0"_s
                               << u"O próximo vencimento"_s;
    QTest::newRow("end") << next << u"sempre"_s << QString() << u"0"_s << u"A data final"_s;
    QTest::newRow("no times") << next << QString() << u"0"_s << u"0"_s << u"O número de vezes"_s;
    QTest::newRow("ahead") << next << QString() << QString() << u"-1"_s << u"Os dias de antecedência"_s;
}

void tst_regular::problemsAreTold()
{
    RegularForm form = rent();
    QFETCH(const QString, next);
    QFETCH(const QString, until);
    QFETCH(const QString, times);
    QFETCH(const QString, ahead);
    QFETCH(const QString, told);
    form.next = next;
    form.until = until;
    form.times = times;
    form.ahead = ahead;
    const auto problem = regular::problem(form, today);
    QVERIFY2(problem ? !told.isEmpty() && problem->startsWith(told) : told.isEmpty(),
             qPrintable(problem.value_or(u""_s)));
}

void tst_regular::fromHereOnOrNot()
{
    TestProgram program;
    Connection &connection = program.database();
    RegularForm form = rent();
    form.next = u"30/10/2026"_s;
    form.ahead = u"60"_s;
    regular::save(connection, 0, form);
    QCOMPARE(regular::post(connection, today), 3);
    entry::settle(connection, payable(), {u"2"_s}, today); // the one of 30/11
    form.value = u"1.300,00"_s;
    form.next = u"30/01/2027"_s;
    QCOMPARE(regular::pendingFrom(connection, 1, today), 1);
    regular::save(connection, 1, form);
    const QString asTheyWere = u"14/11/2026 | 1.200,00\n2026/10/30 | 1.200,00\n2026/12/30 | 1.200,00\n"_s;
    QCOMPARE(program.rows(u"select vencimento, valor from pagar order by valor, estatus, código"_s),
             asTheyWere);
    regular::save(connection, 1, form, today);
    QCOMPARE(program.rows(u"select valor from pagar order by código"_s), u"1.200,00\n1.200,00\n1.300,00\n"_s);
    regular::remove(connection, 1, today);
    QCOMPARE(program.rows(u"select código from pagar"_s), u"1\n2\n"_s);
    QCOMPARE(regular::post(connection, today.addDays(90)), 0);
}

/// Nor does undoing a rule's removal bring its entries a second time.
void tst_regular::whatWasPutInIsNobodysLastCommand()
{
    TestProgram program;
    journal::setAuthor({u"Ana"_s, u"balcao"_s, u"A"_s});
    Connection &connection = program.database();
    regular::save(connection, 0, rent());
    const qint64 rule = undo::next(connection);
    QCOMPARE(regular::post(connection, today), 1);
    QCOMPARE(undo::next(connection), rule);
    QCOMPARE(journal::step(connection, rule + 1).user, u"Contas regulares"_s);
    regular::remove(connection, 1, {});
    QVERIFY(undo::takeBack(connection, undo::next(connection)).isDone);
    QCOMPARE(regular::post(connection, today), 0);
    QVERIFY(undo::takeBack(connection, rule + 1).isDone);
    QCOMPARE(regular::post(connection, today), 0);
    QCOMPARE(program.rows(posted), QString());
}

void tst_regular::screensKeepTheRules()
{
    Shop shop;
    addRow(shop.program, u"banco"_s, u"banco=Caixa, saldo=0,00"_s);
    addRow(shop.program, u"fornecedor"_s, u"nome=Imobiliária"_s);
    addRow(shop.program, u"pcontapagar"_s, u"descricao=Aluguel"_s);
    shop.open();
    shop.command(u"mnuregulares"_s);
    shop.press(u"cmddespesa"_s);
    shop.press(u"cmdsalvar"_s);
    QVERIFY(shop.told().startsWith(u"exclamation | Erro | Os seguintes dados estão em branco"_s));
    shop.fill(u"txtdescricao=Aluguel, cbotipo=Imobiliária, txtproximo=10/11/2026, txtadiante=30"_s);
    shop.type(u"txtvalor"_s, u"1200"_s);
    shop.press(u"cmdsalvar"_s);
    QCOMPARE(linesOf(*shop.list(u"lstregulares"_s)->tableSource()),
             u"Despesa | Aluguel | Imobiliária | R$ 1.200,00 | Todo mês | 10/01/2027 | sem fim\n"_s);
    QCOMPARE(shop.program.rows(posted), u"2026/11/10 | 1.200,00\n2026/12/10 | 1.200,00\n"_s);
    shop.list(u"lstregulares"_s)->selectRow(0);
    shop.press(u"cmdalterar"_s);
    shop.type(u"txtvalor"_s, u"1300"_s);
    shop.boxes.answer(QMessageBox::Yes);
    shop.press(u"cmdsalvar"_s);
    QCOMPARE(shop.told(),
             u"question | Contas regulares | Alterar também as contas pendentes já lançadas por esta "
             "regra, de hoje em diante (1)?"_s);
    QCOMPARE(shop.program.rows(posted), u"2026/11/10 | 1.200,00\n2026/12/10 | 1.300,00\n"_s);
    shop.window.reset();
    programclock::set(QDateTime(QDate(2026, 12, 20), QTime(8, 0)));
    shop.open(); // another morning
    QCOMPARE(shop.program.rows(u"select count(*) from pagar"_s), u"3\n"_s);
    QCOMPARE(shop.list(u"lstpagar"_s)->rowCount(), 3);
}

int main(int argc, char *argv[])
{
    if (argc > 3 && qstrcmp(argv[1], "--lancar") == 0) {
        const QCoreApplication app(argc, argv);
        return postOnce(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    }
    const QApplication app(argc, argv);
    tst_regular test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_regular.moc"
