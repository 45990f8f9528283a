#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

#include <utility>

/// The period choices of the lists' filter boxes and the date texts that they select.
namespace period {

enum class Choice { All, ThisYear, ThisMonth, Today, Last7Days, Last15Days, PreviousMonth, NextMonth };

/// The choices as the boxes offer them, in the order of Choice.
QStringList choices();
/// Letter case is ignored; any other text is Choice::All.
Choice fromText(const QString &text);
/// The two dates of a BETWEEN in stored form, both included: day 1 to "day 31" of the month with the
/// roll-over of dates built from parts, so a 30-day month reaches into the 1st of the next. Two empty texts
/// for the choices that are selected by a pattern: All, ThisYear, ThisMonth, Today.
std::pair<QString, QString> range(Choice choice, QDate today);

/// What follows "SELECT * FROM table" for a choice: " where(data like '%2026/%') ", " WHERE data BETWEEN '…'
/// AND '…' "; empty for All. `dayColumn` is the column's spelling where a month or one day is asked for; the
/// year of ThisMonth always tests `data`.
QString condition(Choice choice, const QString &column, const QString &dayColumn, QDate today);

} // namespace period
