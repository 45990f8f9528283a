#include "data.h"

#include "data/connection.h"
#include "data/schema.h"
#include "demodata.h"
#include "settings/database.h"
#include "settings/programfolder.h"
#include "settings/settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <cstdio>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

QString root()
{
    return QCoreApplication::applicationDirPath() + u"/data/"_s;
}

/// The folder of that name, with a database filled by `fill` unless one is there that is younger than this
/// program.
QString made(const QString &name, const std::function<void(Connection &)> &fill)
{
    const QString folder = root() + name;
    const QFileInfo database(benchdata::databaseIn(folder));
    const QFileInfo program(QCoreApplication::applicationFilePath());
    if (database.exists() && database.lastModified() > program.lastModified())
        return folder;
    std::fprintf(stderr, "Making the data \"%s\"...\n", qPrintable(name));
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    const QString draft = folder + u"/draft"_s;
    schema::createFile(draft);
    fill(*Connection::open(draft, schema::password.toString()));
    QFile::rename(draft, database.filePath());
    return folder;
}

void run(Connection &connection, const QString &sql)
{
    connection.executeNative(sql.toUtf8());
}

/// Gives every hundredth payable the account, contact or centre that nothing else has.
void markRows(Connection &connection)
{
    using namespace benchdata;
    Transaction transaction(connection);
    run(connection, u"UPDATE banco SET banco = '%1' WHERE rowid = 20"_s.arg(account));
    run(connection, u"UPDATE pagar SET origem = '%1' WHERE código % 100 = 1"_s.arg(account));
    run(connection, u"UPDATE pagar SET fornecedor = '%1' WHERE código % 100 = 34"_s.arg(contact));
    run(connection, u"UPDATE pagar SET descricao = '%1' WHERE código % 100 = 67"_s.arg(centre));
    transaction.commit();
}

} // namespace

namespace benchdata {

QString large()
{
    return made(u"large"_s, [](Connection &connection) {
        fillDemo(connection, {.entries = 200'000,
                              .movements = 20'000,
                              .accounts = 20,
                              .contacts = 2'000,
                              .seed = 1,
                              .today = QDate(2026, 6, 30)});
        markRows(connection);
    });
}

QString empty()
{
    return made(u"empty"_s, [](Connection &) {});
}

QString grown(qint64 entries)
{
    return made(u"grown-%1"_s.arg(entries), [entries](Connection &connection) {
        fillDemo(connection, {.entries = entries,
                              .movements = entries / 10,
                              .accounts = 20,
                              .seed = 1,
                              .today = QDate(2026, 6, 30)});
    });
}

QString manyPayables()
{
    return made(u"payables"_s, [](Connection &connection) {
        Transaction transaction(connection);
        schema::dropIndexes(connection);
        run(connection,
            u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1000000) "
            "INSERT INTO pagar (estatus, origem, fornecedor, data, vencimento, descricao, valor, moeda, "
            "produto, qtde) SELECT 'Pendente', 'Caixa', 'Fornecedor', '2026/06/01', '2026/06/30', "
            "'Aluguel', '1.234,56', 'R$', '-', '' FROM n"_s);
        schema::createIndexes(connection);
        transaction.commit();
    });
}

QString centres()
{
    return made(u"centres"_s, [](Connection &connection) {
        fillDemo(connection, {.entries = 400'000, .movements = 0, .seed = 1, .today = QDate(2026, 6, 30)});
        run(connection, u"DELETE FROM pcontapagar"_s);
        for (int i = 0; i < 50; ++i)
            run(connection, u"INSERT INTO pcontapagar VALUES ('Centro de custo %1')"_s.arg(i));
        run(connection, u"UPDATE pagar SET descricao = 'Centro de custo ' || código % 50"_s);
        run(connection, u"DELETE FROM produto"_s);
        for (int i = 0; i < 500; ++i)
            run(connection, u"INSERT INTO produto VALUES ('Produto %1', 10, '1,00', ' ')"_s.arg(i));
        for (const QString &table : {u"pagar"_s, u"receber"_s})
            run(connection, u"UPDATE %1 SET produto = 'Produto ' || código % 500"_s.arg(table));
    });
}

QString copyOf(const QString &folder, const QString &name)
{
    const QString copy = root() + name;
    QDir(copy).removeRecursively();
    QDir().mkpath(copy);
    QFile::copy(databaseIn(folder), databaseIn(copy));
    return copy;
}

QString databaseIn(const QString &folder)
{
    return folder + u'/' + schema::fileName.toString();
}

void use(const QString &folder)
{
    closeDatabase();
    QDir(folder + u"/settings"_s).removeRecursively();
    settings::setFolder(folder + u"/settings"_s);
    programfolder::choose(folder);
    chooseDatabase();
}

} // namespace benchdata
