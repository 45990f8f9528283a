#include "process.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include <cstdio>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

/// Of the clock that all processes share.
qint64 nowNanoseconds()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return qint64(now.tv_sec) * 1'000'000'000 + now.tv_nsec;
}

/// The most memory that this program ever had; what the kernel reports for a child begins with that of its
/// parent.
qint64 peakKiB()
{
    QFile status(u"/proc/self/status"_s);
    if (status.open(QIODevice::ReadOnly))
        for (const QByteArray &line : status.readAll().split('\n'))
            if (line.startsWith("VmHWM:"))
                return line.mid(6).trimmed().split(' ').first().toLongLong();
    return 0;
}

} // namespace

Finished runAlone(const QString &task, const QString &folder)
{
    QProcess process;
    const qint64 begin = nowNanoseconds();
    process.start(QCoreApplication::applicationFilePath(), {task, folder});
    process.waitForFinished(-1);
    const QList<QByteArray> told = process.readAllStandardOutput().trimmed().split(' ');
    if (process.exitCode() != 0 || told.size() != 2)
        qFatal("The task %s did not come to its end", qPrintable(task));
    return {double(told[0].toLongLong() - begin) / 1e9, double(told[1].toLongLong()) / 1024};
}

void tellFinished()
{
    const qint64 end = nowNanoseconds();
    std::printf("%lld %lld\n", static_cast<long long>(end), static_cast<long long>(peakKiB()));
}
