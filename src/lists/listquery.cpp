#include "lists/listquery.h"

#include "data/error.h"

using namespace Qt::StringLiterals;

namespace {

bool isComputed(const ListColumn &column)
{
    const bool isNumber = column.kind == CellKind::Number || column.kind == CellKind::Amount;
    return isNumber && column.format && column.sources.size() > 1 &&
           column.format != cellformat::withCurrency;
}

} // namespace

ListQuery::ListQuery(const QString &sql, const std::optional<HeadingSort> &sort)
{
    const dialect::Translation translation = dialect::translate(sql);
    if (translation.table.isEmpty())
        throw Error(Error::Kind::Query, u"Uma lista mostra linhas inteiras de uma só tabela."_s);
    m_table = translation.table;
    m_where = translation.where;
    if (sort && isComputed(sort->column)) {
        m_computed = sort;
    } else if (sort) {
        const QString byHeading = u"SELECT * FROM "_s + m_table + u" ORDER BY ["_s + sort->column.source() +
                                  (sort->descending ? u"] DESC"_s : u"]"_s);
        m_terms = dialect::translate(byHeading).orderTerms;
        m_clicked = m_terms.size();
    }
    m_terms.insert(m_terms.end(), translation.orderTerms.begin(), translation.orderTerms.end());
}

QString ListQuery::select(const QStringList &columns, const QString &condition) const
{
    QString sql = u"SELECT rowid"_s;
    for (const QString &column : columns)
        sql += u", "_s + column;
    sql += u" FROM "_s + m_table;
    QStringList conditions;
    if (!condition.isEmpty())
        conditions << condition;
    if (!m_where.isEmpty())
        conditions << u'(' + m_where + u')';
    return conditions.isEmpty() ? sql : sql + u" WHERE "_s + conditions.join(u" AND "_s);
}

QString ListQuery::orderBy(std::span<const dialect::OrderTerm> terms)
{
    QString sql = u" ORDER BY "_s;
    for (const dialect::OrderTerm &term : terms)
        sql += term.expression + (term.descending ? u" DESC, "_s : u", "_s);
    return sql + u"rowid"_s;
}

QByteArray ListQuery::ordered(const QStringList &columns) const
{
    return (select(columns) + orderBy(m_terms)).toUtf8();
}

QByteArray ListQuery::inOwnOrder(const QStringList &columns) const
{
    return (select(columns) + orderBy(std::span(m_terms).subspan(m_clicked))).toUtf8();
}

QByteArray ListQuery::unordered(const QStringList &columns) const
{
    return select(columns).toUtf8();
}

QByteArray ListQuery::member(const QStringList &columns) const
{
    return select(columns, u"rowid = ?1"_s).toUtf8();
}

QByteArray ListQuery::firstOfTwo() const
{
    return (u"SELECT rowid FROM "_s + m_table + u" WHERE rowid IN (?1, ?2)"_s + orderBy(m_terms) +
            u" LIMIT 1"_s)
        .toUtf8();
}

QByteArray ListQuery::row() const
{
    return (u"SELECT * FROM "_s + m_table + u" WHERE rowid = ?1"_s).toUtf8();
}

QByteArray ListQuery::count() const
{
    const QString where = m_where.isEmpty() ? QString() : u" WHERE "_s + m_where;
    return (u"SELECT count(*) FROM "_s + m_table + where).toUtf8();
}
