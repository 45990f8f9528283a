#pragma once

#include "lists/rowstore.h"
#include "lists/tablesource.h"

/// A table that holds its own rows: a query's result on its way to a report.
class StoredTable : public TableSource
{
public:
    explicit StoredTable(std::vector<ListColumn> columns)
        : m_columns(std::move(columns)), m_rows(std::make_shared<RowStore>(int(m_columns.size())))
    {
    }
    StoredTable(std::vector<ListColumn> columns, RowStore rows)
        : m_columns(std::move(columns)), m_rows(std::make_shared<RowStore>(std::move(rows)))
    {
        Q_ASSERT(m_rows->columnCount() == int(m_columns.size()));
    }

    void append(const std::vector<std::string_view> &cells) { m_rows->append(cells); }
    /// A row that has an origin; a table is filled either with such rows or with others.
    void append(const std::vector<std::string_view> &cells, RowOrigin origin)
    {
        m_rows->append(cells);
        m_origins.push_back(origin);
    }
    void append(const QStringList &cells);

    const std::vector<ListColumn> &columns() const { return m_columns; }
    /// Shared with whoever shows them.
    std::shared_ptr<const RowStore> rows() const { return m_rows; }
    int columnCount() const override { return int(m_columns.size()); }
    int rowCount() const override { return m_rows->rowCount(); }
    QString heading(int column) const override { return m_columns[std::size_t(column)].title; }
    CellKind kind(int column) const override { return m_columns[std::size_t(column)].kind; }
    QString cell(int row, int column) const override { return m_rows->text(row, column); }
    std::string_view utf8(int row, int column, std::string &) const override
    {
        return m_rows->cell(row, column);
    }
    std::optional<RowOrigin> origin(int row) const override
    {
        return m_origins.empty() ? std::nullopt : std::optional(m_origins[std::size_t(row)]);
    }

private:
    std::vector<ListColumn> m_columns;
    std::shared_ptr<RowStore> m_rows;
    std::vector<RowOrigin> m_origins;
};
