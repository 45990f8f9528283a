#include "analysis/chartdata.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 unitsInCent = 100;
constexpr qint64 unitsInReal = 100 * unitsInCent;
constexpr qint64 wantedSteps = 6;
constexpr qint64 roomParts = 12; ///< beyond a bar, for its value: a twelfth of it
/// Where bars end, so that the steps beyond them are in range.
constexpr qint64 mostUnits = std::numeric_limits<qint64>::max() / 4;

/// The smallest of 1, 2, 2.5 and 5 times a power of ten that is at least `units`, and a cent.
qint64 roundStep(qint64 units)
{
    for (qint64 power = unitsInCent;; power *= 10)
        for (const qint64 tenths : {10, 20, 25, 50})
            if (const qint64 step = power / 10 * tenths; step >= units)
                return step;
}

/// The multiple of `step` at or beyond `units` and the room for its value, away from zero.
qint64 outwards(qint64 units, qint64 step)
{
    const qint64 end = units + units / roomParts;
    const qint64 steps = end / step;
    return (steps * step == end ? steps : steps + (end < 0 ? -1 : 1)) * step;
}

} // namespace

namespace chartdata {

Money clamped(Sum sum)
{
    constexpr Money most = Money::fromTenThousandths(mostUnits),
                    least = Money::fromTenThousandths(-mostUnits);
    if (const std::optional<Money> money = sum.value())
        return std::clamp(*money, least, most);
    while (!sum.value()) // smaller and smaller, with the same sign
        sum = sum.times(Money::fromTenThousandths(1));
    return sum.value()->isNegative() ? least : most;
}

std::vector<Money> ticks(const ChartData &chart)
{
    qint64 lowest = 0, highest = 0;
    for (const ChartSeries &series : chart.series)
        for (const Sum &value : series.values) {
            lowest = std::min(lowest, clamped(value).tenThousandths());
            highest = std::max(highest, clamped(value).tenThousandths());
        }
    if (lowest == highest)
        highest = unitsInReal;
    const qint64 step = roundStep(highest / wantedSteps - lowest / wantedSteps);
    const qint64 last = outwards(highest, step);
    std::vector<Money> all;
    for (qint64 at = outwards(lowest, step); at <= last; at += step)
        all.push_back(Money::fromTenThousandths(at));
    return all;
}

QString tickText(Money tick)
{
    QString text = tick.inReais();
    if (text.endsWith(u",00"))
        text.chop(3);
    return text;
}

} // namespace chartdata
