#include "demodays.h"

#include <algorithm>
#include <array>

namespace {

constexpr int monthsBack = 36;
constexpr int daysAhead = 75;
constexpr std::array<int, 12> monthWeights{70, 75, 90, 95, 130, 100, 90, 95, 95, 105, 125, 185};

qint64 weightOf(QDate day, QDate today)
{
    qint64 weight = monthWeights[std::size_t(day.month() - 1)];
    if (day.dayOfWeek() == Qt::Saturday)
        weight = weight * 60 / 100;
    else if (day.dayOfWeek() == Qt::Sunday)
        weight = weight * 4 / 100;
    return day > today ? weight * 30 / 100 : weight;
}

} // namespace

DemoDays::DemoDays(QDate today) : m_first(today.addMonths(-monthsBack)), m_today(today)
{
    qint64 sum = 0;
    for (QDate day = m_first; day <= today.addDays(daysAhead); day = day.addDays(1))
        m_cumulated.push_back(sum += weightOf(day, today));
}

QDate DemoDays::day(qint64 index, qint64 count, Random &random) const
{
    // Row i falls somewhere in the i-th of `count` equal slices of the weight.
    const qint64 total = m_cumulated.back();
    const qint64 from = qint64(__int128(total) * index / count);
    const qint64 to = std::max(from, qint64(__int128(total) * (index + 1) / count) - 1);
    const auto found = std::upper_bound(m_cumulated.begin(), m_cumulated.end(), random.between(from, to));
    return m_first.addDays(found - m_cumulated.begin());
}

qint64 DemoDays::rowsUpToToday(qint64 count) const
{
    return qint64(__int128(m_cumulated[std::size_t(m_first.daysTo(m_today))]) * count / m_cumulated.back());
}
