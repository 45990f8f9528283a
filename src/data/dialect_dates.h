#pragma once

#include <QString>
#include <QStringView>

#include <optional>

/// Conditions on date columns. A stored date is "yyyy/mm/dd" or, once an entry is settled, "dd/mm/yyyy"; a
/// condition and an order go by the date that the text means. Texts that are no date, blank included, mean
/// none: null to the store, which comes first and fulfils no condition.
namespace dialect {

/// Of any table: `data`, `vencimento`, `nascimento`. `folded` is the bare name in lower case.
bool isDateColumn(QStringView folded);

/// The date that a column means, as "yyyy/mm/dd" or null, in built-in functions only, so that any shell of
/// the store can keep an index on it. The brackets and the letter case of an unqualified name make no
/// difference.
QString dateExpression(QStringView column);

/// The text to compare with dateExpression() for a literal: a date in either form, or the beginning of one
/// with the year first ("2026", "2026/1"). Nothing for any other text.
std::optional<QString> dateOperand(const QString &literal);

/// `column like 'pattern'` as a condition on the date: an equality or a range, which an index serves, where
/// the pattern allows it. Nothing for a pattern that is not made of digits, slashes and wildcards.
std::optional<QString> dateLike(QStringView column, const QString &pattern, bool negated);

} // namespace dialect
