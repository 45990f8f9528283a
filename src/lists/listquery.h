#pragma once

#include "data/dialect.h"
#include "lists/listcolumn.h"

#include <QByteArray>

#include <optional>
#include <span>
#include <vector>

/// A heading that the user clicked: its column orders the rows before the query's own order does.
struct HeadingSort
{
    ListColumn column;
    bool descending = false;
};

/// Which rows of one table a list shows, and in which order, as texts for the store. Rows that the order does
/// not tell apart come as they were inserted.
class ListQuery
{
public:
    ListQuery() = default;
    /// `sql` is a `SELECT * FROM table …` in the program's dialect. Throws Error::Kind::Query for another
    /// one.
    explicit ListQuery(const QString &sql, const std::optional<HeadingSort> &sort = {});

    const QString &table() const { return m_table; }
    /// The order by which rows are compared, the clicked heading first.
    const std::vector<dialect::OrderTerm> &terms() const { return m_terms; }
    /// A heading whose cells are computed: no statement can order by it.
    const std::optional<HeadingSort> &computedSort() const { return m_computed; }

    /// How many of the terms come from the heading.
    std::size_t clickedTerms() const { return m_clicked; }

    /// The row keys and then `columns`, in the rows' order.
    QByteArray ordered(const QStringList &columns) const;
    /// The same in the query's own order, whatever heading was clicked.
    QByteArray inOwnOrder(const QStringList &columns) const;
    /// The same in whatever order the store finds the rows fastest.
    QByteArray unordered(const QStringList &columns) const;
    /// The key and `columns` of one row (parameter 1), if it is one of the list's.
    QByteArray member(const QStringList &columns) const;
    /// The key of whichever of two rows (parameters 1 and 2) comes first.
    QByteArray firstOfTwo() const;
    /// All columns of one row (parameter 1), whether or not it is one of the list's.
    QByteArray row() const;
    QByteArray count() const;

private:
    QString select(const QStringList &columns, const QString &condition = {}) const;
    static QString orderBy(std::span<const dialect::OrderTerm> terms);

    QString m_table;
    QString m_where; ///< empty for all rows
    std::vector<dialect::OrderTerm> m_terms;
    std::size_t m_clicked = 0;
    std::optional<HeadingSort> m_computed;
};
