#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

#include <string>
#include <string_view>

/// Dates as the program stores ("yyyy/mm/dd") and shows ("dd/mm/yyyy") them.
namespace dates {

/// The last year that the stored forms of a date have room for.
inline constexpr int lastYear = 9999;

/// "2026/12/10"; empty for no date.
QString stored(QDate date);
/// "10/12/2026"; empty for no date.
QString shown(QDate date);
/// Reads "yyyy/mm/dd" and "dd/mm/yyyy" (one or two digits for day and month, "-" or "." also separate);
/// anything else, blank included, is no date.
QDate read(QStringView text);
/// Stored text as the user sees it; text that is no date is shown as it stands.
QString shownFromStored(QStringView text);
/// shownFromStored() over UTF-8, appended to `out`; for lists of many rows.
void appendShown(std::string_view stored, std::string &out);
/// "domingo, 22 de novembro de 2026".
QString longDate(QDate date);
/// "14:05:09".
QString longTime(QTime time);
/// A date built from parts that may be out of range: month 0 is December of the year before, day 31 of a
/// 30-day month is the 1st of the next month.
QDate rolledOver(int year, int month, int day);

} // namespace dates
