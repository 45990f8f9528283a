#include "data/decimal.h"

#include "data/error.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

__extension__ using Wide = __int128;

constexpr quint64 perUnit = 10000;
constexpr quint64 perCent = 100;

[[noreturn]] void outOfRange()
{
    throw Error(Error::Kind::Data, u"O valor é grande demais."_s);
}

Decimal narrowed(Wide units)
{
    if (units > std::numeric_limits<qint64>::max() || units < std::numeric_limits<qint64>::min())
        outOfRange();
    return Decimal::fromTenThousandths(qint64(units));
}

/// numerator / denominator, half to even.
Wide dividedHalfEven(Wide numerator, Wide denominator)
{
    if (denominator < 0) {
        numerator = -numerator;
        denominator = -denominator;
    }
    Wide quotient = numerator / denominator;
    const Wide remainder = numerator % denominator;
    const Wide twice = (remainder < 0 ? -remainder : remainder) * 2;
    if (twice > denominator || (twice == denominator && quotient % 2 != 0))
        quotient += numerator < 0 ? -1 : 1;
    return quotient;
}

quint64 magnitude(qint64 units)
{
    return units < 0 ? 0 - quint64(units) : quint64(units);
}

/// Gathers the digits of a number into ten-thousandths.
class Digits
{
public:
    void add(unsigned digit)
    {
        m_any = true;
        if (m_decimals == 4) {
            if (!m_pastLast && digit >= 5)
                m_overflow |= __builtin_add_overflow(m_units, quint64(1), &m_units);
            m_pastLast = true;
            return;
        }
        m_overflow |= __builtin_mul_overflow(m_units, quint64(10), &m_units);
        m_overflow |= __builtin_add_overflow(m_units, quint64(digit), &m_units);
        if (m_point)
            ++m_decimals;
    }
    void point() { m_point = true; }
    bool hasPoint() const { return m_point; }

    std::optional<Decimal> finish(bool negative)
    {
        for (; m_decimals < 4; ++m_decimals)
            m_overflow |= __builtin_mul_overflow(m_units, quint64(10), &m_units);
        const quint64 limit = quint64(std::numeric_limits<qint64>::max()) + (negative ? 1 : 0);
        if (!m_any || m_overflow || m_units > limit)
            return std::nullopt;
        return Decimal::fromTenThousandths(qint64(negative ? 0 - m_units : m_units));
    }

private:
    quint64 m_units = 0;
    int m_decimals = 0;
    bool m_point = false;
    bool m_any = false;
    bool m_pastLast = false;
    bool m_overflow = false;
};

/// Takes one character of UTF-16, or of the part of UTF-8 that amounts are written in, off the front of
/// `text`.
char32_t take(std::u16string_view &text)
{
    const char32_t taken = text.front();
    text.remove_prefix(1);
    return taken;
}

char32_t take(std::string_view &text)
{
    const auto byte = [&text](std::size_t i) { return i < text.size() ? quint8(text[i]) : 0U; };
    const std::size_t length = byte(0) < 0x80 ? 1 : byte(0) < 0xE0 ? 2 : 3;
    char32_t taken = byte(0);
    if (length == 2)
        taken = ((byte(0) & 0x1F) << 6) | (byte(1) & 0x3F);
    else if (length == 3)
        taken = ((byte(0) & 0x0F) << 12) | ((byte(1) & 0x3F) << 6) | (byte(2) & 0x3F);
    text.remove_prefix(std::min(length, text.size()));
    return taken;
}

bool isBlank(char32_t c)
{
    return c == U' ' || (c >= U'\t' && c <= U'\r') || c == U'\u00A0' || c == U'\u202F';
}

bool isDigit(char32_t c)
{
    return c >= U'0' && c <= U'9';
}

/// A blank or a currency symbol; the "R" of "R$" takes its "$" along.
template <typename View>
bool passedOver(char32_t c, View &rest)
{
    if (c == U'R' && !rest.empty() && rest.front() == '$') {
        rest.remove_prefix(1);
        return true;
    }
    return isBlank(c) || c == U'$' || c == U'€' || c == U'¥' || c == U'£';
}

enum class Rest { Refused, Ignored }; ///< what follows the number

