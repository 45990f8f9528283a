// From the start of a process to a window that shows its lists and answers.

#include "app/frmprincipal.h"
#include "app/icons.h"
#include "bank/movementlist.h"
#include "data.h"
#include "data/clock.h"
#include "data/dialect.h"
#include "entries/entryfilter.h"
#include "floor.h"
#include "measures.h"
#include "table.h"

#include <QApplication>
#include <QFile>
#include <QProcess>

#include <cstdio>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

qint64 nowNanoseconds()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return qint64(now.tv_sec) * 1'000'000'000 + now.tv_nsec;
}

/// Of this program alone: what the kernel reports for a child begins with the memory of its parent.
qint64 peakKiB()
{
    QFile status(u"/proc/self/status"_s);
    if (status.open(QIODevice::ReadOnly))
        for (const QByteArray &line : status.readAll().split('\n'))
            if (line.startsWith("VmHWM:"))
                return line.mid(6).trimmed().split(' ').first().toLongLong();
    return 0;
}

struct Start
{
    double seconds;
    double mebibytes;
};

Start startProcess(const QString &folder)
{
    QProcess process;
    const qint64 begin = nowNanoseconds();
    process.start(QCoreApplication::applicationFilePath(), {u"--start"_s, folder});
    process.waitForFinished(-1);
    const QList<QByteArray> answer = process.readAllStandardOutput().trimmed().split(' ');
    if (process.exitCode() != 0 || answer.size() != 2)
        qFatal("The start did not come to its end");
    return {double(answer[0].toLongLong() - begin) / 1e9, double(answer[1].toLongLong()) / 1024};
}

/// The three lists as the main window asks for them, and the balances.
void readAll(Floor &floor)
{
    const QDate today = programclock::today();
    const QString queries[] = {entryfilter::query(payable(), {}, today),
                               entryfilter::query(receivable(), {}, today), movementlist::query({}, today)};
    for (const QString &query : queries)
        floor.readTexts(dialect::translate(query).sql.toUtf8());
    floor.settledSums();
}

} // namespace

void measureStart(Table &table)
{
    const QString large = benchdata::large(), empty = benchdata::empty();
    std::vector<double> fullTime, emptyTime, floorTime, fullMemory, emptyMemory;
    for (int i = 0; i < 9; ++i) {
        const Start ofFull = startProcess(large);
        const Start ofEmpty = startProcess(empty);
        Floor floor(benchdata::databaseIn(large));
        if (i == 0) // the first reads the files from the disk
            continue;
        fullTime.push_back(ofFull.seconds);
        fullMemory.push_back(ofFull.mebibytes);
        emptyTime.push_back(ofEmpty.seconds);
        emptyMemory.push_back(ofEmpty.mebibytes);
        floorTime.push_back(seconds([&floor] { readAll(floor); }));
    }
    const Timing more{median(fullTime) - median(emptyTime), median(floorTime)};
    table.add(u"Start with 220,000 rows, beyond the start with none"_s, more, 2);
    const double before = median(emptyMemory), peak = median(fullMemory);
    table.add(u"Peak memory of that start over the empty one, MiB"_s, QString::number(peak, 'f', 0),
              QString::number(before, 'f', 0), peak - before, 100);
}

int startOnly(const QString &folder)
{
    benchdata::use(folder);
    icons::choose();
    frmPrincipal window;
    window.show();
    window.start();
    bool answered = false;
    QMetaObject::invokeMethod(
        qApp, [&answered] { answered = true; }, Qt::QueuedConnection);
    while (!answered)
        QCoreApplication::processEvents();
    window.repaint();
    const qint64 end = nowNanoseconds();
    std::printf("%lld %lld\n", static_cast<long long>(end), static_cast<long long>(peakKiB()));
    return 0;
}
