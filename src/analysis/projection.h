#pragma once

#include "data/decimal.h"
#include "entries/side.h"
#include "reports/reporttext.h"

#include <QDate>

class Connection;

/// A month's goal measured against what was settled in it.
namespace projection {

struct Result
{
    const Side *side;
    int year, month;
    Money goal;
    Money settled; ///< entries of the month that are settled
};

/// As the boxes offer them, January first.
QStringList monthNames();
QStringList years();

QString query(const Side &side, int year, int month);
/// A goal that is no amount counts as zero. Throws Error::Kind::Data when the sum is out of range.
Result compute(Connection &connection, const Side &side, int year, int month, const QString &goal);

QString status(const Result &result);
/// Lines separated by "\r\n".
QString summary(const Result &result);
QString htmlSummary(const Result &result);

/// "Projeções e Metas de despesas".
QString title(const Side &side);
inline constexpr QStringView heading = u"Projeção e Meta";
void writeText(QIODevice &device, const Result &result);
void writeHtml(QIODevice &device, const Result &result);
Report printed(const Result &result);

} // namespace projection
