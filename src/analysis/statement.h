#pragma once

#include "data/sum.h"
#include "lists/storedtable.h"

#include <QDate>

#include <array>
#include <memory>
#include <span>

class Connection;
class Progress;

/// Which statement is wanted.
struct StatementChoice
{
    QString account;
    QDate first, last;
};

/// The completed entries and movements of one account: payables, then receivables, then movements.
struct AccountStatement
{
    std::shared_ptr<StoredTable> rows; ///< as they were read; no balance is written in them
    Sum payables = {}, receivables = {};
    Sum movements = {}; ///< of every kind, withdrawals added like deposits
};

namespace statement {

/// The row key, which is out of sight, the date, the description, the amount with its sign, the balance.
std::vector<ListColumn> columns();
inline constexpr int balanceColumn = 4;

/// Of payables, receivables and movements. Throws Error::Kind::Query when the name has an apostrophe.
std::array<QString, 3> queries(const StatementChoice &choice);
/// Throws Error, and passes on what `progress` throws.
AccountStatement read(Connection &connection, const StatementChoice &choice, Progress *progress = nullptr);
/// The rows in this order, with the balance that runs down them from zero. A row whose amount has no sign,
/// as a transfer, has no balance.
std::shared_ptr<StoredTable> inOrder(const StoredTable &rows, std::span<const int> order);

QString caption(const StatementChoice &choice);
/// "Entre 01/11/2026 e 30/11/2026 - Período de 29 dias".
QString periodText(const StatementChoice &choice);
/// The three totals in one line.
QString totals(const AccountStatement &statement);

} // namespace statement
