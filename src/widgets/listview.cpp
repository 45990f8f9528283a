#include "widgets/listview.h"

#include "widgets/messages.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double twipsPerPixel = 15;

/// Gives the rows some air and shows the whole text of a cell that is cut off.
class CellDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, option.fontMetrics.height() / 3);
    }

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override
    {
        if (event->type() != QEvent::ToolTip)
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        const bool cutOff =
            index.isValid() && sizeHint(option, index).width() > view->visualRect(index).width();
        // Without a text an open hint is closed.
        const QString whole = u"<span>"_s + index.data().toString().toHtmlEscaped() + u"</span>"_s;
        QToolTip::showText(event->globalPos(), cutOff ? whole : QString(), view);
        return true;
    }
};

/// The columns that a list shows, in their order on the screen.
class ShownTable : public TableSource
{
public:
    ShownTable(const TableModel &table, std::vector<int> columns)
        : m_table(table), m_columns(std::move(columns))
    {
    }

    int columnCount() const override { return int(m_columns.size()); }
    int rowCount() const override { return m_table.rowCount(); }
    QString heading(int column) const override { return source(column).title; }
    CellKind kind(int column) const override { return source(column).kind; }
    QString cell(int row, int column) const override
    {
        return m_table.cell(row, m_columns[std::size_t(column)]);
    }
    std::string_view utf8(int row, int column, std::string &) const override
    {
        return m_table.utf8(row, m_columns[std::size_t(column)]);
    }

private:
    const Column &source(int column) const
    {
        return m_table.columns()[std::size_t(m_columns[std::size_t(column)])];
    }

    const TableModel &m_table;
    std::vector<int> m_columns;
};

int firstRowWithKey(const TableModel &table, const QString &key)
{
    for (int row = 0; row < table.rowCount(); ++row) {
        if (table.cell(row, 0) == key)
            return row;
    }
    return -1;
}

} // namespace

ListView::ListView(QWidget *parent) : QTreeView(parent), m_table(new TableModel(this))
{
    setModel(m_table);
    setItemDelegate(new CellDelegate(this));
    setRootIsDecorated(false);
    setIndentation(0);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setTextElideMode(Qt::ElideRight);
    header()->setMinimumSectionSize(0);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(true);
    header()->setFirstSectionMovable(true);
    header()->setSortIndicatorClearable(true);
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
    connect(this, &QTreeView::doubleClicked, this,
            [this](const QModelIndex &index) { Q_EMIT rowActivated(index.row()); });
}

void ListView::setColumns(std::vector<Column> columns)
{
    m_table->setColumns(std::move(columns));
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    for (std::size_t i = 0; i < m_table->columns().size(); ++i)
        header()->resizeSection(int(i), m_table->columns()[i].width);
}

void ListView::setRows(RowStore rows)
{
    const int selected = selectedRow();
    const QString key = selected >= 0 ? cell(selected, 0) : QString();
    const QPoint scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
    m_table->setRows(std::move(rows));
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    if (!key.isEmpty())
        selectRow(firstRowWithKey(*m_table, key));
    doItemsLayout(); // otherwise the scroll bars do not know their new range yet
    horizontalScrollBar()->setValue(scrolled.x());
    verticalScrollBar()->setValue(scrolled.y());
}

std::vector<int> ListView::selectedRows() const
{
    std::vector<int> rows;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::ranges::sort(rows);
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

int ListView::selectedRow() const
{
    const QModelIndex current = currentIndex();
    if (current.isValid() && selectionModel()->isRowSelected(current.row()))
        return current.row();
    const QItemSelection selection = selectionModel()->selection();
    int first = -1;
    for (const QItemSelectionRange &range : selection)
        first = first < 0 ? range.top() : std::min(first, range.top());
    return first;
}

int ListView::selectedRowOrTell(const QString &title, const QString &text)
{
    const int row = selectedRow();
    if (row < 0 && rowCount() > 0)
        messages::information(this, title, text);
    return row;
}

void ListView::selectRow(int row)
{
    if (row < 0 || row >= rowCount()) {
        selectionModel()->clear();
        return;
    }
    // A current cell of width 0 would scroll the list to its left end.
    int column = 0;
    while (column < m_table->columnCount() - 1 && header()->sectionSize(column) == 0)
        ++column;
    selectionModel()->setCurrentIndex(m_table->index(row, column),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void ListView::setEmptyText(const QString &text)
{
    m_emptyText = text;
    viewport()->update();
}

ListLayout ListView::layout() const
{
    ListLayout result;
    for (int i = 0; i < header()->count(); ++i) {
        result.widths.push_back(header()->sectionSize(i) * twipsPerPixel);
        result.positions.push_back(header()->visualIndex(i) + 1);
    }
    return result;
}

void ListView::applyLayout(const ListLayout &layout)
{
    const auto columns = std::size_t(header()->count());
    if (layout.widths.size() != columns || layout.positions.size() != columns)
        return;
    for (std::size_t i = 0; i < columns; ++i)
        header()->resizeSection(int(i), int(std::lround(layout.widths[i] / twipsPerPixel)));
    for (std::size_t position = 0; position < columns; ++position) {
        const auto found = std::ranges::find(layout.positions, int(position) + 1);
        if (found != layout.positions.end())
            header()->moveSection(header()->visualIndex(int(found - layout.positions.begin())),
                                  int(position));
    }
}

void ListView::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const int row = selectedRow();
    if (event->matches(QKeySequence::Copy) && row >= 0)
        copySelection();
    else if (event->matches(QKeySequence::Delete) && row >= 0)
        Q_EMIT removeRequested();
    else if (isReturn && row >= 0)
        Q_EMIT rowActivated(row);
    else
        QTreeView::keyPressEvent(event);
}

void ListView::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (rowCount() > 0 || m_emptyText.isEmpty())
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
}

std::shared_ptr<const TableSource> ListView::tableSource() const
{
    std::vector<int> columns;
    for (int position = 0; position < header()->count(); ++position) {
        const int column = header()->logicalIndex(position);
        if (header()->sectionSize(column) > 0)
            columns.push_back(column);
    }
    return std::make_shared<ShownTable>(*m_table, std::move(columns));
}

void ListView::copySelection() const
{
    const auto shown = tableSource();
    QString text;
    for (const int row : selectedRows()) {
        QStringList cells;
        for (int column = 0; column < shown->columnCount(); ++column)
            cells << shown->cell(row, column).replace(u'\t', u' ').replace(u'\n', u' ').remove(u'\r');
        text += cells.join(u'\t') + u'\n';
    }
    QApplication::clipboard()->setText(text);
}
