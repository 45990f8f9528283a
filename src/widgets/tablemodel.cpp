#include "widgets/tablemodel.h"

#include "data/dates.h"
#include "data/decimal.h"

#include <QCollator>
#include <QGuiApplication>
#include <QPalette>

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

/// A copy of what a model shows.
class Snapshot : public TableSource
{
public:
    Snapshot(std::vector<ListColumn> columns, std::vector<int> sources)
        : m_columns(std::move(columns)), m_sources(std::move(sources))
    {
    }

    int columnCount() const override { return int(m_columns.size()); }
    QString heading(int column) const override { return m_columns[std::size_t(column)].title; }
    CellKind kind(int column) const override { return m_columns[std::size_t(column)].kind; }
    QString cell(int row, int column) const override
    {
        std::string buffer;
        const std::string_view text = utf8(row, column, buffer);
        return QString::fromUtf8(text.data(), qsizetype(text.size()));
    }

protected:
    int source(int column) const { return m_sources[std::size_t(column)]; }

private:
    std::vector<ListColumn> m_columns;
    std::vector<int> m_sources; ///< columns of the model
};

class HeldSnapshot : public Snapshot
{
public:
    HeldSnapshot(std::vector<ListColumn> columns, std::vector<int> sources,
                 std::shared_ptr<const RowStore> rows, std::vector<quint32> order)
        : Snapshot(std::move(columns), std::move(sources)), m_rows(std::move(rows)), m_order(std::move(order))
    {
    }

    int rowCount() const override { return int(m_order.size()); }
    std::string_view utf8(int row, int column, std::string &) const override
    {
        return m_rows->cell(int(m_order[std::size_t(row)]), source(column));
    }

private:
    std::shared_ptr<const RowStore> m_rows;
    std::vector<quint32> m_order;
};

class KeyedSnapshot : public Snapshot
{
public:
    KeyedSnapshot(std::vector<ListColumn> columns, std::vector<int> sources, const KeyedRows &rows)
        : Snapshot(std::move(columns), std::move(sources)), m_rows(rows)
    {
        m_rows.refresh();
    }

    int rowCount() const override { return m_rows.rowCount(); }
    std::string_view utf8(int row, int column, std::string &) const override
    {
        return m_rows.cell(row, source(column));
    }

private:
    KeyedRows m_rows;
};

} // namespace

TableModel::TableModel(QObject *parent) : QAbstractTableModel(parent), m_rows(std::make_shared<RowStore>())
{
}

void TableModel::setColumns(std::vector<ListColumn> columns)
{
    beginResetModel();
    m_columns = std::move(columns);
    m_rows = std::make_shared<RowStore>(int(m_columns.size()));
    m_order.clear();
    m_keyed = nullptr;
    endResetModel();
}

void TableModel::setRows(std::shared_ptr<const RowStore> rows)
{
    Q_ASSERT(rows->columnCount() == int(m_columns.size()));
    beginResetModel();
    m_keyed = nullptr;
    m_rows = std::move(rows);
    m_kept.clear();
    m_order.resize(std::size_t(m_rows->rowCount()));
    std::iota(m_order.begin(), m_order.end(), 0U);
    endResetModel();
}

void TableModel::keepOnly(const std::vector<int> &rows)
{
    beginResetModel();
    m_kept.assign(std::size_t(m_rows->rowCount()), false);
    for (const int row : rows)
        m_kept[m_order[std::size_t(row)]] = true;
    dropOthers();
    endResetModel();
}

void TableModel::keepAll()
{
    if (m_kept.empty())
        return;
    beginResetModel();
    m_order = std::exchange(m_whole, {});
    m_kept.clear();
    endResetModel();
}

void TableModel::dropOthers()
{
    if (m_kept.empty())
        return;
    m_whole = m_order;
    std::erase_if(m_order, [this](quint32 row) { return !m_kept[row]; });
}

