#include "data/schema.h"

#include "data/connection.h"
#include "data/dialect_dates.h"

#include <QFile>

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

// Only what every SQLCipher shell understands: no collation or function of the program's own, so that the
// file can be checked and repaired with standard tools. NOCASE carries the indexes through `like`; amounts
// are text as the user wrote them ("1.234,56"), dates are text in date order.
constexpr char entryColumns[] = R"(
    código INTEGER PRIMARY KEY AUTOINCREMENT,
    estatus TEXT COLLATE NOCASE,
    origem TEXT COLLATE NOCASE,
    %1 TEXT COLLATE NOCASE,
    data TEXT,
    vencimento TEXT,
    descricao TEXT COLLATE NOCASE,
    documento TEXT COLLATE NOCASE,
    informacoes TEXT COLLATE NOCASE,
    valor TEXT,
    moeda TEXT COLLATE NOCASE,
    produto TEXT COLLATE NOCASE,
    qtde TEXT,
    pagamento TEXT COLLATE NOCASE)";

constexpr char contactColumns[] = R"(
    código INTEGER PRIMARY KEY AUTOINCREMENT,
    nome TEXT COLLATE NOCASE,
    tipo TEXT COLLATE NOCASE,
    cpf TEXT COLLATE NOCASE,
    insc TEXT COLLATE NOCASE,
    endereco TEXT COLLATE NOCASE,
    bairro TEXT COLLATE NOCASE,
    cidade TEXT COLLATE NOCASE,
    estado TEXT COLLATE NOCASE,
    pais TEXT COLLATE NOCASE,
    tel TEXT COLLATE NOCASE,
    tel2 TEXT COLLATE NOCASE,
    cel TEXT COLLATE NOCASE,
    email TEXT COLLATE NOCASE,
    site TEXT COLLATE NOCASE,
    nascimento TEXT,
    data TEXT,
    local TEXT COLLATE NOCASE,
    adicionais TEXT COLLATE NOCASE)";

constexpr char otherTables[] = R"(
CREATE TABLE bancario (
    código INTEGER PRIMARY KEY AUTOINCREMENT,
    estatus TEXT COLLATE NOCASE,
    movimento TEXT COLLATE NOCASE,
    origem TEXT COLLATE NOCASE,
    destino TEXT COLLATE NOCASE,
    data TEXT,
    valor TEXT,
    informacoes TEXT COLLATE NOCASE);
CREATE TABLE banco (
    banco TEXT COLLATE NOCASE,
    saldo TEXT,
    informacoes TEXT COLLATE NOCASE);
CREATE TABLE pcontapagar (descricao TEXT COLLATE NOCASE);
CREATE TABLE pcontareceber (descricao TEXT COLLATE NOCASE);
CREATE TABLE compromisso (
    Titulo TEXT COLLATE NOCASE,
    data TEXT,
    hora TEXT,
    local TEXT COLLATE NOCASE,
    descricao TEXT COLLATE NOCASE);
CREATE TABLE produto (
    produto TEXT COLLATE NOCASE,
    qtde NUMERIC,
    custo TEXT,
    info TEXT COLLATE NOCASE);
CREATE TABLE fpagamento (pagamento TEXT COLLATE NOCASE);
CREATE TABLE login (
    codigo INTEGER PRIMARY KEY AUTOINCREMENT,
    nome TEXT COLLATE NOCASE,
    senha TEXT COLLATE NOCASE);
CREATE TABLE login_inicia (exigirlogin TEXT);
CREATE TABLE CamposEtiqueta (
    "Index" INTEGER,
    Campo TEXT COLLATE NOCASE,
    "Top" NUMERIC,
    "Left" NUMERIC,
    Width NUMERIC,
    Formato TEXT COLLATE NOCASE);
)";

/// Made by version 1 of the file (PRAGMA user_version).
constexpr char laterTables[] = R"(
CREATE TABLE IF NOT EXISTS historico (
    numero INTEGER PRIMARY KEY,
    quando TEXT,
    usuario TEXT COLLATE NOCASE,
    computador TEXT COLLATE NOCASE,
    instalacao TEXT,
    tipo TEXT,
    passo INTEGER,
    desfeito INTEGER,
    primeira INTEGER,
    ultima INTEGER);
CREATE TABLE IF NOT EXISTS historico_linha (
    numero INTEGER PRIMARY KEY,
    tabela TEXT,
    linha INTEGER,
    antes TEXT,
    depois TEXT);
CREATE TABLE IF NOT EXISTS recorrencia (
    codigo INTEGER PRIMARY KEY AUTOINCREMENT,
    tabela TEXT,
    ritmo TEXT,
    origem TEXT COLLATE NOCASE,
    contato TEXT COLLATE NOCASE,
    descricao TEXT COLLATE NOCASE,
    documento TEXT COLLATE NOCASE,
    informacoes TEXT COLLATE NOCASE,
    valor TEXT,
    moeda TEXT COLLATE NOCASE,
    fim TEXT,
    adiante TEXT);
CREATE TABLE IF NOT EXISTS recorrencia_estado (
    codigo INTEGER PRIMARY KEY,
    proximo TEXT,
    restantes INTEGER);
CREATE TABLE IF NOT EXISTS recorrencia_lancada (
    recorrencia INTEGER,
    lancamento INTEGER,
    PRIMARY KEY (recorrencia, lancamento)) WITHOUT ROWID;
PRAGMA user_version = 1;
)";

struct Index
{
    QString name, table, columns;
};

