#pragma once

#include "data/connection.h"
#include "lists/figures.h"
#include "lists/listquery.h"
#include "lists/roworder.h"

#include <QDeadlineTimer>

#include <deque>
#include <memory>
#include <optional>

/// Reads the keys of a list's rows in their order, and adds the rows up, in one pass that can be interrupted
/// at any row: the window answers between two calls of run(). The store's own order is taken where an index
/// yields it; otherwise the rows are put in order here.
class ListLoad
{
public:
    /// `totals` is what no rows add up to. Throws Error.
    ListLoad(std::shared_ptr<Connection> connection, const ListQuery &query, const RowTotals &totals);

    /// Works until everything is read (true) or the time is up. Throws Error; then the load is void.
    bool run(const QDeadlineTimer &until);
    /// True when the keys read so far stand in their final order.
    bool isInOrder() const { return !m_order; }
    qint64 rowsRead() const { return m_rowsRead; }
    /// How many rows there are; asks the store.
    qint64 countRows() const;

    const ListQuery &query() const { return m_query; }
    const std::deque<qint64> &keys() const { return m_keys; }
    std::deque<qint64> takeKeys() { return std::move(m_keys); }
    std::unique_ptr<RowTotals> takeTotals() { return std::move(m_totals); }
    /// The file that was read, and the state that others had left it in.
    quint64 serial() const { return m_connection->serial(); }
    quint64 dataVersion() const { return m_dataVersion; }

private:
    void chooseOrder();
    bool read(const QDeadlineTimer &until);

    std::shared_ptr<Connection> m_connection;
    ListQuery m_query;
    std::unique_ptr<RowTotals> m_totals;
    quint64 m_dataVersion;
    std::optional<Statement> m_rows; ///< while there is something to read
    int m_firstTotal = 1;            ///< column of the rows with the first value to add up
    std::vector<std::string_view> m_values;
    std::unique_ptr<RowOrder> m_order; ///< null when the rows come in their order
    std::deque<qint64> m_keys;
    qint64 m_rowsRead = 0;
};
