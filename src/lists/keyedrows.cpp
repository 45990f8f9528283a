#include "lists/keyedrows.h"

#include "lists/rowreader.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int windowRows = 128;
constexpr std::size_t windowsKept = 8; ///< more than any screen shows at once

} // namespace

KeyedRows::KeyedRows(DatabaseSource database, quint64 serial, QByteArray rowSql,
                     std::vector<ListColumn> columns, std::deque<qint64> keys)
    : m_database(std::move(database)),
      m_serial(serial),
      m_rowSql(std::move(rowSql)),
      m_columns(std::move(columns)),
      m_keys(std::make_shared<std::deque<qint64>>(std::move(keys)))
{
}

int KeyedRows::rowOf(qint64 key) const
{
    const auto found = std::find(m_keys->cbegin(), m_keys->cend(), key);
    return found == m_keys->cend() ? -1 : int(found - m_keys->cbegin());
}

KeyedRows KeyedRows::only(const std::vector<int> &rows) const
{
    std::deque<qint64> keys;
    for (const int row : rows)
        keys.push_back(key(row));
    return {m_database, m_serial, m_rowSql, m_columns, std::move(keys)};
}

std::string_view KeyedRows::cell(int row, int column) const
{
    const Window &window = windowAt(row);
    return window.rows.cell(row - window.first, column);
}

const KeyedRows::Window &KeyedRows::windowAt(int row) const
{
    const int first = row - row % windowRows;
    const auto kept = std::ranges::find(m_windows, first, &Window::first);
    if (kept != m_windows.end()) {
        m_windows.splice(m_windows.begin(), m_windows, kept);
        return m_windows.front();
    }
    const std::shared_ptr<Connection> connection = m_database();
    if (connection->serial() != m_serial)
        throw Error(Error::Kind::Data, u"o arquivo do banco de dados foi trocado por outro."_s);
    Window window{first, RowStore(int(m_columns.size()))};
    const std::vector<std::string_view> gone(m_columns.size());
    const ReadLock lock(*connection);
    Statement rows = connection->prepareNative(m_rowSql);
    std::optional<RowReader> reader;
    for (int i = first; i < std::min(first + windowRows, rowCount()); ++i) {
        rows.bind(1, key(i));
        const bool found = rows.step();
        if (found && !reader)
            reader.emplace(rows, m_columns);
        window.rows.append(found ? reader->read(rows) : gone);
        rows.reset();
    }
    m_windows.push_front(std::move(window));
    if (m_windows.size() > windowsKept)
        m_windows.pop_back();
    return m_windows.front();
}

std::deque<qint64> &KeyedRows::ownKeys()
{
    if (m_keys.use_count() > 1)
        m_keys = std::make_shared<std::deque<qint64>>(*m_keys);
    m_windows.clear();
    return *m_keys;
}

void KeyedRows::insert(int row, qint64 key)
{
    std::deque<qint64> &keys = ownKeys();
    keys.insert(keys.begin() + row, key);
}

void KeyedRows::remove(int row)
{
    std::deque<qint64> &keys = ownKeys();
    keys.erase(keys.begin() + row);
}

void KeyedRows::append(std::span<const qint64> keys)
{
    std::deque<qint64> &own = ownKeys();
    own.insert(own.end(), keys.begin(), keys.end());
}
