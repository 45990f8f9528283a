#pragma once

#include "data/connection.h"
#include "data/progress.h"
#include "data/sum.h"
#include "entries/side.h"
#include "lists/storedtable.h"

#include <QDate>

#include <optional>

/// Which entries the management screen asks for, and in which words it tells of them.
struct ManagementFilter
{
    enum class By { Everything, Contact, Status, Dates, Account };

    By by = By::Everything;
    bool descending = false;     ///< of By::Everything
    QString name = {};           ///< the contact, the status or the account
    QDate first = {}, last = {}; ///< of By::Dates
};

/// Everything in which the halves of the management screen differ.
struct ManagementKind
{
    const Side &side;
    QString none;          ///< said when there are no entries at all
    QString noneOfContact; ///< the name follows
    QString noneOfStatus;  ///< the status follows
    QString suffix;        ///< of object names: "desp"
    QString ascendingName; ///< object name of the choice of order: "optascr"
    QString descendingName;
};

const ManagementKind &payableManagement();
const ManagementKind &receivableManagement();

/// Queries of payables or receivables by contact, status, dates or account.
namespace management {

struct Result
{
    std::shared_ptr<StoredTable> table;
    Sum total;
};

/// Date, description, amount.
std::vector<ListColumn> columns();
/// The message about dates that are missing; nothing when there is something to ask.
std::optional<QString> problem(const ManagementFilter &filter);
/// Throws Error for a name with an apostrophe.
QString query(const Side &side, const ManagementFilter &filter);
/// Which entries a result has, for the reader of a report.
QString filterText(const ManagementKind &kind, const ManagementFilter &filter);
/// The message when no entry was found.
QString noneFound(const ManagementKind &kind, const ManagementFilter &filter);
/// `progress` may be null. Throws Error.
Result read(Connection &connection, const ManagementKind &kind, const ManagementFilter &filter,
            Progress *progress);
QString totalText(const Result &result);

} // namespace management
