// What keeps the business safe and its owner informed: backup, login, the alert of the day.

#include "agenda/duealert.h"
#include "data.h"
#include "data/clock.h"
#include "data/users.h"
#include "measures.h"
#include "process.h"
#include "settings/backup.h"
#include "settings/database.h"
#include "table.h"
#include "widgets/threadwork.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

/// As the menu command does it. Returns the longest time, in seconds, in which the window did not answer.
double backUp(const QString &target)
{
    QWidget window;
    QElapsedTimer sinceLast;
    qint64 longest = 0;
    QTimer ticks;
    QObject::connect(&ticks, &QTimer::timeout, &window,
                     [&] { longest = std::max(longest, sinceLast.restart()); });
    sinceLast.start();
    ticks.start(1);
    if (!threadwork::run(&window, {}, {}, [&](Progress &progress) { backup::make(target, progress); }))
        std::exit(1);
    return double(std::max(longest, sinceLast.elapsed())) / 1000;
}

void copyAndSync(const QString &from, const QString &to)
{
    if (QProcess::execute(u"sh"_s, {u"-c"_s, u"cp \"$0\" \"$1\" && sync \"$1\""_s, from, to}) != 0)
        std::exit(1);
}

void measureBackup(Table &table)
{
    const QString folder = benchdata::grown(1'000'000);
    benchdata::use(folder);
    const QString live = benchdata::databaseIn(folder);
    double silent = 0;
    const Timing timing = inTurn(
        7, [&] { silent = std::max(silent, backUp(folder + u"/backup.qorvex"_s)); },
        [&] { copyAndSync(live, folder + u"/cp.qorvex"_s); });
    for (const QString &copy : {u"/backup.qorvex"_s, u"/cp.qorvex"_s})
        QFile::remove(folder + copy);
    table.add(u"Backup of %1 MiB, checked and on the disk, against cp and sync"_s.arg(QFileInfo(live).size() /
                                                                                      1024 / 1024),
              timing, 1.5);
    table.add(u"Longest time in which the window does not answer during it, s"_s,
              QString::number(silent, 'f', 2), u"-"_s, silent, 0.1);
}

void measureLogin(Table &table)
{
    benchdata::use(benchdata::large());
    const Timing timing = inTurn(
        21,
        [] {
            if (users::isLoginRequired(*openDatabase()))
                (void)users::check(*openDatabase(), u"ninguém"_s, u"nada"_s);
        },
        [] {
            closeDatabase();
            openDatabase();
        });
    table.add(u"What a login adds to the start, against one key derivation"_s, timing, 1);
}

void measureAlert(Table &table)
{
    const QString folder = benchdata::large();
    benchdata::use(folder);
    const QDate today = programclock::today();
    const Timing timing = inTurn(
        11,
        [&] {
            for (const Side *side : {&payable(), &receivable()})
                duealert::read(*openDatabase(), *side, today);
        },
        [&] { runAlone(u"--start"_s, folder); });
    table.add(u"Alert of what is due today among 200,000 entries, against the start"_s, timing, 0.05);
}

} // namespace

void measureGuarding(Table &table)
{
    measureBackup(table);
    measureLogin(table);
    measureAlert(table);
}
