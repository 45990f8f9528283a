#pragma once

#include "data/decimal.h"

#include <QString>

/// What a screen's fields say, turned into what a table stores. `field` names the field in an error's text.
namespace formtext {

/// Amounts and quantities on either side of zero stay below this (a trillion). No business meets it, and
/// hundreds of rows may hold the most without their sum leaving the range of Decimal.
inline constexpr Decimal limit = Decimal::fromTenThousandths(10'000'000'000'000'000);
constexpr bool isWithinLimit(Decimal number)
{
    return number < limit && number > Decimal::fromTenThousandths(-limit.tenThousandths());
}

/// Free text never ends up as an empty column: the trimmed text and one blank.
QString freeText(const QString &text);
/// Throws Error::Kind::Data when the text is no amount, or one beyond the limit.
Money amount(const QString &field, const QString &text);
/// An empty field counts as zero.
Money amountOrZero(const QString &field, const QString &text);
/// The number that the text begins with ("12 un"); an empty field counts as zero. Points group thousands, and
/// one elsewhere throws Error::Kind::Data, as does a text that begins with no number.
Quantity quantity(const QString &field, const QString &text);
/// "yyyy/mm/dd". Throws Error::Kind::Data when the text is no date.
QString storedDate(const QString &field, const QString &text);

} // namespace formtext
