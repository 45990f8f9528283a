#include "lists/readrows.h"

#include "lists/listquery.h"
#include "lists/rowreader.h"

using namespace Qt::StringLiterals;

namespace {

/// Hands the totals their columns of each row.
class TotalsReader
{
public:
    TotalsReader(const Statement &rows, RowTotals &totals) : m_totals(totals)
    {
        for (const QString &name : totals.columns())
            m_columns.push_back(columnNamed(rows, name));
        m_values.resize(m_columns.size());
    }
    void add(const Statement &rows)
    {
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            m_values[i] = rows.utf8(m_columns[i]);
        m_totals.add(m_values, 1);
    }

private:
    RowTotals &m_totals;
    std::vector<int> m_columns;
    std::vector<std::string_view> m_values;
};

} // namespace

namespace readrows {

qint64 into(StoredTable &table, Connection &connection, const QString &sql,
            const std::vector<ListColumn> &columns, Subject subject, RowTotals &totals, Progress *progress)
{
    Statement rows = connection.prepare(sql);
    if (progress)
        progress->begin([&] {
            Statement counted = connection.prepareNative(ListQuery(sql).count());
            return counted.step() ? counted.integer(0) : 0;
        });
    RowReader cells(rows, columns);
    TotalsReader figures(rows, totals);
    const int key = columnNamed(rows, u"código"_s);
    qint64 count = 0;
    while (rows.step()) {
        table.append(cells.read(rows), {subject, rows.integer(key), connection.serial()});
        figures.add(rows);
        ++count;
        if (progress)
            progress->advance(count);
    }
    return count;
}

void sum(Connection &connection, const QString &sql, RowTotals &totals, Progress *progress)
{
    const ListQuery query(sql);
    const QStringList columns = totals.columns();
    Statement rows = connection.prepareNative(query.unordered(columns));
    if (progress)
        progress->begin([&] {
            Statement counted = connection.prepareNative(query.count());
            return counted.step() ? counted.integer(0) : 0;
        });
    std::vector<std::string_view> values(static_cast<std::size_t>(columns.size()));
    for (qint64 count = 0; rows.step(); ++count) {
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = rows.utf8(int(i) + 1); // the row's key comes first
        totals.add(values, 1);
        if (progress)
            progress->advance(count + 1);
    }
}

QStringList names(Connection &connection, const QString &sql, const QString &column)
{
    QStringList names;
    Statement rows = connection.prepare(sql);
    const int name = columnNamed(rows, column);
    while (rows.step())
        if (const QString text = rows.text(name); !text.trimmed().isEmpty())
            names << text;
    return names;
}

} // namespace readrows
