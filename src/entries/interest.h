#pragma once

#include "data/decimal.h"

#include <QDate>
#include <QString>

#include <vector>

/// Interest and discount on amounts. Every function throws Error::Kind::Data, with the text that the user
/// sees, when a result leaves the range of Money. Results are exact but for one rounding, half to even, at
/// the fourth decimal.
namespace interest {

enum class Kind { Interest, Discount };

struct Charged
{
    Money amount; ///< of the interest or the discount
    Money total;
};

/// `percent` of `total`, added to it or taken off it.
Charged charge(Kind kind, Money total, Decimal percent);

/// What is spread over installments.
struct Plan
{
    Money amount;
    Decimal monthlyRate; ///< percent
    int count = 0;
    int days = 0; ///< between installments
    QDate start;  ///< the first falls `days` after it
};

enum class Charging {
    Once,           ///< the monthly rate on the whole amount
    EachInstallment ///< the monthly rate for every installment, never on interest
};

struct Spread
{
    Charged charged;
    Money installment; ///< of each; zero when there is none
    std::vector<QDate> dates;
};

Spread spread(const Plan &plan, Charging charging);

/// The number that a field's text begins with; no number counts as zero. Throws when it is out of range.
Decimal number(const QString &text);
/// number() without its decimals.
int wholeNumber(const QString &text);

} // namespace interest
