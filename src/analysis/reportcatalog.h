#pragma once

#include "reports/report.h"

#include <QDate>

#include <optional>
#include <vector>

class Connection;

/// Every report by a name of its own, for whoever asks for one without a screen.
namespace reportcatalog {

/// What a report is asked for with.
enum class Needs {
    Nothing,
    Dates, ///< by day; without them the report takes all dates
    Name,  ///< a client, supplier, centre, account or payment method
    NameAndDates
};

struct Request
{
    QDate first = {}, last = {}; ///< both, or neither
    QString name = {};
    QDate today = {};
};

struct Entry
{
    QString name;  ///< "contas-a-pagar"
    QString title; ///< what it tells, in a few words
    Needs needs;
    /// Nothing when there is nothing to report. Throws Error.
    std::optional<Report> (*read)(Connection &connection, const Request &request);
};

const std::vector<Entry> &all();
/// Null for a name that no report has.
const Entry *find(const QString &name);
/// The message about what the request lacks; nothing when it can be read.
std::optional<QString> problem(const Entry &entry, const Request &request);

} // namespace reportcatalog
