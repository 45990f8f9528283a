#pragma once

#include "data/changes.h"
#include "data/sum.h"
#include "lists/listcolumn.h"
#include "lists/rowstore.h"

#include <QDeadlineTimer>
#include <QString>

#include <memory>
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

/// One line of the account list. What is shown has two decimals.
struct AccountBalance
{
    QString name, notes;
    Sum exactOpening; ///< as it is stored
    Sum moved;        ///< by settled entries and movements, in whole cents

    bool operator==(const AccountBalance &) const = default;

    Sum opening() const { return exactOpening.roundedToCents(); }
    Sum current() const { return (exactOpening + moved).roundedToCents(); }
};

/// What the setting AtualizarSaldo asks of a refill of the account list.
enum class BalanceMode {
    Recompute,   ///< opening balance and all settled entries and movements
    OpeningOnly, ///< the opening balance stands for the current one
    KeepList     ///< the list is left as it is
};

/// Computes the balances of every account, in table order, in steps of one account.
class BalanceLoad
{
public:
    /// With `recompute` the current balance counts every settled payable, receivable and movement that names
    /// the account; otherwise it is the opening balance. Throws Error.
    BalanceLoad(std::shared_ptr<Connection> connection, bool recompute);

    /// Works until every account is done (true) or the time is up. Throws Error.
    bool run(const QDeadlineTimer &until);
    qint64 accountsDone() const { return qint64(m_next); }
    qint64 accounts() const { return qint64(m_balances.size()); }
    std::vector<AccountBalance> takeBalances() { return std::move(m_balances); }
    /// The file that was read, and the state that others had left it in.
    quint64 serial() const;
    quint64 dataVersion() const { return m_dataVersion; }

private:
    std::shared_ptr<Connection> m_connection;
    quint64 m_dataVersion;
    std::vector<AccountBalance> m_balances;
    std::size_t m_next = 0;
};

namespace accounts {

/// A number other than zero recomputes; exactly "0" shows opening balances; any other zero keeps the list.
BalanceMode balanceMode(const QString &setting);
/// The balances of every account, computed at once. Throws Error.
std::vector<AccountBalance> balances(std::shared_ptr<Connection> connection, bool recompute = true);
/// Makes the balances follow a change of entries or movements; the outcome is that of computing them anew.
/// False when that is what it takes: it is not known what the rows were.
bool follow(std::vector<AccountBalance> &balances, const Change &change);

std::vector<ListColumn> columns();
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