template <typename View>
std::optional<Decimal> parseBrazilian(View text, Rest rest)
{
    enum { Before, Inside, After } place = Before;
    Digits digits;
    bool sign = false;
    bool negative = false;
    while (!text.empty()) {
        const char32_t c = take(text);
        if (place != After && isDigit(c)) {
            place = Inside;
            digits.add(unsigned(c - U'0'));
        } else if (place != After && c == U',' && !digits.hasPoint()) {
            place = Inside;
            digits.point();
        } else if (place == Inside && c == U'.' && !digits.hasPoint()) {
            continue;
        } else if (place == Before && (c == U'-' || c == U'+') && !sign) {
            sign = true;
            negative = c == U'-';
        } else if (passedOver(c, text)) {
            place = place == Before ? Before : After;
        } else if (rest == Rest::Refused) {
            return std::nullopt;
        } else {
            break;
        }
    }
    return digits.finish(negative);
}

/// A number written backwards into a small buffer.
class Writer
{
public:
    void put(char c) { m_buffer[--m_begin] = c; }
    void putDigits(quint64 number, int count)
    {
        for (; count > 0; --count, number /= 10)
            put(char('0' + number % 10));
    }
    void putWhole(quint64 number, bool grouped)
    {
        int digits = 0;
        do {
            if (grouped && digits > 0 && digits % 3 == 0)
                put('.');
            put(char('0' + number % 10));
            number /= 10;
            ++digits;
        } while (number > 0);
    }
    std::string_view text() const { return {m_buffer.data() + m_begin, m_buffer.size() - m_begin}; }
    QString string() const { return QString::fromLatin1(text().data(), qsizetype(text().size())); }

private:
    std::array<char, 40> m_buffer{};
    std::size_t m_begin = m_buffer.size();
};

Writer writeGrouped(Decimal money)
{
    const quint64 cents = (magnitude(money.tenThousandths()) + perCent / 2) / perCent;
    Writer writer;
    writer.putDigits(cents % 100, 2);
    writer.put(',');
    writer.putWhole(cents / 100, true);
    if (money.isNegative() && cents != 0)
        writer.put('-');
    return writer;
}

Writer writePlain(Decimal money, char point)
{
    const quint64 units = magnitude(money.tenThousandths());
    Writer writer;
    quint64 decimals = units % perUnit;
    int places = decimals == 0 ? 0 : 4;
    for (; places > 0 && decimals % 10 == 0; --places)
        decimals /= 10;
    if (places > 0) {
        writer.putDigits(decimals, places);
        writer.put(point);
    }
    writer.putWhole(units / perUnit, false);
    if (money.isNegative())
        writer.put('-');
    return writer;
}

} // namespace

Decimal Decimal::fromInteger(qint64 whole)
{
    return narrowed(Wide(whole) * Wide(perUnit));
}

std::optional<Decimal> Decimal::parse(QStringView text)
{
    return parseBrazilian(std::u16string_view(text.utf16(), std::size_t(text.size())), Rest::Refused);
}

std::optional<Decimal> Decimal::parse(std::string_view utf8)
{
    return parseBrazilian(utf8, Rest::Refused);
}

Decimal Decimal::stored(QStringView text)
{
    return parseBrazilian(std::u16string_view(text.utf16(), std::size_t(text.size())), Rest::Ignored)
        .value_or(Decimal());
}

Decimal Decimal::stored(std::string_view utf8)
{
    return parseBrazilian(utf8, Rest::Ignored).value_or(Decimal());
}

Decimal Decimal::operator+(Decimal other) const
{
    qint64 sum = 0;
    if (__builtin_add_overflow(m_units, other.m_units, &sum))
        outOfRange();
    return Decimal(sum);
}

Decimal Decimal::operator-(Decimal other) const
{
    qint64 difference = 0;
    if (__builtin_sub_overflow(m_units, other.m_units, &difference))
        outOfRange();
    return Decimal(difference);
}

Decimal Decimal::times(Decimal factor) const
{
    return narrowed(dividedHalfEven(Wide(m_units) * factor.m_units, Wide(perUnit)));
}

std::optional<Decimal> Decimal::dividedBy(Decimal divisor) const
{
    if (divisor.isZero())
        return std::nullopt;
    return narrowed(dividedHalfEven(Wide(m_units) * Wide(perUnit), divisor.m_units));
}

Decimal Decimal::roundedToCents() const
{
    const quint64 rounded = (magnitude(m_units) + perCent / 2) / perCent * perCent;
    return Decimal(qint64(isNegative() ? 0 - rounded : rounded));
}

QString Decimal::grouped() const
{
    return writeGrouped(*this).string();
}

void Decimal::appendGrouped(std::string &out) const
{
    out += writeGrouped(*this).text();
}

QString Decimal::inReais() const
{
    return u"R$ "_s + grouped();
}

QString Decimal::plain() const
{
    return writePlain(*this, ',').string();
}

QString Decimal::sqlNumber() const
{
    return writePlain(*this, '.').string();
}
