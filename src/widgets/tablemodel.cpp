#include "widgets/tablemodel.h"

#include "data/dates.h"
#include "data/decimal.h"

#include <QCollator>

#include <algorithm>
#include <numeric>

namespace {

/// The rows of `store` ordered by `key(row)`; ties keep the order of the rows, in either direction. Each key
/// is made once.
template <typename MakeKey>
std::vector<quint32> ordered(int rows, Qt::SortOrder order, const MakeKey &makeKey)
{
    using Key = decltype(makeKey(0));
    std::vector<Key> keys;
    keys.reserve(std::size_t(rows));
    for (int row = 0; row < rows; ++row)
        keys.push_back(makeKey(row));
    std::vector<quint32> result(static_cast<std::size_t>(rows));
    std::iota(result.begin(), result.end(), 0U);
    if (order == Qt::AscendingOrder)
        std::ranges::stable_sort(result, [&keys](quint32 a, quint32 b) { return keys[a] < keys[b]; });
    else
        std::ranges::stable_sort(result, [&keys](quint32 a, quint32 b) { return keys[b] < keys[a]; });
    return result;
}

/// What a cell with a number sorts by; a percentage sorts by its number.
Money sortValue(std::string_view cell)
{
    if (cell.ends_with('%'))
        cell.remove_suffix(1);
    return Money::stored(cell);
}

std::vector<quint32> sortedRows(const RowStore &rows, int column, CellKind kind, Qt::SortOrder order)
{
    const int count = rows.rowCount();
    switch (kind) {
    case CellKind::Number:
    case CellKind::Amount:
        return ordered(count, order, [&](int row) { return sortValue(rows.cell(row, column)); });
    case CellKind::Date:
        return ordered(count, order, [&](int row) { return dates::read(rows.text(row, column)); });
    case CellKind::Text:
        break;
    }
    QCollator collator(QLocale(QLocale::Portuguese, QLocale::Brazil));
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return ordered(count, order, [&](int row) { return collator.sortKey(rows.text(row, column)); });
}

} // namespace

TableModel::TableModel(QObject *parent) : QAbstractTableModel(parent)
{
}

void TableModel::setColumns(std::vector<Column> columns)
{
    beginResetModel();
    m_columns = std::move(columns);
    m_rows = RowStore(int(m_columns.size()));
    m_order.clear();
    endResetModel();
}

void TableModel::setRows(RowStore rows)
{
    Q_ASSERT(rows.columnCount() == int(m_columns.size()));
    beginResetModel();
    m_rows = std::move(rows);
    m_order.resize(std::size_t(m_rows.rowCount()));
    std::iota(m_order.begin(), m_order.end(), 0U);
    endResetModel();
}

QString TableModel::cell(int row, int column) const
{
    return m_rows.text(int(m_order[std::size_t(row)]), column);
}

std::string_view TableModel::utf8(int row, int column) const
{
    return m_rows.cell(int(m_order[std::size_t(row)]), column);
}

void TableModel::setColours(const QColor &text, const QColor &first, const QColor &second)
{
    m_text = text;
    m_first = first;
    m_second = second;
    if (rowCount() > 0 && columnCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
                           {Qt::ForegroundRole, Qt::BackgroundRole});
}

int TableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_order.size());
}

int TableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant TableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return cell(index.row(), index.column());
    case Qt::TextAlignmentRole:
        return headerData(index.column(), Qt::Horizontal, role);
    case Qt::ForegroundRole:
        return m_text.isValid() ? QVariant(m_text) : QVariant();
    case Qt::BackgroundRole: {
        const QColor &colour = index.row() % 2 == 0 ? m_first : m_second;
        return colour.isValid() ? QVariant(colour) : QVariant();
    }
    default:
        return {};
    }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const Column &column = m_columns[std::size_t(section)];
    if (role == Qt::DisplayRole)
        return column.title;
    if (role == Qt::TextAlignmentRole) {
        const bool isAmount = column.kind == CellKind::Number || column.kind == CellKind::Amount;
        return QVariant::fromValue(Qt::AlignVCenter | (isAmount ? Qt::AlignRight : Qt::AlignLeft));
    }
    return {};
}

Qt::ItemFlags TableModel::flags(const QModelIndex &index) const
{
    return QAbstractTableModel::flags(index) | (index.isValid() ? Qt::ItemNeverHasChildren : Qt::NoItemFlags);
}

bool TableModel::removeRows(int row, int count, const QModelIndex &parent)
{
    if (parent.isValid() || row < 0 || count < 1 || count > rowCount() - row)
        return false;
    beginRemoveRows(parent, row, row + count - 1);
    std::vector<quint32> removed(m_order.begin() + row, m_order.begin() + row + count);
    m_order.erase(m_order.begin() + row, m_order.begin() + row + count);
    std::ranges::sort(removed);
    for (auto last = removed.rbegin(); last != removed.rend(); ++last)
        m_rows.removeRow(int(*last));
    // The rows of the store have moved up by as many as went before them.
    for (quint32 &stored : m_order)
        stored -= quint32(std::ranges::lower_bound(removed, stored) - removed.begin());
    endRemoveRows();
    return true;
}

void TableModel::sort(int column, Qt::SortOrder order)
{
    if (column >= columnCount())
        return;
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<quint32> previous = std::move(m_order);
    if (column >= 0) {
        m_order = sortedRows(m_rows, column, m_columns[std::size_t(column)].kind, order);
    } else {
        m_order.resize(previous.size());
        std::iota(m_order.begin(), m_order.end(), 0U);
    }
    if (!before.isEmpty()) {
        std::vector<int> shownAt(m_order.size());
        for (std::size_t row = 0; row < m_order.size(); ++row)
            shownAt[m_order[row]] = int(row);
        QModelIndexList after;
        after.reserve(before.size());
        for (const QModelIndex &old : before)
            after << index(shownAt[previous[std::size_t(old.row())]], old.column());
        changePersistentIndexList(before, after);
    }
    Q_EMIT layoutChanged({}, VerticalSortHint);
}
