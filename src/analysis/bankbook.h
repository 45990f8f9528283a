#pragma once

#include "data/sum.h"
#include "lists/storedtable.h"

#include <QDate>
#include <QStringList>

#include <map>
#include <memory>
#include <optional>
#include <vector>

class Connection;
class Progress;

/// What settled entries and movements did to one account in a period, by the date on which they were entered.
struct AccountBook
{
    struct Day
    {
        Sum in, out;
    };

    QString name;
    Sum before = {}; ///< balance when the period begins: the opening balance and all that is dated earlier
    Sum received = {}, paid = {}, deposited = {}, withdrawn = {}, transferredIn = {}, transferredOut = {};
    std::map<QDate, Day> days = {}; ///< those on which something happened

    Sum balance() const
    {
        return before + received - paid + deposited - withdrawn + transferredIn - transferredOut;
    }
};

/// The days that a book covers.
struct BookPeriod
{
    std::optional<QDate> first; ///< without one, everything up to the last day
    QDate last;
};

/// The balances of the accounts on a day, and how they came about. On a day that nothing settled lies behind,
/// they are the balances of the main window's list.
namespace bankbook {

/// Accounts stand in table order. A row without a date counts as older than every other. Throws Error, and
/// passes on what `progress` throws.
std::vector<AccountBook> read(Connection &connection, const BookPeriod &period, Progress *progress = nullptr);

/// "Até 30/11/2026", "Entre 01/11/2026 e 30/11/2026 - Período de 29 dias".
QString periodText(const BookPeriod &period);
/// A line for each account, and one for all of them.
std::shared_ptr<StoredTable> accountTable(const std::vector<AccountBook> &books, const BookPeriod &period);
/// A line for each day of a period that has a first one, with its closing balance: of the account, or of all
/// for an empty name.
std::shared_ptr<StoredTable> dayTable(const std::vector<AccountBook> &books, const QString &account,
                                      const BookPeriod &period);
/// The sums of all accounts in a few lines.
QString totals(const std::vector<AccountBook> &books, const BookPeriod &period);

} // namespace bankbook
