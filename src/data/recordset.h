#pragma once

#include "data/connection.h"

#include <QByteArray>
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
/// A row of a `SELECT *` on one table is changed with set() and update(), or removed with remove(). From the
/// first such call the rows still to come are those that the query had found, each read anew when next()
/// reaches it, and nothing of the file stays locked between them. Column names are found in any letter case;
/// an unknown one throws Error::Kind::Query.
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
    int column(QStringView name) const;
    QString text(QStringView name) const { return text(column(name)); }
    /// The value as the program's text. Empty before the first and after the last row.
    QString text(int column) const;
    /// As the store holds it, without a copy; valid until next().
    std::string_view utf8(int column) const;

    /// Begins a new row; the columns given with set() are written by update().
    void addNew();
    /// Gives a column of the new or the current row its value. A numeric column takes Brazilian number text
    /// and throws Error::Kind::Data for text that is no number.
    void set(QStringView column, const QString &value);
    /// Writes what was set, and tells what that changed. A new row is imaged as it was written: columns that
    /// were not set are not in it.
    RowChange update();
    /// Deletes the current row.
    RowChange remove();
    /// The current row's values.
    RowImage image() const;
    /// The store's number of the current row of a table that can be changed.
    qint64 rowKey() const { return m_rowKey; }

private:
    struct TableColumn
    {
        QString name; ///< as declared
        bool numeric;
    };
    struct Value
    {
        QString text;
        QByteArray utf8;
    };
    enum class State { BeforeRows, OnRow, AfterRows, Adding };

    void readTableColumns();
    const TableColumn &tableColumn(QStringView name);
    void detach();
    void copyRow();
    bool readDetachedRow(qint64 key);
    bool nextDetachedRow();
    RowChange insertRow();
    RowChange updateRow();

    Connection &m_connection;
    QString m_countSql;
    QString m_table; ///< the table that can be changed; empty when there is none
    std::optional<Statement> m_rows;
    QStringList m_columns;
    State m_state = State::BeforeRows;

    QHash<QString, TableColumn> m_tableColumns;         ///< by folded name; filled when first needed
    std::vector<std::pair<QString, QString>> m_pending; ///< declared column name and the text to store
    std::optional<Statement> m_insert;
    QStringList m_insertColumns;

    // Once a row was changed: the keys of the rows to come, the one in hand, and its values.
    bool m_detached = false;
    std::vector<qint64> m_keys;
    std::size_t m_nextKey = 0;
    qint64 m_rowKey = 0;
    std::vector<Value> m_values;
};
