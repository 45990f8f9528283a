#include "data/clock.h"
#include "data/schema.h"
#include "data/sharedconnection.h"
#include "entries/centres.h"
#include "entries/centreside.h"
#include "settings/autobackup.h"
#include "settings/backup.h"
#include "settings/database.h"
#include "settings/settings.h"
#include "support/ledger.h"
#include "support/shop.h"

#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QThread>

#include <csignal>
#include <cstdio>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int killings = 30;

struct NoProgress : Progress
{
    void begin(std::function<qint64()>) override {}
    void advance(qint64) override {}
};

QString nameOf(QDate day)
{
    return u"tavaro-%1-180000.qorvex"_s.arg(day.toString(Qt::ISODate));
}

/// Another process: a copy for every day, until it is killed.
int copyEveryDay(const QString &database, const QString &folder)
{
    try {
        NoProgress progress;
        for (QDate day(2026, 1, 1);; day = day.addDays(1)) {
            autobackup::make({database, folder + u'/' + nameOf(day), {}}, progress);
            std::puts("ok");
            std::fflush(stdout);
        }
    } catch (const Error &error) {
        std::fputs(error.what(), stderr);
        return 2;
    }
}

/// How many of the newest files that bear a copy's name are whole, and how many are not.
std::pair<int, int> wholeAndBroken(const QString &folder, qsizetype most)
{
    int whole = 0, broken = 0;
    const QFileInfoList files =
        QDir(folder).entryInfoList({u"*.qorvex"_s}, QDir::Files, QDir::Name | QDir::Reversed);
    for (const QFileInfo &file : files.first(std::min(most, files.size()))) {
        try {
            const auto copy = Connection::openForReading(file.filePath(), schema::password.toString());
            copy->checkIntegrity();
            ++(schema::isComplete(*copy) ? whole : broken);
        } catch (const Error &) {
            ++broken;
        }
    }
    return {whole, broken};
}

QStringList daysOf(const std::vector<autobackup::Copy> &copies)
{
    QStringList days;
    for (const autobackup::Copy &copy : copies)
        days << copy.when.date().toString(Qt::ISODate);
    return days;
}

} // namespace

class tst_autobackup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void daysWeeksAndMonthsAreKept();
    void killedAtAnyPointLeavesAWholeCopy();
    void fullDiskRemovesNothing();
    void closingCopiesWhatChanged();
    void warningsComeInTime();
    void screenShowsWhatACopyHoldsAndPutsItBack();
};

/// A copy every evening for two years.
void tst_autobackup::daysWeeksAndMonthsAreKept()
{
    std::vector<autobackup::Copy> copies;
    for (QDate day(2025, 1, 1); day <= QDate(2026, 11, 14); day = day.addDays(1)) {
        copies.insert(copies.begin(), {nameOf(day), day.startOfDay(), 1});
        for (const autobackup::Copy &gone : autobackup::surplus(copies))
            std::erase_if(copies, [&gone](const autobackup::Copy &copy) { return copy.path == gone.path; });
    }
    QCOMPARE(
        daysOf(copies).join(u' '),
        u"2026-11-14 2026-11-13 2026-11-12 2026-11-11 2026-11-10 2026-11-09 2026-11-08 2026-11-01 "
        "2026-10-31 2026-10-25 2026-09-30 2026-08-31 2026-07-31 2026-06-30 2026-05-31 2026-04-30 2026-03-31 "
        "2026-02-28 2026-01-31 2025-12-31"_s);
}

void tst_autobackup::killedAtAnyPointLeavesAWholeCopy()
{
    const TestProgram program;
    const QString folder = program.file(u"copias"_s);
    QDir().mkpath(folder);
    for (int round = 0; round < killings; ++round) {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {u"--copiar"_s, databasePath(), folder});
        QVERIFY(process.waitForReadyRead(30'000));
        QThread::usleep(QRandomGenerator::global()->bounded(60'000U));
        process.kill();
        QVERIFY(process.waitForFinished(10'000));
        QCOMPARE(process.readAllStandardError(), QByteArray());
        const auto [whole, broken] = wholeAndBroken(folder, round + 1 < killings ? 2 : 1000);
        QVERIFY2(whole > 0 && broken == 0, qPrintable(u"%1 %2"_s.arg(whole).arg(broken)));
    }
}

void tst_autobackup::fullDiskRemovesNothing()
{
    std::signal(SIGXFSZ, SIG_IGN);
    const TestProgram program;
    settings::setValue(settings::backupFolder, program.file(u"copias"_s));
    NoProgress progress;
    const auto copyOn = [&progress](int day) {
        programclock::set(QDateTime(QDate(2026, 11, day), QTime(18, 0)));
        autobackup::make(autobackup::plan(), progress);
    };
    for (int day = 1; day <= 9; ++day)
        copyOn(day);
    const QStringList before = daysOf(autobackup::copies());
    const qint64 size = QFileInfo(databasePath()).size();
    rlimit limit{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &limit), 0);
    for (int round = 0; round < killings; ++round) {
        rlimit full = limit;
        full.rlim_cur = rlim_t(QRandomGenerator::global()->bounded(size));
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &full), 0);
        bool failed = false;
        try {
            copyOn(10);
        } catch (const Error &) {
            failed = true;
        }
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &limit), 0);
        QVERIFY(failed);
        QCOMPARE(daysOf(autobackup::copies()), before);
        QCOMPARE(QDir(autobackup::folder()).entryList(QDir::Files).size(), before.size());
    }
}

