#pragma once

#include "random.h"

#include <QDate>

#include <vector>

/// Spreads a number of rows over the days of a shop: more before Christmas and Mother's Day than in January,
/// fewer on Saturdays, hardly any on Sundays, and only plans in the future.
class DemoDays
{
public:
    /// From three years before `today` to some weeks after it.
    explicit DemoDays(QDate today);

    /// The day of row `index` of `count`; days never go back as the index grows.
    QDate day(qint64 index, qint64 count, Random &random) const;
    /// How many of `count` rows certainly have a day up to today.
    qint64 rowsUpToToday(qint64 count) const;

private:
    QDate m_first, m_today;
    std::vector<qint64> m_cumulated; ///< weight of all days up to this one
};
