#include "data/undo.h"

#include "data/connection.h"
#include "data/decimal.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using undo::Reason;

/// What is particular about a table: who is told, the column that names its rows and may not come twice, and
/// the one that counts goods.
struct TableRule
{
    QStringView table;
    std::optional<Subject> subject = {};
    QString uniqueName = {};
    QString goods = {};
};

const TableRule &ruleOf(const QString &table)
{
    static const TableRule none{};
    static const TableRule rules[] = {
        {u"pagar", Subject::Payables},
        {u"receber", Subject::Receivables},
        {u"bancario", Subject::Movements},
        {u"banco", Subject::Accounts, u"banco"_s},
        {u"cliente", Subject::Clients},
        {u"fornecedor", Subject::Suppliers},
        {u"pcontapagar", Subject::CostCentres, u"descricao"_s},
        {u"pcontareceber", Subject::ProfitCentres, u"descricao"_s},
        {u"produto", Subject::Products, u"produto"_s, u"qtde"_s},
        {u"compromisso", Subject::Appointments},
        {u"fpagamento", {}, u"pagamento"_s},
        {u"recorrencia", Subject::Regulars},
    };
    const auto found = std::ranges::find(rules, QStringView(table), &TableRule::table);
    return found == std::end(rules) ? none : *found;
}

QJsonObject parsed(const QByteArray &image)
{
    return QJsonDocument::fromJson(image).object();
}

QString textOf(const QJsonValue &value)
{
    if (!value.isDouble())
        return value.toString();
    return QString::number(value.toDouble(), 'g', 15).replace(u'.', u',');
}

RowImage imageOf(const QJsonObject &row)
{
    QStringList values;
    for (const QJsonValue value : row)
        values << textOf(value);
    return {row.keys(), values};
}

QString quoted(const QString &name)
{
    return u'[' + name + u']';
}

/// The step from a row's state `from` to `to`, either of which may be none.
class RowStep
{
public:
    RowStep(Connection &connection, const RecordedRow &row)
        : m_connection(connection),
          m_rule(ruleOf(row.table)),
          m_table(quoted(row.table)),
          m_key(row.key),
          m_from(parsed(row.after)),
          m_to(parsed(row.before)),
          m_now(read())
    {
    }

    /// Why the step cannot be made.
    std::optional<Reason> problem() const
    {
        if (m_from.isEmpty())
            return m_now.isEmpty() && !isNameTaken() ? std::nullopt : std::optional(Reason::Taken);
        if (m_now.isEmpty())
            return Reason::Gone;
        if (m_to.isEmpty())
            return m_now == m_from ? std::nullopt : std::optional(Reason::Changed);
        for (const QString &column : changedColumns())
            if (m_now[column] != m_from[column] && column != m_rule.goods)
                return Reason::Changed;
        return isNameTaken() ? std::optional(Reason::Taken) : std::nullopt;
    }

    void make(Transaction &transaction)
    {
        if (m_from.isEmpty())
            insert();
        else if (m_to.isEmpty())
            remove();
        else
            update();
        if (m_rule.subject)
            transaction.note(*m_rule.subject, {m_key, imageOf(m_now), imageOf(read())});
    }

private:
    QJsonObject read() const
    {
        Statement found =
            m_connection.prepareNative(u"SELECT * FROM %1 WHERE rowid = ?"_s.arg(m_table).toUtf8());
        found.bind(1, m_key);
        QJsonObject row;
        if (found.step())
            for (int i = 0; i < found.columnCount(); ++i)
                row.insert(found.columnName(i), found.value(i));
        return row;
    }

    QStringList changedColumns() const
    {
        QStringList changed;
        for (const QString &column : m_to.keys())
            if (m_to[column] != m_from[column])
                changed << column;
        return changed;
    }

    bool isNameTaken() const
    {
        if (m_rule.uniqueName.isEmpty() || m_to[m_rule.uniqueName] == m_from[m_rule.uniqueName])
            return false;
        Statement found = m_connection.prepareNative(
            u"SELECT 1 FROM %1 WHERE %2 = ? AND rowid <> ?"_s.arg(m_table, quoted(m_rule.uniqueName))
                .toUtf8());
        found.bindValue(1, m_to[m_rule.uniqueName]);
        found.bind(2, m_key);
        return found.step();
    }

    void insert() const
    {
        const QStringList columns = m_to.keys();
        QStringList names, marks{u"?"_s};
        for (const QString &column : columns) {
            names << quoted(column);
            marks << u"?"_s;
        }
        Statement statement = m_connection.prepareNative(
            u"INSERT INTO %1 (rowid, %2) VALUES (%3)"_s.arg(m_table, names.join(u','), marks.join(u','))
                .toUtf8());
        statement.bind(1, m_key);
        for (qsizetype i = 0; i < columns.size(); ++i)
            statement.bindValue(int(i) + 2, m_to[columns[i]]);
        statement.step();
    }

    void remove() const
    {
        Statement statement =
            m_connection.prepareNative(u"DELETE FROM %1 WHERE rowid = ?"_s.arg(m_table).toUtf8());
        statement.bind(1, m_key);
        statement.step();
    }

