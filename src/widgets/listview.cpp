#include "widgets/listview.h"

#include "widgets/listfinder.h"
#include "widgets/listmenu.h"
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

// Of columns that are as wide as their texts.
constexpr int measuredRows = 200;
constexpr int widestColumn = 320; ///< pixels
constexpr int cellPadding = 24;   ///< pixels: margins and the sort arrow

int pixelsOf(double twips)
{
    return int(std::lround(twips / twipsPerPixel));
}

/// Shows a cell in one line, and its whole text as a hint when it is cut off.
class CellDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->text.replace(QChar::LineSeparator, u' ');
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

std::vector<ListColumn> fitted(const StoredTable &table, const QFontMetrics &metrics)
{
    std::vector<ListColumn> columns = table.columns();
    for (int i = 0; i < table.columnCount(); ++i) {
        ListColumn &column = columns[std::size_t(i)];
        if (column.width == 0)
            continue;
        int width = metrics.horizontalAdvance(column.title);
        if (column.kind == CellKind::Amount) // rows that come later may be of larger ones
            width = std::max(width, metrics.horizontalAdvance(u"-000.000,00"_s));
        for (int row = 0; row < std::min(table.rowCount(), measuredRows); ++row)
            width = std::max(width, metrics.horizontalAdvance(table.cell(row, i)));
        column.width = std::min(widestColumn, width + cellPadding);
    }
    return columns;
}

int firstRowWithKey(const TableModel &table, const QString &key)
{
    for (int row = 0; row < table.rowCount(); ++row) {
        if (table.cell(row, 0) == key)
            return row;
    }
    return -1;
}

} // namespace

ListView::ListView(QWidget *parent) : QTableView(parent), m_table(new TableModel(this))
{
    setModel(m_table);
    setItemDelegate(new CellDelegate(this));
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    fitRowHeight();
    header()->setHighlightSections(false);
    header()->setSectionsClickable(true);
    header()->setMinimumSectionSize(0);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(true);
    header()->setFirstSectionMovable(true);
    header()->setSortIndicatorClearable(true);
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
    m_menu = new ListMenu(*this);
    m_finder = new ListFinder(*this);
    connect(this, &QTableView::doubleClicked, this,
            [this](const QModelIndex &index) { Q_EMIT rowActivated(index.row()); });
}

void ListView::setColumns(std::vector<ListColumn> columns)
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
    const QPoint place = scrolled();
    m_finder->suspend();
    m_shown.reset();
    m_table->setRows(std::move(rows));
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    if (!key.isEmpty())
        selectRow(firstRowWithKey(*m_table, key));
    scrollBack(place);
    m_finder->resume();
}

void ListView::setTable(std::shared_ptr<const StoredTable> table)
{
    m_finder->suspend();
    const bool wasEmpty = m_shown && m_shown->rowCount() == 0; // its columns fit its headings alone
    if (wasEmpty ||
        !std::ranges::equal(table->columns(), m_table->columns(), {}, &ListColumn::title, &ListColumn::title))
        setColumns(fitted(*table, fontMetrics()));
    m_table->setRows(table->rows());
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    m_shown = std::move(table);
    m_finder->resume();
}

std::optional<RowOrigin> ListView::origin(int row) const
{
    return m_shown ? m_shown->origin(m_table->heldRow(row)) : std::nullopt;
}

QPoint ListView::scrolled() const
{
    return {horizontalScrollBar()->value(), verticalScrollBar()->value()};
}

void ListView::scrollBack(QPoint place)
{
    doItemsLayout(); // otherwise the scroll bars do not know their new range yet
    horizontalScrollBar()->setValue(place.x());
    verticalScrollBar()->setValue(place.y());
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
    selectionModel()->setCurrentIndex(m_table->index(row, firstVisibleColumn()),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

/// A current cell of width 0 would scroll the list to its left end.
int ListView::firstVisibleColumn() const
{
    int column = 0;
    while (column < m_table->columnCount() - 1 && header()->sectionSize(column) == 0)
        ++column;
    return column;
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
        const int pixels = header()->sectionSize(i);
        const bool asGiven =
            std::size_t(i) < m_givenWidths.size() && pixelsOf(m_givenWidths[std::size_t(i)]) == pixels;
        result.widths.push_back(asGiven ? m_givenWidths[std::size_t(i)] : pixels * twipsPerPixel);
        result.positions.push_back(header()->visualIndex(i) + 1);
    }
    return result;
}

void ListView::applyLayout(const ListLayout &layout)
{
    const auto columns = std::size_t(header()->count());
    if (layout.widths.size() != columns || layout.positions.size() != columns)
        return;
    m_givenWidths = layout.widths;
    for (std::size_t i = 0; i < columns; ++i)
        header()->resizeSection(int(i), pixelsOf(layout.widths[i]));
    for (std::size_t position = 0; position < columns; ++position) {
        const auto found = std::ranges::find(layout.positions, int(position) + 1);
        if (found != layout.positions.end())
            header()->moveSection(header()->visualIndex(int(found - layout.positions.begin())),
                                  int(position));
    }
}

/// The keys of a list go before the commands of its window.
bool ListView::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent *>(event)->matches(QKeySequence::Find)) {
        event->accept();
        return true;
    }
    return QTableView::event(event);
}

void ListView::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const int row = selectedRow();
    if (event->matches(QKeySequence::Copy) && row >= 0)
        copySelection();
    else if (event->matches(QKeySequence::Save))
        m_menu->open();
    else if (event->matches(QKeySequence::Find))
        m_finder->open();
    else if (event->matches(QKeySequence::Delete) && row >= 0)
        Q_EMIT removeRequested();
    else if (event->key() == Qt::Key_Insert && event->modifiers() == Qt::NoModifier)
        Q_EMIT insertRequested();
    else if (isReturn && row >= 0)
        Q_EMIT rowActivated(row);
    else
        QTableView::keyPressEvent(event);
}

void ListView::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitRowHeight();
}

/// Every row has one line of text, with some air.
void ListView::fitRowHeight()
{
    const int height = fontMetrics().height();
    const int margins = 2 * style()->pixelMetric(QStyle::PM_FocusFrameVMargin, nullptr, this);
    verticalHeader()->setDefaultSectionSize(height + height / 3 + margins);
}

QModelIndex ListView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const int row = currentIndex().isValid() ? currentIndex().row() : -1;
    switch (action) {
    case MoveHome:
        return m_table->index(0, firstVisibleColumn());
    case MoveEnd:
        return m_table->index(rowCount() - 1, firstVisibleColumn());
    case MoveLeft:
    case MoveRight: {
        QScrollBar *bar = horizontalScrollBar();
        bar->triggerAction(action == MoveLeft ? QScrollBar::SliderSingleStepSub
                                              : QScrollBar::SliderSingleStepAdd);
        return m_table->index(row, firstVisibleColumn());
    }
    default:
        return QTableView::moveCursor(action, modifiers);
    }
}

void ListView::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
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
        const bool isKey = m_table->columns()[std::size_t(column)].width == 0;
        if (!isKey || header()->sectionSize(column) > 0)
            columns.push_back(column);
    }
    return m_table->snapshot(std::move(columns));
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
