#pragma once

#include "lists/storedtable.h"
#include "settings/listlayout.h"
#include "widgets/tablemodel.h"

#include <QTableView>

#include <memory>

class ListFinder;
class ListMenu;

/// A list of rows with headings: whole rows are selected, several at once; columns can be moved, resized and
/// sorted by a click (a third click gives the rows' own order back); Ctrl+C copies the selected rows as text
/// with tabs. A cell that is cut off shows its whole text as a hint. The headings have a menu, which Ctrl+S
/// opens; Ctrl+F narrows the list.
class ListView : public QTableView
{
    Q_OBJECT

public:
    explicit ListView(QWidget *parent = nullptr);

    TableModel &table() { return *m_table; }
    /// A column of width 0 is out of sight until the user widens it: the row key.
    void setColumns(std::vector<ListColumn> columns);
    /// Shows `rows` in their own order. The row whose first cell was selected before is selected again if it
    /// is still there, and the list stays scrolled where it was.
    void setRows(RowStore rows);
    /// Shows a table. Columns are as wide as their texts, those of width 0 out of sight; while the headings
    /// stay the same, and there were rows, the columns stay as the user left them.
    void setTable(std::shared_ptr<const StoredTable> table);
    /// The stored row that a row of a table shows; nothing for other lists and rows.
    std::optional<RowOrigin> origin(int row) const;
    int rowCount() const { return m_table->rowCount(); }
    QString cell(int row, int column) const { return m_table->cell(row, column); }
    /// The selected rows, top to bottom.
    std::vector<int> selectedRows() const;
    /// The row that commands on one row act on: the current one if it is selected, else the first selected;
    /// -1 if none.
    int selectedRow() const;
    /// selectedRow(); when rows are shown but none is selected, a message asks for one.
    int selectedRowOrTell(const QString &title, const QString &text);
    /// Selects this row alone; -1 selects none.
    void selectRow(int row);
    /// Where the list is scrolled to.
    QPoint scrolled() const;
    void scrollBack(QPoint place);

    /// Text shown in the middle while the list is empty.
    void setEmptyText(const QString &text);
    /// While whoever owns the rows changes them, all are shown.
    ListFinder &finder() { return *m_finder; }
    /// The list as it is shown, for printing and export: columns in their order on the screen, without the
    /// row key unless it was widened. What the list shows later does not change it.
    std::shared_ptr<const TableSource> tableSource() const;
    QHeaderView *header() const { return horizontalHeader(); }
    ListLayout layout() const;
    void applyLayout(const ListLayout &layout);

Q_SIGNALS:
    /// Return or double click on a row.
    void rowActivated(int row);
    /// Insert: another row is wanted.
    void insertRequested();
    /// Delete on a selection.
    void removeRequested();
    /// The whole list is about to be saved: what is still being read is to be there.
    void wholeListWanted();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    /// Rows are what the keys walk; left and right scroll.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    /// Typed letters would look through every row.
    void keyboardSearch(const QString &) override {}

private:
    void copySelection() const;
    void fitRowHeight();
    int firstVisibleColumn() const;

    TableModel *m_table;
    ListMenu *m_menu;
    ListFinder *m_finder;
    std::shared_ptr<const StoredTable> m_shown; ///< of setTable()
    QString m_emptyText;
    std::vector<double> m_givenWidths; ///< of applyLayout(), finer than pixels
};
