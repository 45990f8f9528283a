// Ratios between the program and the bare store, in one table: tavaro-bench [GROUP]

#include "data/clock.h"
#include "measures.h"
#include "process.h"
#include "table.h"

#include <QApplication>

#include <cstdio>
#include <map>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "default.warning=false"); // what the offscreen platform cannot do
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    QApplication app(argc, argv);
    programclock::set(QDateTime(QDate(2026, 6, 30), QTime(9, 0)));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments[1].startsWith(u"--"_s)) {
        const std::map<QString, void (*)(const QString &)> tasks{
            {u"--start"_s, startOnly}, {u"--startall"_s, startCompletely}, {u"--print"_s, printOnly}};
        tasks.at(arguments[1])(arguments[2]);
        tellFinished();
        return 0;
    }

    const std::pair<QString, void (*)(Table &)> groups[] = {
        {u"lists"_s, measureLists},       {u"accounts"_s, measureAccounts}, {u"centres"_s, measureCentres},
        {u"opening"_s, measureOpening},   {u"start"_s, measureStart},       {u"window"_s, measureWindow},
        {u"saving"_s, measureSaving},     {u"reports"_s, measureReports},   {u"growth"_s, measureGrowth},
        {u"analysis"_s, measureAnalysis}, {u"guarding"_s, measureGuarding},
    };
    Table table;
    bool found = false;
    for (const auto &[name, measure] : groups) {
        if (arguments.size() > 1 && !arguments.contains(name))
            continue;
        measure(table);
        found = true;
    }
    if (!found) {
        std::fputs(
            "usage: tavaro-bench "
            "[lists|accounts|centres|opening|start|window|saving|reports|growth|analysis|guarding]...\n",
            stderr);
        return 2;
    }
    return table.allWithinBounds() ? 0 : 1;
}
