#include "data/clock.h"
#include "data/databasecopy.h"
#include "data/schema.h"
#include "data/sharedconnection.h"
#include "settings/backup.h"
#include "settings/database.h"
#include "settings/settings.h"
#include "support/paper.h"
#include "support/testprogram.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>
#include <QThread>

#include <csignal>
#include <cstdio>
#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int killings = 30;

struct NoProgress : Progress
{
    void begin(std::function<qint64()>) override {}
    void advance(qint64) override {}
};

void copy(bool toBackup, const QString &live, const QString &other)
{
    NoProgress progress;
    if (toBackup)
        databasecopy::backUp(live, other, progress);
    else
        databasecopy::restore(other, live, progress);
}

/// What the user is told; empty when it worked.
QString failure(const std::function<void()> &work)
{
    try {
        work();
        return {};
    } catch (const Error &error) {
        return error.text();
    }
}

/// Another process: copies over and over, or writes one row into each of two tables at a time, until it is
/// killed.
int work(const QString &what, const QString &live, const QStringList &others)
{
    try {
        SharedConnection shared;
        for (int i = 0;; ++i) {
            if (what == u"gravar") {
                const std::shared_ptr<Connection> connection = shared.open(live);
                Transaction transaction(*connection);
                connection->execute(u"insert into pcontapagar (descricao) values ('%1')"_s.arg(i));
                connection->execute(u"insert into pcontareceber (descricao) values ('%1')"_s.arg(i));
                transaction.commit();
                QThread::msleep(2);
            } else {
                copy(what == u"copiar", live, others.at(i % others.size()));
            }
            std::puts("ok");
            std::fflush(stdout);
        }
    } catch (const Error &error) {
        std::fputs(error.what(), stderr);
        return 2;
    }
}

