#pragma once

#include "data/connection.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>
#include <vector>

/// The rows of one query, walked once from first to last, or a table to which rows are added.
///
///     for (Recordset rows(connection, u"select * from banco"_s); rows.next();)
///         names << rows.text(u"banco");
///
///     Recordset table(connection, u"banco"_s);
///     table.addNew();
///     table.set(u"banco", name);
///     table.update();
///
/// A row of a `SELECT *` on one table is changed with set() and update(), or removed with remove().
/// Column names are found in any letter case; an unknown one throws Error::Kind::Query.
class Recordset
{
public:
    /// `source` is an SQL text or a bare table name.
    Recordset(Connection &connection, const QString &source);

    /// Moves to the next row; false after the last one.
    bool next();
    /// How many rows the source yields. Counted by the store, not by walking; may be asked at any time.
    qint64 count();

    int columnCount() const { return int(m_columns.size()); }
    QStringList columnNames() const { return m_columns; }
    int column(QStringView name) const;
    QString text(QStringView name) const { return text(column(name)); }
    QString text(int column) const { return m_rows->text(column); }
    /// As the store holds it, without a copy; valid until next().
    std::string_view utf8(int column) const { return m_rows->utf8(column); }

    /// Begins a new row; the columns given with set() are written by update().
    void addNew();
    /// Gives a column of the new or the current row its value. A numeric column takes Brazilian number text and
    /// throws Error::Kind::Data for text that is no number.
    void set(QStringView column, const QString &value);
    /// Writes what was set.
    void update();
    /// Deletes the current row.
    void remove();

private:
    void open();
    bool isNumeric(const QString &column) const;
    void readTableColumns();

    Connection &m_connection;
    QString m_source;
    QString m_table;
    std::optional<Statement> m_rows;
    QStringList m_columns;
    QHash<QString, QString> m_tableColumns; ///< folded name → declared type
    QHash<QString, QString> m_tableNames;   ///< folded name → name as declared
    std::vector<std::pair<QString, QString>> m_pending;
    std::optional<Statement> m_insert;
    QStringList m_insertColumns;
    int m_rowKeyColumn = -1;
    bool m_adding = false;
};
