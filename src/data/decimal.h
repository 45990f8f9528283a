#pragma once

#include <QString>
#include <QStringView>

#include <compare>
#include <optional>
#include <string>
#include <string_view>

/// An exact decimal with four places, kept as a 64-bit count of ten-thousandths. Range: about ±922 trillion;
/// arithmetic that leaves the range throws Error::Kind::Data.
class Decimal
{
public:
    constexpr Decimal() = default;
    static constexpr Decimal fromTenThousandths(qint64 units) { return Decimal(units); }
    static Decimal fromInteger(qint64 whole);

    /// Reads Brazilian text: "R$ 1.234,56", "-0,5", "1500". Currency symbols and blanks around the number are
    /// passed over, "." groups digits and is ignored, "," starts the decimals; digits past the fourth decimal
    /// round half away from zero. No number, or one out of range, gives nothing.
    static std::optional<Decimal> parse(QStringView text);
    static std::optional<Decimal> parse(std::string_view utf8);
    /// As parse(), for text that a table holds: it counts as the number that it begins with ("12 un" is 12),
    /// and as zero when it begins with none.
    static Decimal stored(std::string_view utf8);
    static Decimal stored(QStringView text);

    constexpr qint64 tenThousandths() const { return m_units; }
    constexpr bool isZero() const { return m_units == 0; }
    constexpr bool isNegative() const { return m_units < 0; }

    Decimal operator+(Decimal other) const;
    Decimal operator-(Decimal other) const;
    Decimal operator-() const { return Decimal() - *this; }
    Decimal &operator+=(Decimal other) { return *this = *this + other; }
    Decimal &operator-=(Decimal other) { return *this = *this - other; }
    /// The product, rounded half to even at the fourth decimal.
    Decimal times(Decimal factor) const;
    /// The quotient, rounded half to even at the fourth decimal; nothing when the divisor is zero.
    std::optional<Decimal> dividedBy(Decimal divisor) const;
    /// Two decimals, rounded half away from zero: what the pattern "##,##0.00" shows.
    Decimal roundedToCents() const;

    constexpr auto operator<=>(const Decimal &) const = default; // NOLINT(modernize-use-nullptr)

    /// "1.234,56": the patterns "##,##0.00" and "#,##0.00", which render alike.
    QString grouped() const;
    /// grouped() in UTF-8, appended to `out`; for lists of many rows.
    void appendGrouped(std::string &out) const;
    /// "R$ 1.234,56".
    QString inReais() const;
    /// "1500" or "12,5": no grouping, only the decimals there are.
    QString plain() const;
    /// "1500" or "12.5": a number inside an SQL text.
    QString sqlNumber() const;

private:
    explicit constexpr Decimal(qint64 units) : m_units(units) {}

    qint64 m_units = 0;
};

/// An amount of money.
using Money = Decimal;
/// A number of goods; four decimals serve goods sold by weight.
using Quantity = Decimal;
