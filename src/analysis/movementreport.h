#pragma once

#include "data/connection.h"
#include "data/progress.h"
#include "entries/periodview.h"
#include "entries/side.h"
#include "reports/report.h"

#include <QDateTime>

#include <optional>

/// The movement reports: the payables or receivables of today, this month or this year.
namespace movementreport {

struct Texts
{
    QString query;
    QString title;      ///< "Relatório de movimento do dia (despesas)"
    QString filterText; ///< which entries these are
    QString totalWords; ///< before the count of entries
    QString noData;     ///< the message when there are none
};

Texts texts(const Side &side, ViewPeriod period, const QDateTime &now);
/// Nothing when there are no entries. `progress` may be null. Throws Error.
std::optional<Report> read(Connection &connection, const Side &side, ViewPeriod period, const QDateTime &now,
                           Progress *progress);

} // namespace movementreport
