#pragma once

#include "lists/rowstore.h"
#include "lists/tablesource.h"

/// A table that holds its own rows: a query's result on its way to a report.
class StoredTable : public TableSource
{
public:
    StoredTable(std::vector<ListColumn> columns, RowStore rows)
        : m_columns(std::move(columns)), m_rows(std::move(rows))
    {
        Q_ASSERT(m_rows.columnCount() == int(m_columns.size()));
    }

    int columnCount() const override { return int(m_columns.size()); }
    int rowCount() const override { return m_rows.rowCount(); }
    QString heading(int column) const override { return m_columns[std::size_t(column)].title; }
    CellKind kind(int column) const override { return m_columns[std::size_t(column)].kind; }
    QString cell(int row, int column) const override { return m_rows.text(row, column); }
    std::string_view utf8(int row, int column, std::string &) const override
    {
        return m_rows.cell(row, column);
    }

private:
    std::vector<ListColumn> m_columns;
    RowStore m_rows;
};
