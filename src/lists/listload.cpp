#include "lists/listload.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int rowsBetweenChecks = 512;

/// Whether the store walks the rows in the order asked for, without sorting them and without looking up each
/// row of the table at random.
bool comesInOrder(Connection &connection, const QByteArray &sql)
{
    Statement plan = connection.prepareNative("EXPLAIN QUERY PLAN " + sql);
    bool inOrder = true;
    while (plan.step()) {
        const QString step = plan.text(3);
        inOrder &= !step.contains("TEMP B-TREE"_L1);
        inOrder &= !step.contains("USING INDEX"_L1); // but COVERING INDEX, or the table itself
    }
    return inOrder;
}

/// The values of a computed heading and of the terms, as columns of a query.
QStringList orderColumns(const ListQuery &query, std::size_t terms)
{
    QStringList columns;
    if (query.computedSort())
        columns = query.computedSort()->column.sources;
    for (const dialect::OrderTerm &term : std::span(query.terms()).first(terms))
        columns << (term.dateColumn.isEmpty() ? term.expression : term.dateColumn);
    return columns;
}

} // namespace

ListLoad::ListLoad(std::shared_ptr<Connection> connection, const ListQuery &query, const RowTotals &totals)
    : m_connection(std::move(connection)),
      m_query(query),
      m_totals(totals.clone()),
      m_dataVersion(m_connection->dataVersion())
{
    m_values.resize(std::size_t(totals.columns().size()));
    chooseOrder();
}

void ListLoad::chooseOrder()
{
    const QStringList summed = m_totals->columns();
    const bool clicked = m_query.clickedTerms() > 0 || m_query.computedSort();
    const QByteArray asAsked = m_query.ordered(summed);
    if (!m_query.computedSort() && comesInOrder(*m_connection, asAsked)) {
        m_rows = m_connection->prepareNative(asAsked);
        return;
    }
    const auto sorting = [&](std::size_t terms, RowOrder::Ties ties) {
        m_firstTotal = 1 + int(orderColumns(m_query, terms).size());
        m_order = std::make_unique<RowOrder>(std::span(m_query.terms()).first(terms), m_query.computedSort(),
                                             ties, 1);
    };
    const QStringList ofHeading = orderColumns(m_query, m_query.clickedTerms()) + summed;
    if (const QByteArray own = m_query.inOwnOrder(ofHeading); clicked && comesInOrder(*m_connection, own)) {
        sorting(m_query.clickedTerms(), RowOrder::Ties::AsAdded);
        m_rows = m_connection->prepareNative(own);
        return;
    }
    const std::size_t terms = m_query.terms().size();
    if (terms + (m_query.computedSort() ? 1 : 0) > RowOrder::maxTerms) {
        m_rows = m_connection->prepareNative(asAsked);
        return;
    }
    sorting(terms, RowOrder::Ties::ByKey);
    m_rows = m_connection->prepareNative(m_query.unordered(orderColumns(m_query, terms) + summed));
}

bool ListLoad::run(const QDeadlineTimer &until)
{
    if (m_connection->inTransaction()) // what is written there may never be committed
        return false;
    if (m_rows && !read(until))
        return false;
    m_rows.reset(); // lets go of the file
    if (m_order) {
        if (!m_order->run(until))
            return false;
        m_keys = m_order->takeKeys();
        m_order.reset();
    }
    return true;
}

bool ListLoad::read(const QDeadlineTimer &until)
{
    for (int untilCheck = rowsBetweenChecks; m_rows->step(); --untilCheck) {
        const qint64 key = m_rows->integer(0);
        if (m_order)
            m_order->add(key, *m_rows);
        else
            m_keys.push_back(key);
        for (std::size_t i = 0; i < m_values.size(); ++i)
            m_values[i] = m_rows->utf8(m_firstTotal + int(i));
        m_totals->add(m_values, 1);
        ++m_rowsRead;
        if (untilCheck == 0) {
            if (until.hasExpired())
                return false;
            untilCheck = rowsBetweenChecks;
        }
    }
    return true;
}

qint64 ListLoad::countRows() const
{
    Statement counted = m_connection->prepareNative(m_query.count());
    counted.step();
    return counted.integer(0);
}
