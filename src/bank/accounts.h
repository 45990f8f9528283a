#pragma once

#include "data/progress.h"
#include "data/sum.h"
#include "lists/rowstore.h"

#include <QString>

#include <optional>
#include <vector>

class Connection;

/// A bank or cash account as its screen shows and takes it.
struct AccountForm
{
    QString name;
    QString opening; ///< Brazilian amount
    QString notes;
};

/// One line of the account list. Amounts have two decimals.
struct AccountBalance
{
    QString name, notes;
    Money opening;
    Sum current;
};

/// What the setting AtualizarSaldo asks of a refill of the account list.
enum class BalanceMode {
    Recompute,   ///< opening balance and all settled entries and movements
    OpeningOnly, ///< the opening balance stands for the current one
    KeepList     ///< the list is left as it is
};

namespace accounts {

/// A number other than zero recomputes; exactly "0" shows opening balances; any other zero keeps the list.
BalanceMode balanceMode(const QString &setting);
/// Every account in table order. With `recompute` the current balance counts every settled payable,
/// receivable and movement that names the account. `progress` (may be null) advances by one an account.
/// Throws Error.
std::vector<AccountBalance> balances(Connection &connection, bool recompute, Progress *progress);

std::vector<Column> columns();
RowStore rows(const std::vector<AccountBalance> &balances);
/// The cash summary: a paragraph an account, then the grand totals. Lines end in CR LF.
QString summary(const std::vector<AccountBalance> &balances);

/// The message about the first field that is missing or cannot be; nothing when the form can be saved.
std::optional<QString> problem(const AccountForm &form);
void add(Connection &connection, const AccountForm &form);
/// Rewrites opening balance and notes of the account `name`; the name stays.
void change(Connection &connection, const QString &name, const AccountForm &form);
/// Entries that name the account are left as they are. Throws Error when it is no longer there, or when its
/// name is a pattern that reaches other accounts; then nothing has changed.
void remove(Connection &connection, const QString &name);
std::optional<AccountForm> load(Connection &connection, const QString &name);

} // namespace accounts