/// Lists read their keys and sums from an index alone, and so do balances: beside what they are found and
/// ordered by, the indexes hold what is added up. `date()` stands for the date that a column means; the
/// column itself must be there as well for an index to be enough.
std::vector<Index> indexes()
{
    const auto date = [](QStringView column) { return dialect::dateExpression(column); };
    std::vector<Index> all;
    for (const auto &[table, contact] :
         {std::pair(u"pagar"_s, u"fornecedor"_s), {u"receber"_s, u"cliente"_s}}) {
        for (const auto &[column, other] :
             {std::pair(u"vencimento"_s, u"data"_s), {u"data"_s, u"vencimento"_s}})
            all.push_back({table + u"_por_"_s + column, table,
                           date(column) + u", código, "_s + column + u", estatus, valor, qtde, "_s + other});
        for (const QString &column : {u"origem"_s, contact, u"descricao"_s})
            all.push_back(
                {table + u"_por_"_s + column, table, column + u", estatus, valor, qtde, data, vencimento"_s});
    }
    all.push_back({u"receber_por_codigo"_s, u"receber"_s, u"código, estatus, valor, qtde"_s});
    all.push_back({u"bancario_por_data"_s, u"bancario"_s,
                   date(u"data") + u", código, data, movimento, estatus, valor"_s});
    for (const QString &column : {u"origem"_s, u"destino"_s})
        all.push_back(
            {u"bancario_por_"_s + column, u"bancario"_s, column + u", estatus, movimento, valor, data"_s});
    for (const auto &[table, column] : {std::pair(u"banco"_s, u"banco"_s),
                                        {u"cliente"_s, u"nome"_s},
                                        {u"fornecedor"_s, u"nome"_s},
                                        {u"produto"_s, u"produto"_s}})
        all.push_back({table + u'_' + column, table, column});
    return all;
}

/// Of files made by an earlier version: others serve in their place.
const QStringList formerIndexes{u"pagar_saldo"_s,    u"pagar_fornecedor"_s, u"pagar_descricao"_s,
                                u"receber_saldo"_s,  u"receber_cliente"_s,  u"receber_descricao"_s,
                                u"bancario_saldo"_s, u"bancario_destino"_s};

QStringList indexNames(Connection &connection)
{
    QStringList names;
    for (Statement found = connection.prepareNative("SELECT name FROM sqlite_master WHERE type = 'index'");
         found.step();)
        names << found.text(0);
    return names;
}

constexpr char firstRows[] = R"(
INSERT INTO login_inicia VALUES ('0');
INSERT INTO fpagamento VALUES ('Dinheiro'), ('Pix'), ('Cartão de débito'), ('Cartão de crédito'),
    ('Boleto bancário'), ('Transferência bancária'), ('Cheque');
)";

QString tables()
{
    const QString entry = QString::fromUtf8(entryColumns);
    const QString contact = QString::fromUtf8(contactColumns);
    return u"CREATE TABLE pagar ("_s + entry.arg(u"fornecedor") + u");CREATE TABLE receber ("_s +
           entry.arg(u"cliente") + u",\n    custo TEXT);CREATE TABLE cliente ("_s + contact +
           u");CREATE TABLE fornecedor ("_s + contact + u");"_s + QString::fromUtf8(otherTables);
}

} // namespace

namespace schema {

void createIndexes(Connection &connection)
{
    const QStringList existing = indexNames(connection);
    for (const Index &index : indexes())
        if (!existing.contains(index.name))
            connection.executeNative(
                u"CREATE INDEX %1 ON %2 (%3)"_s.arg(index.name, index.table, index.columns).toUtf8());
}

void dropIndexes(Connection &connection)
{
    for (const Index &index : indexes())
        connection.executeNative("DROP INDEX IF EXISTS " + index.name.toUtf8());
}

void createFile(const QString &path)
{
    std::unique_ptr<Connection> connection = Connection::create(path, password.toString());
    try {
        Transaction transaction(*connection);
        connection->executeNative(tables().toUtf8() + firstRows);
        createLaterTables(*connection);
        createIndexes(*connection);
        transaction.commit();
    } catch (const Error &) {
        connection.reset();
        QFile::remove(path);
        throw;
    }
}

bool isComplete(Connection &connection)
{
    Statement found = connection.prepareNative(
        "SELECT count(*) FROM sqlite_master WHERE type = 'table' AND lower(name) IN ('pagar', 'receber', "
        "'bancario', 'banco', 'cliente', 'fornecedor', 'pcontapagar', 'pcontareceber', 'compromisso', "
        "'produto', "
        "'fpagamento', 'login', 'login_inicia', 'camposetiqueta')");
    found.step();
    return found.integer(0) == 14;
}

bool hasLaterTables(Connection &connection)
{
    Statement version = connection.prepareNative("PRAGMA user_version");
    return version.step() && version.integer(0) >= 1;
}

void createLaterTables(Connection &connection)
{
    connection.executeNative(laterTables);
}

bool upgrade(Connection &connection)
{
    bool done = true;
    try {
        const QStringList existing = indexNames(connection);
        const std::vector<Index> wanted = indexes();
        const auto has = [&existing](const QString &name) { return existing.contains(name); };
        if (std::ranges::all_of(wanted, has, &Index::name) && std::ranges::none_of(formerIndexes, has))
            return true;
        connection.setBusyTimeout(0);
        Transaction transaction(connection);
        for (const QString &name : formerIndexes)
            connection.executeNative("DROP INDEX IF EXISTS " + name.toUtf8());
        createIndexes(connection);
        transaction.commit();
    } catch (const Error &) {
        done = false;
    }
    connection.setDefaultBusyTimeout();
    return done;
}

} // namespace schema
