#include "lists/keyedlist.h"

#include <algorithm>

namespace {

constexpr std::size_t mostFollowed = 64; ///< for more rows reading the list again is hardly slower

std::vector<std::string> valuesOf(const RowImage &image, const QStringList &columns)
{
    std::vector<std::string> values;
    for (const QString &column : columns)
        values.push_back(image.text(column).toStdString());
    return values;
}

void count(RowTotals &totals, const std::vector<std::string> &values, int sign)
{
    totals.add(std::vector<std::string_view>(values.begin(), values.end()), sign);
}

} // namespace

/// The statements by which a change is followed, prepared once for all its rows.
struct KeyedList::Lookups
{
    Lookups(Connection &connection, const ListQuery &query, const QStringList &summed)
        : member(connection.prepareNative(query.member(summed))),
          firstOfTwo(connection.prepareNative(query.firstOfTwo())),
          exists(connection.prepareNative(query.row()))
    {
    }

    /// The values to add up, if the row is one of the list's.
    std::optional<std::vector<std::string>> valuesOfMember(qint64 key)
    {
        member.bind(1, key);
        std::optional<std::vector<std::string>> values;
        if (member.step()) {
            values.emplace();
            for (int i = 1; i < member.columnCount(); ++i)
                values->emplace_back(member.utf8(i));
        }
        member.reset();
        return values;
    }
    bool isThere(qint64 key)
    {
        exists.bind(1, key);
        const bool found = exists.step();
        exists.reset();
        return found;
    }
    bool comesBefore(qint64 a, qint64 b)
    {
        firstOfTwo.bind(1, a);
        firstOfTwo.bind(2, b);
        const bool before = firstOfTwo.step() && firstOfTwo.integer(0) == a;
        firstOfTwo.reset();
        return before;
    }

    Statement member, firstOfTwo, exists;
};

KeyedList::KeyedList(std::vector<ListColumn> columns, std::unique_ptr<RowTotals> noTotals,
                     DatabaseSource database)
    : m_columns(std::move(columns)),
      m_noTotals(std::move(noTotals)),
      m_totals(m_noTotals->clone()),
      m_database(std::move(database))
{
}

KeyedRows KeyedList::rowsOf(const ListLoad &load) const
{
    return {m_database, load.serial(), load.query().row(), m_columns, load.keys()};
}

void KeyedList::take(ListLoad &load)
{
    m_query = load.query();
    m_dataVersion = load.dataVersion();
    m_rows = {m_database, load.serial(), m_query.row(), m_columns, load.takeKeys()};
    m_totals = load.takeTotals();
}

bool KeyedList::canFollow(Connection &connection, const std::vector<RowChange> &changes) const
{
    return !changes.empty() && changes.size() <= mostFollowed && !m_query.computedSort() &&
           connection.serial() == m_rows.serial() && connection.dataVersion() == m_dataVersion;
}

bool KeyedList::apply(Connection &connection, const std::vector<RowChange> &changes, const Observer &observer)
{
    if (!canFollow(connection, changes))
        return false;
    Lookups lookups(connection, m_query, m_totals->columns());
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        // A row that was changed several times is followed once, from what it first was to what it is.
        const bool followed = std::find_if(changes.begin(), change, [&](const RowChange &earlier) {
                                  return earlier.key == change->key;
                              }) != change;
        if (!followed && !follow(lookups, *change, observer))
            return false;
    }
    return true;
}

bool KeyedList::follow(Lookups &lookups, const RowChange &change, const Observer &observer)
{
    const int row = m_rows.rowOf(change.key);
    const auto values = lookups.valuesOfMember(change.key);
    if (row >= 0) {
        if (!change.before.exists()) // it was there, and nobody knows how
            return false;
        count(*m_totals, valuesOf(change.before, m_totals->columns()), -1);
    }
    if (values)
        count(*m_totals, *values, 1);
    std::optional<int> target;
    if (values) {
        target = place(lookups, change.key, row);
        if (!target)
            return false;
    }
    if (row >= 0 && target == row) {
        observer({RowEdit::Kind::Update, row}, [this] { m_rows.refresh(); });
        return true;
    }
    if (row >= 0)
        observer({RowEdit::Kind::Remove, row}, [&] { m_rows.remove(row); });
    if (target)
        observer({RowEdit::Kind::Insert, *target}, [&] { m_rows.insert(*target, change.key); });
    return true;
}

std::optional<int> KeyedList::place(Lookups &lookups, qint64 key, int without) const
{
    // Rows are counted as if the one that is placed were not there.
    const auto keyAt = [&](int row) { return m_rows.key(without >= 0 && row >= without ? row + 1 : row); };
    int low = 0;
    int high = m_rows.rowCount() - (without >= 0 ? 1 : 0);
    while (low < high) {
        const int middle = low + (high - low) / 2;
        const qint64 other = keyAt(middle);
        if (!lookups.isThere(other))
            return std::nullopt;
        if (lookups.comesBefore(key, other))
            high = middle;
        else
            low = middle + 1;
    }
    return low;
}
