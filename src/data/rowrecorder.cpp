#include "data/rowrecorder.h"

#include "data/error.h"

#include <QJsonDocument>
#include <QJsonObject>

#define SQLITE_HAS_CODEC
#include <sqlcipher/sqlite3.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QJsonValue jsonValue(sqlite3_value *value)
{
    switch (sqlite3_value_type(value)) {
    case SQLITE_NULL:
        return QJsonValue::Null;
    case SQLITE_INTEGER:
        return qint64(sqlite3_value_int64(value));
    case SQLITE_FLOAT:
        return sqlite3_value_double(value);
    default: {
        const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(value));
        return QString::fromUtf8(text, sqlite3_value_bytes(value));
    }
    }
}

QByteArray image(const QStringList &columns, sqlite3_value **values)
{
    QJsonObject object;
    for (qsizetype i = 0; i < columns.size(); ++i)
        object.insert(columns[i], jsonValue(values[i]));
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace

/// The values are those that trigger() gives: table, key before and after, and the columns of both rows.
struct RowRecorder::Function
{
    static void run(sqlite3_context *context, int count, sqlite3_value **values)
    {
        RowRecorder &self = *static_cast<RowRecorder *>(sqlite3_user_data(context));
        constexpr int first = 3;
        const auto isThere = [values](int key) { return sqlite3_value_type(values[key]) != SQLITE_NULL; };
        const QString name = jsonValue(values[0]).toString();
        const auto table = std::ranges::find(self.m_tables, name, &Table::name);
        if (count < first || table == self.m_tables.end())
            return;
        sqlite3_value **columns = values + first;
        RecordedRow row{name, 0, {}, {}};
        if (isThere(1)) {
            row.key = sqlite3_value_int64(values[1]);
            row.before = image(table->columns, columns);
            columns += table->columns.size();
        }
        if (isThere(2)) {
            row.key = sqlite3_value_int64(values[2]);
            row.after = image(table->columns, columns);
        }
        if (row.before != row.after)
            self.m_rows.push_back(std::move(row));
    }
};

RowRecorder::RowRecorder(sqlite3 *database, const QStringList &tables) : m_database(database)
{
    if (sqlite3_create_function_v2(database, "recorded", -1, SQLITE_UTF8, this, Function::run, nullptr,
                                   nullptr, nullptr) != SQLITE_OK)
        throw Error(Error::Kind::Query, QString::fromUtf8(sqlite3_errmsg(database)));
    for (const QString &table : tables)
        readColumns(table);
    QString triggers;
    for (const Table &table : m_tables)
        triggers += trigger(table, "INSERT", false, true) + trigger(table, "UPDATE", true, true) +
                    trigger(table, "DELETE", true, false);
    run(triggers.toUtf8());
}

void RowRecorder::readColumns(const QString &table)
{
    const auto read = [](void *list, int, char **values, char **) {
        *static_cast<QStringList *>(list) << QString::fromUtf8(values[1]);
        return 0;
    };
    Table found{table, {}};
    if (sqlite3_exec(m_database, u"PRAGMA main.table_info([%1])"_s.arg(table).toUtf8().constData(), read,
                     &found.columns, nullptr) == SQLITE_OK &&
        !found.columns.isEmpty())
        m_tables.push_back(found);
}

QString RowRecorder::trigger(const Table &table, const char *event, bool hasOld, bool hasNew) const
{
    QStringList values{u"'%1'"_s.arg(table.name), hasOld ? u"OLD.rowid"_s : u"NULL"_s,
                       hasNew ? u"NEW.rowid"_s : u"NULL"_s};
    for (const auto &[isThere, row] : {std::pair(hasOld, u"OLD"_s), {hasNew, u"NEW"_s}})
        for (const QString &column : table.columns)
            if (isThere)
                values << row + u".["_s + column + u']';
    return u"CREATE TEMP TRIGGER [recorded_%1_%2] AFTER %2 ON main.[%1] BEGIN SELECT recorded(%3); END;"_s
        .arg(table.name, QString::fromLatin1(event), values.join(u','));
}

void RowRecorder::run(const QByteArray &sql) const
{
    if (sqlite3_exec(m_database, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw Error(Error::Kind::Query, QString::fromUtf8(sqlite3_errmsg(m_database)));
}