    void update() const
    {
        const QStringList columns = changedColumns();
        QStringList assignments;
        for (const QString &column : columns)
            assignments << quoted(column) + u" = ?"_s;
        Statement statement = m_connection.prepareNative(
            u"UPDATE %1 SET %2 WHERE rowid = ?"_s.arg(m_table, assignments.join(u", ")).toUtf8());
        for (qsizetype i = 0; i < columns.size(); ++i)
            statement.bindValue(int(i) + 1, target(columns[i]));
        statement.bind(int(columns.size()) + 1, m_key);
        statement.step();
    }

    /// Goods that somebody else moved meanwhile stay moved.
    QJsonValue target(const QString &column) const
    {
        if (m_now[column] == m_from[column])
            return m_to[column];
        const auto quantity = [&column](const QJsonObject &row) {
            return Quantity::stored(textOf(row[column]));
        };
        return (quantity(m_now) + (quantity(m_to) - quantity(m_from))).sqlNumber();
    }

    Connection &m_connection;
    const TableRule &m_rule;
    QString m_table;
    qint64 m_key;
    QJsonObject m_from, m_to, m_now;
};

qint64 number(Connection &connection, const QByteArray &sql)
{
    Statement found = connection.prepareNative(sql);
    found.bind(1, journal::author().installation);
    return found.step() ? found.integer(0) : 0;
}

/// How a done step stands; the column `desfeito` of the journal.
void mark(Connection &connection, qint64 step, const QJsonValue &undoneBy)
{
    Statement update = connection.prepareNative("UPDATE historico SET desfeito = ? WHERE numero = ?");
    update.bindValue(1, undoneBy);
    update.bind(2, step);
    update.step();
}

/// Takes back the rows of the step `recorded`, which makes a step of `kind` for the step `of`.
undo::Outcome invert(Connection &connection, qint64 recorded, journal::Kind kind, qint64 of)
{
    undo::Outcome outcome{of, false, {}};
    const std::vector<RecordedRow> rows = journal::rows(connection, recorded);
    Transaction transaction(connection);
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        RowStep step(connection, *row);
        if (const std::optional<Reason> reason = step.problem())
            outcome.refused.push_back({*row, *reason});
        else
            step.make(transaction);
    }
    const bool movesGoods =
        std::ranges::any_of(rows, [](const RecordedRow &row) { return !ruleOf(row.table).goods.isEmpty(); });
    if (!outcome.refused.empty() && (movesGoods || outcome.refused.size() == rows.size()))
        return outcome;
    const qint64 written = journal::writeStep(connection, kind, of);
    mark(connection, of, kind == journal::Kind::Undone ? QJsonValue(written) : QJsonValue::Null);
    transaction.commit();
    outcome.isDone = true;
    return outcome;
}

/// Keeps what was refused from standing in the way of the steps before it.
void passOver(Connection &connection, qint64 step, const QJsonValue &undoneBy)
{
    Transaction transaction(connection);
    mark(connection, step, undoneBy);
    transaction.commit();
}

qint64 undoneBy(Connection &connection, qint64 step)
{
    Statement found = connection.prepareNative("SELECT ifnull(desfeito, 0) FROM historico WHERE numero = ?");
    found.bind(1, step);
    return found.step() ? found.integer(0) : 0;
}

/// A step that was done again stands as that left it.
qint64 standing(Connection &connection, qint64 step)
{
    Statement found = connection.prepareNative(
        "SELECT ifnull(max(numero), ?1) FROM historico WHERE numero > ?1 AND passo = ?1 AND tipo = 'R'");
    found.bind(1, step);
    found.step();
    return found.integer(0);
}

} // namespace

namespace undo {

// `desfeito` of a done step is null while it stands, the step that took it back, 0 when that was refused, and
// minus that step when doing it again was refused.

qint64 next(Connection &connection)
{
    return number(connection, "SELECT numero FROM historico WHERE instalacao = ? AND tipo = 'F' "
                              "AND desfeito IS NULL ORDER BY numero DESC LIMIT 1");
}

qint64 nextAgain(Connection &connection)
{
    return number(connection,
                  "SELECT numero FROM historico WHERE instalacao = ?1 AND tipo = 'F' AND desfeito > "
                  "(SELECT max(numero) FROM historico WHERE instalacao = ?1 AND tipo = 'F') "
                  "ORDER BY numero LIMIT 1");
}

Outcome takeBack(Connection &connection, qint64 step)
{
    if (undoneBy(connection, step) > 0)
        throw Error(Error::Kind::Data, u"esta ação já foi desfeita."_s);
    const Outcome outcome = invert(connection, standing(connection, step), journal::Kind::Undone, step);
    if (!outcome.isDone)
        passOver(connection, step, 0);
    return outcome;
}

Outcome doAgain(Connection &connection, qint64 step)
{
    const qint64 undone = undoneBy(connection, step);
    if (undone <= 0)
        throw Error(Error::Kind::Data, u"esta ação não está desfeita."_s);
    const Outcome outcome = invert(connection, undone, journal::Kind::Redone, step);
    if (!outcome.isDone)
        passOver(connection, step, -undone);
    return outcome;
}

} // namespace undo
