#include "settings/database.h"
#include "settings/programfolder.h"
#include "settings/settings.h"
#include "stock/stock.h"
#include "support/samples.h"
#include "support/testprogram.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>
#include <QThread>

#include <csignal>
#include <cstdio>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

EntryForm unitOfCoffee()
{
    EntryForm form = sampleEntry();
    form.quantity = u"1"_s;
    return form;
}

/// Another installation: saves `count` entries, writes a line for each and an error's text to standard error.
int saveEntries(const QString &folder, const Side &side, int count)
{
    try {
        programfolder::choose(folder);
        settings::setFolder(folder + u"/config"_s);
        for (int i = 0; i < count; ++i) {
            entry::save(*openDatabase(), side, unitOfCoffee(), {});
            std::puts("ok");
            std::fflush(stdout);
        }
        return 0;
    } catch (const Error &error) {
        std::fputs(error.what(), stderr);
        return 2;
    }
}

void start(QProcess &process, const TestProgram &program, const Side &side, int count)
{
    process.start(
        QCoreApplication::applicationFilePath(),
        {u"--salvar"_s, QFileInfo(program.databaseFile()).path(), side.table, QString::number(count)});
}

void addCoffee(TestProgram &program)
{
    program.run(u"insert into produto (produto, qtde, custo) values ('Café', 1000, '1,00')"_s);
}

/// Purchases add one unit and sales take one, so stock and entries must agree.
QString disagreement(TestProgram &program)
{
    const qint64 bought = program.rows(u"select código from pagar"_s).count(u'\n');
    const qint64 sold = program.rows(u"select código from receber"_s).count(u'\n');
    const QString expected = QString::number(1000 + bought - sold) + u'\n';
    const QString stock = program.rows(u"select qtde from produto"_s);
    return stock == expected ? QString() : u"stock "_s + stock + u"but expected "_s + expected;
}

} // namespace

class tst_reliability : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void twoProcessesLoseNothing();
    void killedWhileSaving();
    void fullDisk();
};

void tst_reliability::twoProcessesLoseNothing()
{
    TestProgram program;
    addCoffee(program);
    closeDatabase();
    QProcess buyer, seller;
    start(buyer, program, payable(), 200);
    start(seller, program, receivable(), 200);
    for (QProcess *process : {&buyer, &seller}) {
        QVERIFY(process->waitForFinished(240'000));
        QCOMPARE(process->readAllStandardError(), QByteArray());
        QCOMPARE(process->exitCode(), 0);
        QCOMPARE(process->readAllStandardOutput().count('\n'), 200);
    }
    QCOMPARE(program.rows(u"select código from pagar"_s).count(u'\n'), 200);
    QCOMPARE(program.rows(u"select código from receber"_s).count(u'\n'), 200);
    QCOMPARE(program.rows(u"select qtde from produto"_s), u"1000\n"_s);
}

void tst_reliability::killedWhileSaving()
{
    TestProgram program;
    addCoffee(program);
    qint64 reported = 0;
    for (int round = 0; round < 25; ++round) {
        closeDatabase();
        QProcess worker;
        start(worker, program, payable(), 100'000);
        QVERIFY(worker.waitForReadyRead(30'000));
        QThread::usleep(QRandomGenerator::global()->bounded(20'000U));
        worker.kill();
        QVERIFY(worker.waitForFinished(10'000));
        reported += worker.readAllStandardOutput().count('\n');

        Statement check = program.database().prepareNative("PRAGMA integrity_check");
        QVERIFY(check.step());
        QCOMPARE(check.text(0), u"ok"_s);
        QCOMPARE(disagreement(program), QString());
        for (const QString &table :
             {u"pagar"_s, u"receber"_s, u"produto"_s, u"banco"_s, u"bancario"_s, u"cliente"_s})
            program.rows(u"select * from "_s + table); // reads, and so authenticates, every page of every row
    }
    const qint64 kept = program.rows(u"select código from pagar"_s).count(u'\n');
    QVERIFY2(kept >= reported, "an entry that was reported as saved is lost");
}

void tst_reliability::fullDisk()
{
    TestProgram program;
    addCoffee(program);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    rlimit full = before;
    full.rlim_cur = rlim_t(QFileInfo(databasePath()).size()) + 4096;
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &full), 0);
    std::optional<Error> failure;
    for (int i = 0; i < 10'000 && !failure; ++i) {
        try {
            entry::save(*openDatabase(), receivable(), unitOfCoffee(), {});
        } catch (const Error &error) {
            failure = error;
        }
    }
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
    QVERIFY(failure);
    QCOMPARE(int(failure->kind()), int(Error::Kind::Storage));
    QCOMPARE(disagreement(program), QString());

    const qint64 sold = program.rows(u"select código from receber"_s).count(u'\n');
    entry::save(*openDatabase(), receivable(), unitOfCoffee(), {});
    QCOMPARE(program.rows(u"select código from receber"_s).count(u'\n'), sold + 1);
    QCOMPARE(disagreement(program), QString());
}

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"--salvar")
        return saveEntries(arguments.value(2),
                           arguments.value(3) == payable().table ? payable() : receivable(),
                           arguments.value(4).toInt());
    tst_reliability test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_reliability.moc"
