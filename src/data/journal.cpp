#include "data/journal.h"

#include "data/clock.h"
#include "data/connection.h"
#include "data/schema.h"

using namespace Qt::StringLiterals;

namespace {

journal::Author &currentAuthor()
{
    static journal::Author author;
    return author;
}

const QString kindLetters = u"FDR"_s; // feito, desfeito, refeito

QString letter(journal::Kind kind)
{
    return kindLetters.mid(int(kind), 1);
}

qint64 highest(Connection &connection, const QByteArray &table)
{
    Statement found = connection.prepareNative("SELECT ifnull(max(numero), 0) FROM " + table);
    found.step();
    return found.integer(0);
}

constexpr char stepColumns[] = "SELECT numero, quando, usuario, computador, tipo, passo, "
                               "ifnull(desfeito, 0) <> 0 FROM historico ";

journal::Step readStep(Statement &row)
{
    const qsizetype kind = std::max<qsizetype>(kindLetters.indexOf(row.text(4)), 0);
    return {row.integer(0),      row.text(1),    row.text(2),        row.text(3),
            journal::Kind(kind), row.integer(5), row.integer(6) != 0};
}

void writeRows(Connection &connection, const std::vector<RecordedRow> &rows)
{
    Statement insert = connection.prepareNative("INSERT INTO historico_linha (tabela, linha, antes, depois) "
                                                "VALUES (?, ?, nullif(?, ''), nullif(?, ''))");
    for (const RecordedRow &row : rows) {
        insert.bind(1, row.table);
        insert.bind(2, row.key);
        insert.bind(3, QString::fromUtf8(row.before));
        insert.bind(4, QString::fromUtf8(row.after));
        insert.step();
        insert.reset();
    }
}

} // namespace

namespace journal {

void setAuthor(const Author &author)
{
    currentAuthor() = author;
}

const Author &author()
{
    return currentAuthor();
}

const QStringList &tables()
{
    static const QStringList tables{u"pagar"_s,      u"receber"_s,     u"bancario"_s,    u"banco"_s,
                                    u"cliente"_s,    u"fornecedor"_s,  u"pcontapagar"_s, u"pcontareceber"_s,
                                    u"produto"_s,    u"compromisso"_s, u"fpagamento"_s,  u"CamposEtiqueta"_s,
                                    u"recorrencia"_s};
    return tables;
}

void keep(Connection &connection)
{
    if (schema::hasLaterTables(connection))
        connection.recordRows(tables(), [&connection] { writeStep(connection); });
}

qint64 writeStep(Connection &connection, Kind kind, qint64 of)
{
    const std::vector<RecordedRow> rows = connection.takeRecordedRows();
    if (rows.empty())
        return 0;
    const qint64 first = highest(connection, "historico_linha") + 1;
    writeRows(connection, rows);
    Statement insert = connection.prepareNative("INSERT INTO historico (numero, quando, usuario, computador, "
                                                "instalacao, tipo, passo, primeira, ultima) "
                                                "VALUES (?, ?, ?, ?, ?, ?, nullif(?, 0), ?, ?)");
    const qint64 number = highest(connection, "historico") + 1;
    insert.bind(1, number);
    insert.bind(2, programclock::now().toString(u"yyyy/MM/dd HH:mm:ss"));
    insert.bind(3, author().user);
    insert.bind(4, author().machine);
    insert.bind(5, author().installation);
    insert.bind(6, letter(kind));
    insert.bind(7, of);
    insert.bind(8, first);
    insert.bind(9, first + qint64(rows.size()) - 1);
    insert.step();
    return number;
}

Step step(Connection &connection, qint64 number)
{
    Statement found = connection.prepareNative(QByteArray(stepColumns) + "WHERE numero = ?");
    found.bind(1, number);
    return found.step() ? readStep(found) : Step();
}

std::vector<Step> steps(Connection &connection, QDate first, QDate last, int limit)
{
    Statement found = connection.prepareNative(
        QByteArray(stepColumns) + "WHERE quando >= ? AND quando < ? ORDER BY numero DESC LIMIT ?");
    found.bind(1, first.toString(u"yyyy/MM/dd"));
    found.bind(2, last.addDays(1).toString(u"yyyy/MM/dd"));
    found.bind(3, limit);
    std::vector<Step> steps;
    while (found.step())
        steps.push_back(readStep(found));
    return steps;
}

std::vector<RecordedRow> rows(Connection &connection, qint64 step)
{
    Statement found =
        connection.prepareNative("SELECT tabela, linha, ifnull(antes, ''), ifnull(depois, '') FROM "
                                 "historico_linha WHERE numero BETWEEN "
                                 "(SELECT primeira FROM historico WHERE numero = ?1) AND "
                                 "(SELECT ultima FROM historico WHERE numero = ?1) ORDER BY numero");
    found.bind(1, step);
    std::vector<RecordedRow> rows;
    while (found.step())
        rows.push_back({found.text(0), found.integer(1), found.text(2).toUtf8(), found.text(3).toUtf8()});
    return rows;
}

} // namespace journal
