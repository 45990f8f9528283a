#include "data/recordset.h"

#include "data/decimal.h"
#include "data/dialect.h"
#include "data/like.h"

#include <algorithm>

using namespace Qt::StringLiterals;

Recordset::Recordset(Connection &connection, const QString &source) : m_connection(connection)
{
    const QString table = dialect::bareTableName(source);
    const dialect::Translation query =
        dialect::translate(table.isEmpty() ? source : u"SELECT * FROM "_s + table, dialect::RowKey::Appended);
    if (!query.isSelect)
        throw Error(Error::Kind::Query, u"Só uma consulta (SELECT) devolve linhas do banco de dados."_s);
    m_countSql = query.countSql;
    m_table = query.table;
    m_rows = m_connection.prepareNative(query.sql.toUtf8());
    const int visible = m_rows->columnCount() - (m_table.isEmpty() ? 0 : 1);
    for (int i = 0; i < visible; ++i)
        m_columns << m_rows->columnName(i);
}

bool Recordset::next()
{
    m_pending.clear();
    if (m_state != State::AfterRows) {
        const bool found = m_detached ? nextDetachedRow() : m_rows->step();
        m_state = found ? State::OnRow : State::AfterRows;
        if (found && !m_detached && !m_table.isEmpty())
            m_rowKey = m_rows->integer(columnCount());
    }
    return m_state == State::OnRow;
}

qint64 Recordset::count()
{
    Statement counted = m_connection.prepareNative(m_countSql.toUtf8());
    counted.step();
    return counted.integer(0);
}

int Recordset::column(QStringView name) const
{
    const auto exact = std::find(m_columns.begin(), m_columns.end(), name);
    const auto found =
        exact != m_columns.end()
            ? exact
            : std::find_if(m_columns.begin(), m_columns.end(), [name](const QString &candidate) {
                  return textorder::equalFolded(candidate, name);
              });
    if (found == m_columns.end())
        throw Error(Error::Kind::Query, u"A consulta não tem a coluna \"%1\"."_s.arg(name));
    return int(found - m_columns.begin());
}

QString Recordset::text(int column) const
{
    if (m_detached)
        return column < int(m_values.size()) ? m_values[std::size_t(column)].text : QString();
    return m_state == State::OnRow ? m_rows->text(column) : QString();
}

std::string_view Recordset::utf8(int column) const
{
    if (m_detached) {
        if (column >= int(m_values.size()))
            return {};
        const QByteArray &value = m_values[std::size_t(column)].utf8;
        return {value.constData(), std::size_t(value.size())};
    }
    return m_state == State::OnRow ? m_rows->utf8(column) : std::string_view();
}

void Recordset::addNew()
{
    readTableColumns();
    m_pending.clear();
    m_state = State::Adding;
}

void Recordset::set(QStringView column, const QString &value)
{
    const TableColumn &target = tableColumn(column);
    QString stored = value;
    if (target.numeric) {
        const std::optional<Money> number = Money::parse(value);
        if (!number)
            throw Error(Error::Kind::Data, u"\"%1\" não é um número e não pode ser gravado em \"%2\"."_s.arg(
                                               value, target.name));
        stored = number->sqlNumber();
    }
    const auto given = std::find_if(m_pending.begin(), m_pending.end(),
                                    [&](const auto &pending) { return pending.first == target.name; });
    if (given == m_pending.end())
        m_pending.emplace_back(target.name, stored);
    else
        given->second = stored;
}

RowChange Recordset::update()
{
    RowChange change;
    if (m_state == State::Adding)
        change = insertRow();
    else if (!m_pending.empty())
        change = updateRow();
    else
        change = {m_rowKey, image(), image()};
    m_pending.clear();
    return change;
}

RowImage Recordset::image() const
{
    QStringList values;
    for (int i = 0; i < columnCount(); ++i)
        values << text(i);
    return {m_columns, values};
}

RowChange Recordset::remove()
{
    detach();
    RowChange change{m_rowKey, image(), {}};
    Statement statement = m_connection.prepareNative(u"DELETE FROM %1 WHERE rowid=?"_s.arg(m_table).toUtf8());
    statement.bind(1, m_rowKey);
    statement.step();
    return change;
}

