#pragma once

#include "lists/rowstore.h"

#include <QAbstractTableModel>
#include <QColor>

/// The model of every list: columns once, rows as a RowStore, sorted by what a column holds.
class TableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit TableModel(QObject *parent = nullptr);

    void setColumns(std::vector<Column> columns);
    const std::vector<Column> &columns() const { return m_columns; }
    /// Replaces all rows; `rows` has as many columns as the model. The order is that of the rows.
    void setRows(RowStore rows);
    /// The text shown in a cell.
    QString cell(int row, int column) const;
    std::string_view utf8(int row, int column) const;
    /// An invalid colour means the palette's. Rows take the two backgrounds in turn.
    void setColours(const QColor &text, const QColor &first, const QColor &second);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool removeRows(int row, int count, const QModelIndex &parent = {}) override;
    /// Dates, numbers and amounts sort by value, texts in Portuguese order; ties keep the order of the rows.
    void sort(int column, Qt::SortOrder order) override;

private:
    std::vector<Column> m_columns;
    RowStore m_rows;
    std::vector<quint32> m_order; ///< shown row → row of the store
    QColor m_text, m_first, m_second;
};
