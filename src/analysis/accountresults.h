#pragma once

#include "data/connection.h"
#include "data/progress.h"
#include "data/sum.h"
#include "entries/side.h"
#include "lists/storedtable.h"

#include <QDate>

#include <optional>

/// Which days the comparison of expenses and profits counts.
struct ResultFilter
{
    enum class Span { Day, Month, Year, Range };

    Span span = Span::Day;
    QDate today = {};            ///< of Span::Day
    int year = 0, month = 0;     ///< of Span::Month and Span::Year
    QDate first = {}, last = {}; ///< of Span::Range
};

/// Settled expenses against settled profits of every account.
namespace accountresults {

struct Result
{
    std::shared_ptr<StoredTable> table; ///< a line for each account
    Sum expenses, profits;

    Sum balance() const { return profits - expenses; }
};

/// Account, expenses, profits, balance.
std::vector<ListColumn> columns();
/// The message about dates that are missing; nothing when there is something to count.
std::optional<QString> problem(const ResultFilter &filter);
/// The settled entries of these days, of all accounts.
QString query(const Side &side, const ResultFilter &filter);
/// "Período: 11/2026".
QString filterText(const ResultFilter &filter);
/// One pass over the entries of each side; an account gets what a query with `origem like` its name would add
/// up. Nothing when there are no accounts. `progress` may be null. Throws Error.
std::optional<Result> read(Connection &connection, const ResultFilter &filter, Progress *progress);
QString totalText(const Result &result);

} // namespace accountresults
