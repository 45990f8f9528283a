#pragma once

#include "data/decimal.h"

#include <QString>

/// What a screen's fields say, turned into what a table stores. `field` names the field in an error's text.
namespace formtext {

/// Free text never ends up as an empty column: the trimmed text and one blank.
QString freeText(const QString &text);
/// Throws Error::Kind::Data when the text is no amount.
Money amount(const QString &field, const QString &text);
/// An empty field counts as zero.
Money amountOrZero(const QString &field, const QString &text);
/// "yyyy/mm/dd". Throws Error::Kind::Data when the text is no date.
QString storedDate(const QString &field, const QString &text);

} // namespace formtext
