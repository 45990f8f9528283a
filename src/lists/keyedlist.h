#pragma once

#include "lists/keyedrows.h"
#include "lists/listload.h"

#include <functional>

/// One step by which a list follows a change of its rows.
struct RowEdit
{
    enum class Kind { Insert, Remove, Update };
    Kind kind;
    int row;
};

/// What a list shows: its rows and what they add up to. It is filled by a ListLoad and follows single changes
/// without being read again; the outcome is the same.
class KeyedList
{
public:
    /// Is told each step of apply() before it is made, and makes it by calling `perform`.
    using Observer = std::function<void(const RowEdit &edit, const std::function<void()> &perform)>;

    KeyedList(std::vector<ListColumn> columns, std::unique_ptr<RowTotals> noTotals, DatabaseSource database);

    const std::vector<ListColumn> &columns() const { return m_columns; }
    const KeyedRows &rows() const { return m_rows; }
    const RowTotals &totals() const { return *m_totals; }
    const RowTotals &noTotals() const { return *m_noTotals; }
    const ListQuery &query() const { return m_query; }

    /// The rows that a load has read so far; their totals are not known yet.
    KeyedRows rowsOf(const ListLoad &load) const;
    /// Takes over what a load has read: all of it.
    void take(ListLoad &load);

    /// Follows the change of these rows. False when that takes reading the list again: others have written
    /// meanwhile, too many rows changed, or it is not known what they were.
    bool apply(Connection &connection, const std::vector<RowChange> &changes, const Observer &observer);

private:
    struct Lookups;

    bool canFollow(Connection &connection, const std::vector<RowChange> &changes) const;
    bool follow(Lookups &lookups, const RowChange &change, const Observer &observer);
    /// Where a row belongs among the others; nothing when one of them is gone.
    std::optional<int> place(Lookups &lookups, qint64 key, int without) const;

    std::vector<ListColumn> m_columns;
    std::unique_ptr<RowTotals> m_noTotals, m_totals;
    DatabaseSource m_database;
    ListQuery m_query;
    KeyedRows m_rows;
    quint64 m_dataVersion = 0;
};
