#include "data/schema.h"

#include "data/connection.h"

#include <QFile>

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

// The first of each entry table and those of bancario hold all that an account's balance is computed from.
constexpr char indexes[] = R"(
CREATE INDEX pagar_saldo ON pagar (origem, estatus, valor);
CREATE INDEX pagar_fornecedor ON pagar (fornecedor);
CREATE INDEX pagar_descricao ON pagar (descricao);
CREATE INDEX receber_saldo ON receber (origem, estatus, valor);
CREATE INDEX receber_cliente ON receber (cliente);
CREATE INDEX receber_descricao ON receber (descricao);
CREATE INDEX bancario_saldo ON bancario (origem, estatus, movimento, valor);
CREATE INDEX bancario_destino ON bancario (destino, estatus, movimento, valor);
CREATE INDEX banco_banco ON banco (banco);
CREATE INDEX cliente_nome ON cliente (nome);
CREATE INDEX fornecedor_nome ON fornecedor (nome);
CREATE INDEX produto_produto ON produto (produto);
)";

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

void createFile(const QString &path)
{
    std::unique_ptr<Connection> connection = Connection::create(path, password.toString());
    try {
        Transaction transaction(*connection);
        connection->executeNative(tables().toUtf8() + indexes + firstRows);
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

} // namespace schema
