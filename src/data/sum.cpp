#include "data/sum.h"

#include "data/error.h"

namespace {

template <typename Work>
std::optional<Decimal> inRange(Work work)
{
    try {
        return work();
    } catch (const Error &) {
        return std::nullopt;
    }
}

} // namespace

Sum Sum::product(Decimal a, Decimal b)
{
    Sum result;
    result.m_value = inRange([&] { return a.times(b); });
    return result;
}

Sum &Sum::operator+=(const Sum &other)
{
    if (m_value)
        m_value = other.m_value ? inRange([&] { return *m_value + *other.m_value; }) : std::nullopt;
    return *this;
}

Sum &Sum::operator-=(const Sum &other)
{
    if (m_value)
        m_value = other.m_value ? inRange([&] { return *m_value - *other.m_value; }) : std::nullopt;
    return *this;
}
