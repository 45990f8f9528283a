#pragma once

#include "data/decimal.h"
#include "entries/side.h"

#include <QDate>
#include <QStringList>

#include <optional>
#include <vector>

class Connection;

/// One entry as the entry screen shows and takes it: every field as its text.
struct EntryForm
{
    QString status, account, contact;
    QString date, due; ///< "dd/mm/yyyy"
    QString description, document, notes;
    QString value, unitCost; ///< Brazilian amounts
    QString product;
    QString quantity; ///< a number, maybe with text after it ("12 un"); stored as it stands
    QString currency;
};

/// One entry that is to be deleted, with the stock that its deletion corrects.
struct EntryRemoval
{
    QString code;
    QString product;
    Quantity quantity;
};

namespace entry {

QStringList currencies();

/// The names of the required fields that are empty, in the order in which they are reported.
QStringList blankFields(const EntryForm &form);
/// The names for a pick box: every row's `field`, in the query's order.
QStringList names(Connection &connection, const QString &query, QStringView field);
/// Account names, and product names with "-" (no product) first.
QStringList accountNames(Connection &connection);
QStringList productNames(Connection &connection);

/// True when a new entry takes more units of its product than there are.
bool exceedsStock(Connection &connection, const Side &side, const EntryForm &form);
/// Adds a row (empty code) or rewrites the one with the code, and moves the stock by the quantity in the
/// form, all in one transaction. Throws Error; then nothing has changed.
void save(Connection &connection, const Side &side, const EntryForm &form, const QString &code);
/// The entry with the code; nothing when there is none.
std::optional<EntryForm> load(Connection &connection, const Side &side, const QString &code);
/// Deletes the entries and corrects the stock in one transaction. False when one of them is no longer there,
/// throws Error; then nothing has changed.
bool remove(Connection &connection, const Side &side, const std::vector<EntryRemoval> &removals);
/// Marks the entries settled today. The due date becomes the day of settling, written day first
/// ("dd/mm/yyyy"), which marks it as such. False when one of them is no longer there; then nothing has
/// changed.
bool settle(Connection &connection, const Side &side, const QStringList &codes, QDate today);

/// A list line's key as a plain number: "0012" is "12".
QString plainCode(const QString &text);

} // namespace entry