void start(QProcess &process, const QStringList &arguments)
{
    process.start(QCoreApplication::applicationFilePath(), arguments);
    QVERIFY(process.waitForReadyRead(30'000)); // one round is done
}

void kill(QProcess &process)
{
    QThread::usleep(QRandomGenerator::global()->bounded(60'000U));
    process.kill();
    QVERIFY(process.waitForFinished(10'000));
    QCOMPARE(process.readAllStandardError(), QByteArray());
}

/// A whole database whose accounts bear the mark; some megabytes.
void makeDatabase(const QString &path, const QString &mark)
{
    schema::createFile(path);
    SharedConnection shared;
    const std::shared_ptr<Connection> connection = shared.open(path);
    Transaction transaction(*connection);
    const QString notes(4000, u'x');
    for (int i = 0; i < 500; ++i)
        connection->execute(u"insert into cliente (nome, adicionais) values ('%1', '%2')"_s.arg(mark, notes));
    transaction.commit();
}

/// The mark of a whole database; anything else when it is damaged.
QString markOf(const QString &path)
{
    try {
        SharedConnection shared;
        const std::shared_ptr<Connection> connection = shared.open(path);
        connection->checkIntegrity();
        Statement mark = connection->prepareNative("SELECT nome, count(*) FROM cliente GROUP BY nome");
        QString text;
        while (mark.step())
            text += mark.text(0) + u' ' + mark.text(1) + u';';
        return text;
    } catch (const Error &error) {
        return error.text();
    }
}

} // namespace

class tst_backup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void copiesHoldOneStateWhileOthersWrite();
    void refusedBackupsChangeNothing();
    void whoHasTheOldFileOpenWritesNothingIntoIt();
    void journalOfDamagedFileIsNotPlayedIntoTheNewOne();
    void killedAtAnyPointLeavesWholeFiles_data();
    void killedAtAnyPointLeavesWholeFiles();
    void fullDiskLeavesWhatWasThere();
    void factsOfTheDatabase();

private:
    QString file(const QString &name) const { return m_folder->filePath(name); }
    /// The files of the folder, but for the two databases that each test begins with.
    QStringList others() const
    {
        QStringList names = QDir(m_folder->path()).entryList(QDir::Files);
        names.removeAll(u"loja.qorvex"_s);
        names.removeAll(u"copia.qorvex"_s);
        return names;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_live, m_copy;
};

void tst_backup::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_live = file(u"loja.qorvex"_s);
    m_copy = file(u"copia.qorvex"_s);
    makeDatabase(m_live, u"nova"_s);
    makeDatabase(m_copy, u"velha"_s);
}

void tst_backup::copiesHoldOneStateWhileOthersWrite()
{
    QProcess writer;
    start(writer, {u"--gravar"_s, m_live});
    for (int i = 0; i < 4; ++i) {
        copy(true, m_live, m_copy);
        SharedConnection shared;
        Statement counts = shared.open(m_copy)->prepareNative(
            "SELECT (SELECT count(*) FROM pcontapagar) - (SELECT count(*) FROM pcontareceber)");
        QVERIFY(counts.step());
        QCOMPARE(counts.integer(0), 0);
    }
    kill(writer);
    copy(true, m_live, m_live); // checks it
    copy(false, m_live, m_copy);
    QCOMPARE(markOf(m_live), u"nova 500;"_s);
    QCOMPARE(others(), QStringList());
}

void tst_backup::refusedBackupsChangeNothing()
{
    const QString text = file(u"texto.qorvex"_s), cut = file(u"cortado.qorvex"_s),
                  alien = file(u"alheio.qorvex"_s), second = file(u"outro-nome.qorvex"_s);
    QFile(text).open(QIODevice::WriteOnly);
    QVERIFY(QFile::copy(m_copy, cut) && QFile::resize(cut, QFileInfo(cut).size() / 2));
    Connection::create(alien, schema::password.toString())->executeNative("CREATE TABLE banco (x)");
    QCOMPARE(link(QFile::encodeName(m_live).constData(), QFile::encodeName(second).constData()), 0);
    const QByteArray before = contentsOf(m_live);

    const auto told = [this](const QString &chosen) {
        return failure([&] { copy(false, m_live, chosen); }).remove(m_folder->path() + u'/');
    };
    QCOMPARE(told(text), u"O arquivo do banco de dados \"texto.qorvex\" está vazio."_s);
    QVERIFY2(told(cut).contains(u"danificado"_s), qPrintable(told(cut)));
    QCOMPARE(told(alien), u"\"alheio.qorvex\" é um banco de dados, mas não tem as tabelas do Tavaro."_s);
    for (const QString &same : {m_live, second})
        QVERIFY2(
            told(same).endsWith(u"é o próprio arquivo em uso, e não um backup dele. Nada foi alterado."_s),
            qPrintable(told(same)));
    QVERIFY(!told(file(u"nenhum.qorvex"_s)).isEmpty());
    QCOMPARE(contentsOf(m_live), before);
    QCOMPARE(others().join(u' '), u"alheio.qorvex cortado.qorvex outro-nome.qorvex texto.qorvex"_s);
}

void tst_backup::whoHasTheOldFileOpenWritesNothingIntoIt()
{
    SharedConnection other;
    const std::shared_ptr<Connection> old = other.open(m_live);
    copy(false, m_live, m_copy);
    QVERIFY(failure([&] { Transaction late(*old); }).contains(u"trocado por outro"_s));
    QVERIFY(other.open(m_live)->serial() != old->serial());
    QCOMPARE(markOf(m_live), u"velha 500;"_s);
}

void tst_backup::journalOfDamagedFileIsNotPlayedIntoTheNewOne()
{
    // A process that dies while it writes leaves the pages as they were in a journal beside the file.
    QByteArray journal;
    {
        SharedConnection shared;
        const std::shared_ptr<Connection> connection = shared.open(m_live);
        connection->executeNative("PRAGMA cache_size=1; BEGIN; UPDATE cliente SET adicionais = 'y'");
        journal = contentsOf(m_live + u"-journal"_s);
        connection->executeNative("ROLLBACK");
    }
    QVERIFY(journal.size() > 1'000'000);
    QFile damaged(m_live);
    QVERIFY(damaged.open(QIODevice::WriteOnly) && damaged.write("no database") > 0);
    damaged.close();
    QFile left(m_live + u"-journal"_s);
    QVERIFY(left.open(QIODevice::WriteOnly) && left.write(journal) == journal.size());
    left.close();

    copy(false, m_live, m_copy);
    QCOMPARE(markOf(m_live), u"velha 500;"_s);
    QCOMPARE(others(), QStringList());
}

void tst_backup::killedAtAnyPointLeavesWholeFiles_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("backup") << u"--copiar"_s;
    QTest::newRow("restore") << u"--restaurar"_s;
}

void tst_backup::killedAtAnyPointLeavesWholeFiles()
{
    QFETCH(QString, what);
    const QString second = file(u"segunda.qorvex"_s);
    makeDatabase(second, u"segunda"_s);
    for (int round = 0; round < killings; ++round) {
        QProcess process;
        start(process, {what, m_live, m_copy, second});
        if (QTest::currentTestFailed())
            return;
        kill(process);
        if (what == u"--copiar") {
            QCOMPARE(markOf(m_live), u"nova 500;"_s);
            QCOMPARE(markOf(m_copy), u"nova 500;"_s);
        } else {
            const QString mark = markOf(m_live);
            QVERIFY2(mark == u"velha 500;" || mark == u"segunda 500;", qPrintable(mark));
        }
    }
    // The next one tidies up.
    copy(what == u"--copiar", m_live, m_copy);
    QStringList left = others();
    left.removeAll(u"segunda.qorvex"_s);
    left.removeAll(u"segunda.qorvex.novo"_s); // may be there until that file is written again
    QCOMPARE(left, QStringList());
}

void tst_backup::fullDiskLeavesWhatWasThere()
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    rlimit full = before;
    full.rlim_cur = 1024 * 1024;
    const QByteArray live = contentsOf(m_live), older = contentsOf(m_copy);
    QVERIFY(live.size() > 2 * 1024 * 1024);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &full), 0);
    const QString backedUp = failure([this] { copy(true, m_live, m_copy); });
    const QString restored = failure([this] { copy(false, m_live, m_copy); });
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
    QVERIFY2(backedUp.startsWith(u"o disco está cheio"_s), qPrintable(backedUp));
    QVERIFY2(restored.startsWith(u"o disco está cheio"_s), qPrintable(restored));
    QVERIFY(contentsOf(m_live) == live && contentsOf(m_copy) == older);
    QCOMPARE(others(), QStringList());
}

void tst_backup::factsOfTheDatabase()
{
    TestProgram program;
    programclock::set(QDateTime(QDate(2026, 11, 14), QTime(10, 0)));
    QCOMPARE(backup::facts().lastBackup, u"Nunca foi realizado"_s);
    QVERIFY(QFile::resize(program.databaseFile(), 1'572'864));
    backup::remember();
    const backup::Facts facts = backup::facts();
    QCOMPARE(facts.size, u"1,50 MegaBytes"_s);
    QCOMPARE(facts.lastBackup, u"14/11/2026 10:00"_s);
    QCOMPARE(facts.maintenance, u"Nunca foi realizado"_s);
}

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (const QString what = arguments.value(1);
        what == u"--copiar" || what == u"--restaurar" || what == u"--gravar")
        return work(what.mid(2), arguments.value(2), arguments.mid(3));
    tst_backup test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_backup.moc"
