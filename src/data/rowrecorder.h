#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

struct sqlite3;

/// One row as a write found it and left it, by the store's own values: a JSON object by column name, in which
/// text, whole number, number and null stay apart. Empty when there is no such row.
struct RecordedRow
{
    QString table;
    qint64 key = 0; ///< the store's row number
    QByteArray before, after;
};

/// Writes down every row that a connection inserts, changes or deletes in some tables, whichever statement
/// does it. The triggers that tell it live in the connection, not in the file: whoever else writes there
/// neither needs nor feels them.
class RowRecorder
{
public:
    /// Tables that the file does not have are passed over. Throws Error.
    RowRecorder(sqlite3 *database, const QStringList &tables);
    Q_DISABLE_COPY_MOVE(RowRecorder)

    /// The rows since the last call, in the order in which they were changed.
    std::vector<RecordedRow> take() { return std::exchange(m_rows, {}); }

private:
    struct Table
    {
        QString name;
        QStringList columns;
    };

    struct Function; ///< what the triggers call

    void readColumns(const QString &table);
    QString trigger(const Table &table, const char *event, bool hasOld, bool hasNew) const;
    void run(const QByteArray &sql) const;

    sqlite3 *m_database;
    std::vector<Table> m_tables;
    std::vector<RecordedRow> m_rows;
};
