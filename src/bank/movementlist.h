#pragma once

#include "data/decimal.h"
#include "data/progress.h"
#include "lists/rowstore.h"

#include <QDate>
#include <QStringList>

class Connection;

/// The choices of the movement list's filter boxes, as their texts; letter case is ignored.
struct MovementFilter
{
    QString kind;   ///< "Depósitos", "Retiradas", "Transferências"; anything else is all
    QString period; ///< a choice of data/period.h
    QString sortBy; ///< a choice of sortChoices()
    bool ascending = true;
};

struct MovementTotals
{
    struct Kind
    {
        Money sum;
        qint64 count = 0;
    };
    Kind deposits, withdrawals, transfers;
    Money pending, settled; ///< all kinds together, by status

    /// Counts one row; a kind that was typed otherwise belongs to none of the three.
    void add(QStringView kind, QStringView state, Money value);
    QString text() const;
};

struct MovementList
{
    RowStore rows;
    MovementTotals totals;
};

namespace movementlist {

inline constexpr QStringView loadingTitle = u"Carregando movimento bancário";

QStringList kindChoices();
QStringList sortChoices();
/// The list's query, in the program's SQL dialect.
QString query(const MovementFilter &filter, QDate today);
std::vector<Column> columns();
/// Reads all rows of `query`, a `SELECT *` on the movements. `progress` may be null. Throws Error.
MovementList load(Connection &connection, const QString &query, Progress *progress);

} // namespace movementlist
