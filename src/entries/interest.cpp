#include "entries/interest.h"

#include "data/dates.h"
#include "data/error.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

__extension__ using Wide = __int128;

constexpr Wide unit = 10'000;        ///< ten-thousandths in one
constexpr Wide hundred = 100 * unit; ///< percent, in ten-thousandths
constexpr int mostInstallments = 9'999;

Error tooHigh()
{
    return {Error::Kind::Data, u"Valores muito altos para serem calculados!"_s};
}

/// The quotient, rounded half to even; `divisor` is positive.
Money rounded(Wide dividend, Wide divisor)
{
    Wide quotient = dividend / divisor;
    const Wide rest = dividend % divisor;
    const Wide twice = 2 * (rest < 0 ? -rest : rest);
    if (twice > divisor || (twice == divisor && quotient % 2 != 0))
        quotient += dividend < 0 ? -1 : 1;
    if (quotient > std::numeric_limits<qint64>::max() || quotient < std::numeric_limits<qint64>::min())
        throw tooHigh();
    return Money::fromTenThousandths(qint64(quotient));
}

Wide product(Wide a, Wide b)
{
    Wide result = 0;
    if (__builtin_mul_overflow(a, b, &result))
        throw tooHigh();
    return result;
}

Wide units(Decimal value)
{
    return value.tenThousandths();
}

} // namespace

namespace interest {

Charged charge(Kind kind, Money total, Decimal percent)
{
    const Money amount = rounded(product(units(total), units(percent)), hundred);
    const Wide sum = kind == Kind::Interest ? units(total) + units(amount) : units(total) - units(amount);
    return {amount, rounded(sum, 1)};
}

Spread spread(const Plan &plan, Charging charging)
{
    const int periods = charging == Charging::Once ? 1 : std::max(plan.count, 0);
    const Wide rate = product(units(plan.monthlyRate), periods);
    const Wide charged = product(units(plan.amount), rate);
    const Wide total = product(units(plan.amount), hundred + rate);
    Spread result{{rounded(charged, hundred), rounded(total, hundred)}, {}, {}};
    if (plan.count <= 0)
        return result;
    const qint64 lastDay = qint64(plan.count) * plan.days;
    if (plan.count > mostInstallments || plan.start.addDays(lastDay).year() > dates::lastYear)
        throw tooHigh();
    result.installment = rounded(total, product(hundred, plan.count));
    for (int i = 1; i <= plan.count; ++i)
        result.dates.push_back(plan.start.addDays(qint64(i) * plan.days));
    return result;
}

Decimal number(const QString &text)
{
    const bool hasDigit = std::ranges::any_of(text, [](QChar c) { return c.isDigit(); });
    if (!Decimal::parse(text) && hasDigit &&
        std::ranges::all_of(text, [](QChar c) { return c.isDigit() || QStringView(u"R$.,- ").contains(c); }))
        throw tooHigh(); // a number, but one out of range
    return Decimal::stored(QStringView(text));
}

int wholeNumber(const QString &text)
{
    const qint64 whole = number(text).tenThousandths() / qint64(unit);
    if (whole > std::numeric_limits<int>::max() || whole < std::numeric_limits<int>::min())
        throw tooHigh();
    return int(whole);
}

} // namespace interest