void tst_autobackup::closingCopiesWhatChanged()
{
    Shop shop;
    settings::setValue(settings::automaticBackup, u"1"_s);
    const auto openAndClose = [&shop] {
        shop.open();
        shop.window->close();
        shop.window.reset();
        return int(autobackup::copies().size());
    };
    QCOMPARE(openAndClose(), 1);
    programclock::set(QDateTime(QDate(2026, 11, 15), QTime(10, 0)));
    QCOMPARE(openAndClose(), 1);
    centres::add(shop.program.database(), costCentres(), u"Luz"_s);
    QCOMPARE(openAndClose(), 2);
    QCOMPARE(backup::facts().lastBackup, u"15/11/2026 10:00"_s);
    settings::setValue(settings::backupFolder, u"/proc/nada"_s);
    centres::add(shop.program.database(), costCentres(), u"Gás"_s);
    QCOMPARE(openAndClose(), 0);
    QCOMPARE(shop.told(),
             u"critical | Erro | Ocorreu o seguinte erro: a pasta das cópias \"/proc/nada\" não pôde ser "
             "criada."_s);
}

void tst_autobackup::warningsComeInTime()
{
    const TestProgram program;
    const QDate today(2026, 11, 14);
    QCOMPARE(autobackup::warning(today), QString());
    settings::setValue(settings::automaticBackup, u"0"_s);
    QCOMPARE(autobackup::warning(today), u"Ainda não há nenhuma cópia de segurança dos dados."_s);
    programclock::set(QDateTime(today, QTime(10, 0)));
    backup::remember();
    QCOMPARE(autobackup::warning(today.addDays(7)), QString());
    QCOMPARE(autobackup::warning(today.addDays(8)),
             u"A última cópia de segurança dos dados é de 14/11/2026, há 8 dias."_s);
    settings::setValue(settings::automaticBackup, u"1"_s);
    settings::setValue(settings::backupFolder, u"/media/pendrive"_s);
    QCOMPARE(
        autobackup::warning(today),
        u"A pasta das cópias automáticas, \"/media/pendrive\", não está mais lá. Nenhuma cópia é feita."_s);
}

void tst_autobackup::screenShowsWhatACopyHoldsAndPutsItBack()
{
    Shop shop;
    addRow(shop.program, u"banco"_s, u"banco=Caixa, saldo=100,00"_s);
    addRow(
        shop.program, u"receber"_s,
        u"estatus=Concluído, origem=Caixa, descricao=Venda, valor=50,00, data=2026/11/10, vencimento=10/11/2026"_s);
    shop.open();
    shop.command(u"mnucopias"_s);
    shop.press(u"cmdagora"_s);
    addRow(shop.program, u"pagar"_s,
           u"estatus=Concluído, origem=Caixa, descricao=Luz, valor=30,00, data=2026/11/14"_s);
    shop.list(u"lstcopias"_s)->selectRow(-1);
    shop.list(u"lstcopias"_s)->selectRow(0);
    const QString shown = linesOf(*shop.list(u"lstconteudo"_s)->tableSource());
    QVERIFY2(shown.contains(u"Contas a pagar | 0 | 1\n"_s), qPrintable(shown));
    QVERIFY2(shown.contains(u"Última conta a receber | 10/11/2026 Venda | 10/11/2026 Venda\n"_s),
             qPrintable(shown));
    QVERIFY2(shown.contains(u"Saldo de Caixa | R$ 150,00 | R$ 120,00\n"_s), qPrintable(shown));

    programclock::set(QDateTime(QDate(2026, 11, 15), QTime(10, 0)));
    shop.boxes.answer(QMessageBox::Yes);
    shop.press(u"cmdrestaurar"_s);
    QCOMPARE(shop.program.rows(u"select count(*) from pagar"_s), u"0\n"_s);
    QVERIFY(shop.told().endsWith(u"information | Cópias automáticas | Cópia restaurada com sucesso!"_s));
    QTRY_COMPARE(shop.list(u"lstpagar"_s)->rowCount(), 0);
    QCOMPARE(shop.list(u"lstcopias"_s)->rowCount(), 2); // what was there is a copy, too
    shop.list(u"lstcopias"_s)->selectRow(0);
    QVERIFY(linesOf(*shop.list(u"lstconteudo"_s)->tableSource()).contains(u"Contas a pagar | 1 | 0\n"_s));

    // A copy of the same day, which the one made before the restore would drive out.
    programclock::set(QDateTime(QDate(2026, 11, 15), QTime(11, 0)));
    addRow(shop.program, u"pagar"_s, u"descricao=Gás, valor=1,00"_s);
    shop.boxes.answer(QMessageBox::Yes);
    shop.press(u"cmdrestaurar"_s);
    QVERIFY(shop.told().endsWith(u"Cópia restaurada com sucesso!"_s));
    QCOMPARE(shop.program.rows(u"select descricao from pagar"_s), u"Luz\n"_s);

    closeDatabase(); // a damaged file is what copies are for
    QVERIFY(QFile::resize(databasePath(), 5000));
    shop.boxes.answer(QMessageBox::Yes);
    shop.boxes.answer(QMessageBox::Ok); // why it could not be copied
    shop.boxes.answer(QMessageBox::Yes);
    shop.told();
    shop.press(u"cmdrestaurar"_s);
    const QString told = shop.told();
    QVERIFY2(told.endsWith(u"Cópia restaurada com sucesso!"_s), qPrintable(told));
    QCOMPARE(shop.program.rows(u"select descricao from pagar"_s), u"Gás\n"_s);
}

int main(int argc, char *argv[])
{
    if (argc > 3 && qstrcmp(argv[1], "--copiar") == 0) {
        const QCoreApplication app(argc, argv);
        return copyEveryDay(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    }
    const QApplication app(argc, argv);
    tst_autobackup test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_autobackup.moc"