void TableModel::showKeyed(const KeyedRows *rows)
{
    beginResetModel();
    m_keyed = rows;
    m_order.clear();
    endResetModel();
}

void TableModel::moveKeyed(const KeyedRows *rows)
{
    Q_ASSERT(m_keyed && rows->rowCount() == rowCount());
    m_keyed = rows;
}

void TableModel::edit(const RowEdit &edit, const std::function<void()> &perform)
{
    switch (edit.kind) {
    case RowEdit::Kind::Insert:
        beginInsertRows({}, edit.row, edit.row);
        perform();
        endInsertRows();
        break;
    case RowEdit::Kind::Remove:
        beginRemoveRows({}, edit.row, edit.row);
        perform();
        endRemoveRows();
        break;
    case RowEdit::Kind::Update:
        perform();
        Q_EMIT dataChanged(index(edit.row, 0), index(edit.row, columnCount() - 1));
        break;
    }
}

void TableModel::append(int rows, const std::function<void()> &perform)
{
    if (rows == 0)
        return;
    beginInsertRows({}, rowCount(), rowCount() + rows - 1);
    perform();
    endInsertRows();
}

QString TableModel::cell(int row, int column) const
{
    if (!m_keyed)
        return m_rows->text(int(m_order[std::size_t(row)]), column);
    try {
        const std::string_view text = m_keyed->cell(row, column);
        return QString::fromUtf8(text.data(), qsizetype(text.size()));
    } catch (const Error &) {
        return {}; // the next query says what is wrong
    }
}

std::shared_ptr<const TableSource> TableModel::snapshot(std::vector<int> columns) const
{
    std::vector<ListColumn> shown;
    shown.reserve(columns.size());
    for (const int column : columns)
        shown.push_back(m_columns[std::size_t(column)]);
    if (m_keyed)
        return std::make_shared<KeyedSnapshot>(std::move(shown), std::move(columns), *m_keyed);
    return std::make_shared<HeldSnapshot>(std::move(shown), std::move(columns), m_rows, m_order);
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
    if (parent.isValid())
        return 0;
    return m_keyed ? m_keyed->rowCount() : int(m_order.size());
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
        if (const QColor colour =
                m_text.isValid() ? m_text : rowsigns::colour(signOf(index.row()), QGuiApplication::palette());
            colour.isValid())
            return colour;
        return {};
    case Qt::DecorationRole:
        return index.column() == m_signColumn
                   ? rowsigns::icon(signOf(index.row()), QGuiApplication::palette())
                   : QVariant();
    case Qt::AccessibleDescriptionRole:
        return index.column() == m_signColumn ? rowsigns::word(signOf(index.row())) : QVariant();
    case Qt::BackgroundRole: {
        const QColor &colour = index.row() % 2 == 0 ? m_first : m_second;
        return colour.isValid() ? QVariant(colour) : QVariant();
    }
    default:
        return {};
    }
}

void TableModel::setSigns(int column, std::function<RowSign(int row)> sign)
{
    m_signColumn = sign ? column : -1;
    m_sign = std::move(sign);
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

RowSign TableModel::signOf(int row) const
{
    return m_sign ? m_sign(row) : RowSign::None;
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const ListColumn &column = m_columns[std::size_t(section)];
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

void TableModel::sort(int column, Qt::SortOrder order)
{
    if (column >= columnCount())
        return;
    if (m_keyed) {
        Q_EMIT sortRequested(column, order);
        return;
    }
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<quint32> previous = std::move(m_order);
    if (column >= 0) {
        m_order = sortedRows(*m_rows, column, m_columns[std::size_t(column)].kind, order);
    } else {
        m_order.resize(std::size_t(m_rows->rowCount()));
        std::iota(m_order.begin(), m_order.end(), 0U);
    }
    dropOthers();
    if (!before.isEmpty()) {
        std::vector<int> shownAt(std::size_t(m_rows->rowCount()));
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
