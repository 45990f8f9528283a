#pragma once

#include "entries/entry.h"
#include "entries/side.h"
#include "lists/storedtable.h"

#include <QDate>

/// How often a regular entry falls due.
enum class Rhythm { Weekly, Monthly, Yearly };

/// A rule for entries that come again and again: every field as its text.
struct RegularForm
{
    const Side *side = nullptr;
    QString account, contact, description, document, notes, value, currency;
    Rhythm rhythm = Rhythm::Monthly;
    QString next;  ///< due date of the next entry: "dd/mm/yyyy"
    QString until; ///< the last due date; empty for no end
    QString times; ///< how many more entries; empty for no limit
    QString ahead; ///< days before its due date at which an entry is put in
};

/// Rent, wages, subscriptions: rules that put pending entries in ahead of time. Where the next entry stands
/// is read and written under the write lock, so that each is put in once, however many machines do it. The
/// rules stand in the table `recorrencia`, their state in `recorrencia_estado`, what they put in in
/// `recorrencia_lancada`. All but list() and post() throw Error for a file of an earlier version that could
/// not be given these tables.
namespace regular {

QStringList rhythms(); ///< as a box offers them, in the order of Rhythm
/// The month-end rule of the installments: a day that the month does not have becomes its last day, and stays
/// lowered from then on.
QDate nextDue(QDate due, Rhythm rhythm);

/// Every rule; the first column is its code. None where the file has no such table.
std::shared_ptr<StoredTable> list(Connection &connection);
std::optional<RegularForm> load(Connection &connection, qint64 code);
/// The names of the required fields that are empty.
QStringList blankFields(const RegularForm &form);
/// The message about what cannot be; nothing when the rule can be saved on that day.
std::optional<QString> problem(const RegularForm &form, QDate today);

/// How many entries of the rule are still pending and due from `today` on.
int pendingFrom(Connection &connection, qint64 code, QDate today);
/// Adds a rule (code 0) or rewrites one; with `from`, its pending entries that are due from that day on get
/// the new values, too, and keep their due dates.
void save(Connection &connection, qint64 code, const RegularForm &form, std::optional<QDate> from = {});
/// Removes a rule; with `from`, its pending entries that are due from that day on as well.
void remove(Connection &connection, qint64 code, std::optional<QDate> from = {});

/// Puts in the entries whose time has come, and gives how many. In the journal they are nobody's command:
/// undoing takes them back only where somebody chooses to.
int post(Connection &connection, QDate today);

} // namespace regular
