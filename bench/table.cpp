#include "table.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double seconds(const std::function<void()> &work)
{
    QElapsedTimer clock;
    clock.start();
    work();
    return double(clock.nsecsElapsed()) / 1e9;
}

Timing inTurn(int times, const std::function<void()> &ours, const std::function<void()> &floor)
{
    ours();
    floor();
    std::vector<double> ofOurs, ofFloor;
    for (int i = 0; i < times; ++i) {
        ofOurs.push_back(seconds(ours));
        ofFloor.push_back(seconds(floor));
    }
    return {median(std::move(ofOurs)), median(std::move(ofFloor))};
}

void Table::add(const QString &task, const QString &ours, const QString &floor, double value, double bound)
{
    if (!m_begun)
        std::puts("| Task | Tavaro | Floor | Value | At most | |\n|---|--:|--:|--:|--:|---|");
    m_begun = true;
    const bool ok = value <= bound;
    m_ok = m_ok && ok;
    const QString shown = QString::number(value, 'f', value < 0.1 ? 4 : value < 100 ? 2 : 0);
    std::printf("| %s | %s | %s | %s | %g | %s |\n", qUtf8Printable(task), qUtf8Printable(ours),
                qUtf8Printable(floor), qUtf8Printable(shown), bound, ok ? "ok" : "ABOVE");
    std::fflush(stdout);
}

void Table::add(const QString &task, const Timing &timing, double bound)
{
    add(task, timeText(timing.ours), timeText(timing.floor), timing.ratio(), bound);
}

QString timeText(double seconds)
{
    if (seconds < 1e-3)
        return QString::number(seconds * 1e6, 'f', 1) + u" µs"_s;
    return QString::number(seconds * 1e3, 'f', seconds < 0.1 ? 2 : 0) + u" ms"_s;
}
