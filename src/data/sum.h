#pragma once

#include "data/decimal.h"

#include <QString>

#include <optional>

/// A running sum of amounts or quantities that never fails: it has room for every row that a table can hold.
/// What came in can be taken out again, exactly. A sum beyond the range of Decimal is shown as too large.
class Sum
{
public:
    Sum() = default;
    Sum(Decimal value) : m_units(value.tenThousandths()) {}

    Sum &operator+=(Sum other)
    {
        m_units += other.m_units;
        return *this;
    }
    Sum &operator-=(Sum other)
    {
        m_units -= other.m_units;
        return *this;
    }
    friend Sum operator+(Sum a, Sum b) { return a += b; }
    friend Sum operator-(Sum a, Sum b) { return a -= b; }
    bool operator==(const Sum &) const = default;

    /// The product, rounded half to even at the fourth decimal; far out of range where it would be too large.
    Sum times(Decimal factor) const;

    /// Two decimals, rounded half away from zero.
    Sum roundedToCents() const;

    /// Nothing when it is out of range.
    std::optional<Decimal> value() const;
    /// As the functions of Decimal of these names; "valor grande demais" when it is out of range.
    QString grouped() const { return text(&Decimal::grouped); }
    QString inReais() const { return text(&Decimal::inReais); }
    QString plain() const { return text(&Decimal::plain); }

private:
    QString text(QString (Decimal::*render)() const) const;

    __extension__ using Wide = __int128;
    Wide m_units = 0;
};
