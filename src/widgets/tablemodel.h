#pragma once

#include "lists/keyedlist.h"
#include "lists/rowstore.h"
#include "lists/tablesource.h"
#include "widgets/rowsigns.h"

#include <QAbstractTableModel>
#include <QColor>

#include <functional>

/// The model of every list: columns once, and rows that are either held as texts or fetched by their keys.
/// Held rows are sorted by what a column holds; for fetched ones, whoever fetches them is asked to.
class TableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit TableModel(QObject *parent = nullptr);

    void setColumns(std::vector<ListColumn> columns);
    const std::vector<ListColumn> &columns() const { return m_columns; }
    /// Replaces all rows; `rows` has as many columns as the model. The order is that of the rows.
    void setRows(RowStore rows) { setRows(std::make_shared<const RowStore>(std::move(rows))); }
    void setRows(std::shared_ptr<const RowStore> rows);
    /// Which of the held rows is shown in a row.
    int heldRow(int row) const { return int(m_order[std::size_t(row)]); }

    /// Of the held rows shows only these of those that are shown; sorting does not bring the others back.
    void keepOnly(const std::vector<int> &rows);
    void keepAll();

    /// Shows rows that are fetched by their keys; they are somebody else's and live as long as they are
    /// shown.
    void showKeyed(const KeyedRows *rows);
    /// The same rows, kept elsewhere from now on.
    void moveKeyed(const KeyedRows *rows);
    /// Tells views of a step by which the rows change, and lets it happen.
    void edit(const RowEdit &edit, const std::function<void()> &perform);
    /// The same for rows added at the end.
    void append(int rows, const std::function<void()> &perform);
    const KeyedRows *keyed() const { return m_keyed; }

    /// The text shown in a cell; empty when it cannot be read.
    QString cell(int row, int column) const;
    /// The rows as they are, for somebody who reads them later: what this model shows next does not matter.
    /// Its cells throw Error when they cannot be read.
    std::shared_ptr<const TableSource> snapshot(std::vector<int> columns) const;
    /// An invalid colour means the palette's. Rows take the two backgrounds in turn.
    /// What each row bears before the text of `column`; null for no signs. They give way to chosen colours.
    void setSigns(int column, std::function<RowSign(int row)> sign);
    void setColours(const QColor &text, const QColor &first, const QColor &second);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// Dates, numbers and amounts sort by value, texts in Portuguese order; ties keep the order of the rows.
    void sort(int column, Qt::SortOrder order) override;

Q_SIGNALS:
    /// A heading was clicked over rows that are fetched; -1 for none.
    void sortRequested(int column, Qt::SortOrder order);

private:
    RowSign signOf(int row) const;
    void dropOthers();

    std::vector<ListColumn> m_columns;
    std::shared_ptr<const RowStore> m_rows;
    std::vector<quint32> m_order; ///< shown row → row of the store
    std::vector<bool> m_kept;     ///< by row of the store; empty when all are shown
    std::vector<quint32> m_whole; ///< m_order of all rows, while not all are shown
    const KeyedRows *m_keyed = nullptr;
    QColor m_text, m_first, m_second;
    int m_signColumn = -1;
    std::function<RowSign(int row)> m_sign;
};
