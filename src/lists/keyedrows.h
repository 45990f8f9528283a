#pragma once

#include "data/connection.h"
#include "lists/listcolumn.h"
#include "lists/rowstore.h"

#include <deque>
#include <functional>
#include <list>
#include <memory>
#include <vector>

/// Opens the database, as before every query. Throws Error.
using DatabaseSource = std::function<std::shared_ptr<Connection>()>;

/// The rows of a list by their keys, 8 bytes a row. Cells are fetched in windows of neighbouring rows when
/// they are asked for, and show the rows' present state; the cells of a row that is gone are empty. A copy is
/// a stable picture of which rows there are, and costs nothing until one of the two changes.
class KeyedRows
{
public:
    KeyedRows() = default;
    /// `serial` names the file that the keys are from; `rowSql` yields one row by its key (parameter 1).
    KeyedRows(DatabaseSource database, quint64 serial, QByteArray rowSql, std::vector<ListColumn> columns,
              std::deque<qint64> keys);

    int rowCount() const { return int(m_keys->size()); }
    qint64 key(int row) const { return (*m_keys)[std::size_t(row)]; }
    /// Where the row with the key stands; -1 when it is not in the list.
    int rowOf(qint64 key) const;
    quint64 serial() const { return m_serial; }

    /// Valid until the next call. Throws Error when the rows cannot be read, or another file has taken the
    /// place of the one that the keys are from.
    std::string_view cell(int row, int column) const;

    /// These rows alone.
    KeyedRows only(const std::vector<int> &rows) const;

    void insert(int row, qint64 key);
    void remove(int row);
    void append(std::span<const qint64> keys);
    /// Forgets the cells that were fetched.
    void refresh() const { m_windows.clear(); }

private:
    struct Window
    {
        int first;
        RowStore rows;
    };
    /// Every copy fetches for itself.
    struct Windows : std::list<Window>
    {
        Windows() = default;
        Windows(const Windows &) : std::list<Window>() {} // NOLINT: copies nothing
        Windows(Windows &&) = default;
        Windows &operator=(const Windows &)
        {
            clear();
            return *this;
        }
        Windows &operator=(Windows &&) = default;
    };

    std::deque<qint64> &ownKeys();
    const Window &windowAt(int row) const;

    DatabaseSource m_database;
    quint64 m_serial = 0;
    QByteArray m_rowSql;
    std::vector<ListColumn> m_columns;
    std::shared_ptr<std::deque<qint64>> m_keys = std::make_shared<std::deque<qint64>>(); ///< shared by copies
    mutable Windows m_windows; ///< the last used first
};
