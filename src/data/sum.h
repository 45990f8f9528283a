#pragma once

#include "data/decimal.h"

/// A sum that goes on where it leaves the range of Decimal: from there on it has no value, and says so where
/// it is shown.
class Sum
{
public:
    Sum() = default;
    Sum(Decimal first) : m_value(first) {}
    static Sum product(Decimal a, Decimal b);

    Sum &operator+=(const Sum &other);
    Sum &operator-=(const Sum &other);

    /// Two decimals, rounded half away from zero.
    Sum roundedToCents() const { return m_value ? Sum(m_value->roundedToCents()) : *this; }
    QString inReais() const { return m_value ? m_value->inReais() : tooLarge(); }
    QString grouped() const { return m_value ? m_value->grouped() : tooLarge(); }
    QString plain() const { return m_value ? m_value->plain() : tooLarge(); }

private:
    static QString tooLarge() { return QStringLiteral("valor grande demais"); }

    std::optional<Decimal> m_value = Decimal(); ///< nothing when it is out of range
};
