#pragma once

#include "data/money.h"

/// Amounts and quantities as the user typed them. Text that is no number throws Error::Kind::Data, which
/// names the field.
Money typedAmount(const QString &field, const QString &text);
/// An empty field counts as zero.
Money typedAmountOrZero(const QString &field, const QString &text);