void Recordset::readTableColumns()
{
    if (!m_tableColumns.isEmpty())
        return;
    if (m_table.isEmpty())
        throw Error(Error::Kind::Query, u"As linhas desta consulta não podem ser alteradas."_s);
    Statement columns = m_connection.prepareNative(u"PRAGMA table_info(%1)"_s.arg(m_table).toUtf8());
    while (columns.step()) {
        const QString name = columns.text(1);
        const QString type = columns.text(2);
        m_tableColumns.insert(textorder::folded(name), {name, type == "INTEGER"_L1 || type == "NUMERIC"_L1});
    }
}

const Recordset::TableColumn &Recordset::tableColumn(QStringView name)
{
    readTableColumns();
    for (const TableColumn &column : std::as_const(m_tableColumns))
        if (column.name == name) // mostly so; a hash of the folded name costs several times as much
            return column;
    const auto found = m_tableColumns.constFind(textorder::folded(name));
    if (found == m_tableColumns.constEnd())
        throw Error(Error::Kind::Query, u"A tabela %1 não tem a coluna \"%2\"."_s.arg(m_table, name));
    return *found;
}

/// Lets go of the running query before the first change: a write that waits for another process must not hold
/// the file itself, and rows that the change moves must not come twice.
void Recordset::detach()
{
    readTableColumns();
    if (m_state != State::OnRow)
        throw Error(Error::Kind::Query, u"Não há linha atual para alterar."_s);
    if (m_detached)
        return;
    copyRow();
    while (m_rows->step())
        m_keys.push_back(m_rows->integer(columnCount()));
    m_rows = m_connection.prepareNative(u"SELECT *, rowid FROM %1 WHERE rowid=?"_s.arg(m_table).toUtf8());
    m_detached = true;
}

void Recordset::copyRow()
{
    m_values.clear();
    for (int i = 0; i < columnCount(); ++i) {
        const std::string_view utf8 = m_rows->utf8(i);
        m_values.push_back({m_rows->text(i), QByteArray(utf8.data(), qsizetype(utf8.size()))});
    }
}

/// Copies the row of that key, so that no query stays open; false when it is no longer there.
bool Recordset::readDetachedRow(qint64 key)
{
    m_rowKey = key;
    m_rows->bind(1, key);
    const bool found = m_rows->step();
    if (found)
        copyRow();
    m_rows->reset();
    return found;
}

bool Recordset::nextDetachedRow()
{
    while (m_nextKey < m_keys.size()) {
        if (readDetachedRow(m_keys[m_nextKey++]))
            return true;
    }
    m_values.clear();
    return false;
}

RowChange Recordset::insertRow()
{
    const auto named = [](const auto &pending, const QString &column) { return pending.first == column; };
    if (!m_insert || !std::equal(m_pending.begin(), m_pending.end(), m_insertColumns.cbegin(),
                                 m_insertColumns.cend(), named)) {
        m_insertColumns.clear();
        QStringList places;
        for (const auto &[column, value] : m_pending) {
            m_insertColumns << column;
            places << u"?"_s;
        }
        const QString values =
            places.isEmpty() ? u"DEFAULT VALUES"_s
                             : u"([%1]) VALUES (%2)"_s.arg(m_insertColumns.join(u"],["), places.join(u','));
        m_insert = m_connection.prepareNative(u"INSERT INTO %1 %2"_s.arg(m_table, values).toUtf8());
    }
    for (std::size_t i = 0; i < m_pending.size(); ++i)
        m_insert->bind(int(i) + 1, m_pending[i].second);
    m_insert->step();
    m_insert->reset();
    m_state = State::AfterRows;
    QStringList values;
    for (const auto &[column, value] : m_pending)
        values << value;
    return {m_connection.lastInsertedRow(), {}, {m_insertColumns, values}};
}

RowChange Recordset::updateRow()
{
    detach();
    RowChange change{m_rowKey, image(), {}};
    QStringList assignments;
    for (const auto &[column, value] : m_pending)
        assignments << u"[%1]=?"_s.arg(column);
    Statement statement = m_connection.prepareNative(
        u"UPDATE %1 SET %2 WHERE rowid=?"_s.arg(m_table, assignments.join(u", ")).toUtf8());
    for (std::size_t i = 0; i < m_pending.size(); ++i)
        statement.bind(int(i) + 1, m_pending[i].second);
    statement.bind(int(m_pending.size()) + 1, m_rowKey);
    statement.step();
    if (!readDetachedRow(m_rowKey))
        throw Error(Error::Kind::Data, u"A linha não existe mais: outro usuário a excluiu."_s);
    change.after = image();
    return change;
}
