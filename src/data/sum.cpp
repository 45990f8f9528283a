#include "data/sum.h"

#include <limits>

using namespace Qt::StringLiterals;

Sum Sum::times(Decimal factor) const
{
    constexpr Wide perUnit = 10'000;
    Sum result;
    if (__builtin_mul_overflow(m_units, Wide(factor.tenThousandths()), &result.m_units)) {
        constexpr Wide farOut = Wide(1) << 100;
        result.m_units = (m_units < 0) == factor.isNegative() ? farOut : -farOut;
        return result;
    }
    const Wide remainder = result.m_units % perUnit;
    result.m_units /= perUnit;
    const Wide twice = 2 * (remainder < 0 ? -remainder : remainder);
    if (twice > perUnit || (twice == perUnit && result.m_units % 2 != 0))
        result.m_units += remainder < 0 ? -1 : 1;
    return result;
}

Sum Sum::roundedToCents() const
{
    constexpr Wide perCent = 100;
    Sum result;
    result.m_units = (m_units + (m_units < 0 ? -perCent : perCent) / 2) / perCent * perCent;
    return result;
}

std::optional<Decimal> Sum::value() const
{
    if (m_units > std::numeric_limits<qint64>::max() || m_units < std::numeric_limits<qint64>::min())
        return std::nullopt;
    return Decimal::fromTenThousandths(qint64(m_units));
}

QString Sum::text(QString (Decimal::*render)() const) const
{
    const std::optional<Decimal> inRange = value();
    return inRange ? ((*inRange).*render)() : u"valor grande demais"_s;
}
