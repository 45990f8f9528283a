#include "data/connection.h"

#include "data/decimal.h"
#include "data/dialect.h"
#include "data/like.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#define SQLITE_HAS_CODEC
#include <sqlcipher/sqlite3.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int defaultBusyTimeout = 10'000; // milliseconds

QString storeMessage(sqlite3 *database)
{
    return QString::fromUtf8(sqlite3_errmsg(database));
}

QString waitedText(sqlite3 *database)
{
    int milliseconds = 0;
    const auto read = [](void *result, int, char **values, char **) {
        *static_cast<int *>(result) = values[0] ? std::atoi(values[0]) : 0;
        return 0;
    };
    sqlite3_exec(database, "PRAGMA busy_timeout", read, &milliseconds, nullptr);
    const int seconds = milliseconds / 1000;
    if (seconds == 0)
        return u"menos de um segundo"_s;
    return seconds == 1 ? u"1 segundo"_s : u"%1 segundos"_s.arg(seconds);
}

/// What the last failed call means to the user.
Error lastError(sqlite3 *database)
{
    const QString message = storeMessage(database);
    switch (sqlite3_errcode(database) & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {Error::Kind::Busy,
                u"Outro computador ou programa está gravando no banco de dados; este esperou %1 por ele. "
                "Tente novamente em instantes."_s.arg(waitedText(database))};
    case SQLITE_FULL:
        return {Error::Kind::Storage, u"O disco está cheio: não há espaço para gravar no banco de dados."_s};
    case SQLITE_IOERR:
        return {Error::Kind::Storage,
                u"O arquivo do banco de dados não pôde ser lido ou gravado (disco cheio, rede ou disco com "
                "defeito): %1."_s.arg(message)};
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_CANTOPEN:
        return {Error::Kind::Storage,
                u"Não é permitido gravar no arquivo do banco de dados ou na sua pasta: %1."_s.arg(message)};
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return {Error::Kind::Storage,
                u"O arquivo do banco de dados está danificado. Restaure uma cópia de segurança."_s};
    default:
        return {Error::Kind::Query, u"O banco de dados recusou o comando: %1."_s.arg(message)};
    }
}

Error openingError(const QString &reason)
{
    return {Error::Kind::Open, reason};
}

bool isBlank(const char *text)
{
    return std::string_view(text).find_first_not_of(" \t\r\n;") == std::string_view::npos;
}

std::string_view textValue(sqlite3_value *value)
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(value));
    return {text, std::size_t(sqlite3_value_bytes(value))};
}

/// `text LIKE pattern`; the pattern is taken apart once for all rows.
void likeFunction(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL)
        return;
    auto *pattern = static_cast<const LikePattern *>(sqlite3_get_auxdata(context, 0));
    if (pattern) {
        sqlite3_result_int(context, pattern->matches(textValue(arguments[1])));
        return;
    }
    const std::string_view text = textValue(arguments[0]);
    auto fresh = std::make_unique<LikePattern>(QString::fromUtf8(text.data(), qsizetype(text.size())));
    sqlite3_result_int(context, fresh->matches(textValue(arguments[1])));
    sqlite3_set_auxdata(context, 0, fresh.release(), [](void *p) { delete static_cast<LikePattern *>(p); });
}

/// A stored amount in ten-thousandths, whether the table holds it as Brazilian text or as a number.
void amountFunction(sqlite3_context *context, int, sqlite3_value **arguments)
{
    const int type = sqlite3_value_type(arguments[0]);
    if (type == SQLITE_INTEGER || type == SQLITE_FLOAT)
        sqlite3_result_double(context, sqlite3_value_double(arguments[0]) * 10'000);
    else if (type != SQLITE_NULL)
        sqlite3_result_int64(context, Money::stored(textValue(arguments[0])).tenThousandths());
}

void foldedFunction(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL)
        return;
    const std::string_view text = textValue(arguments[0]);
    const QByteArray folded =
        textorder::folded(QString::fromUtf8(text.data(), qsizetype(text.size()))).toUtf8();
    sqlite3_result_text(context, folded.constData(), int(folded.size()), SQLITE_TRANSIENT);
}

int nameOrder(void *, int lengthA, const void *a, int lengthB, const void *b)
{
    return textorder::compareNames(std::string_view(static_cast<const char *>(a), std::size_t(lengthA)),
                                   std::string_view(static_cast<const char *>(b), std::size_t(lengthB)));
}

bool isAccessible(const QString &path, int mode)
{
    return faccessat(AT_FDCWD, QFile::encodeName(path).constData(), mode, AT_EACCESS) == 0;
}

/// The store's own handle of the file; null when it has none.
sqlite3_file *storeFile(sqlite3 *database)
{
    sqlite3_file *file = nullptr;
    const int result = sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &file);
    return result == SQLITE_OK && file && file->pMethods ? file : nullptr;
}

/// The random bytes with which a database file begins; they are made with the file and stay. Read through the
/// store's own handle: closing another one would let go of the locks that this process holds on the file.
QByteArray saltOf(sqlite3 *database)
{
    constexpr int saltLength = 16;
    QByteArray salt(saltLength, '\0');
    if (sqlite3_file *file = storeFile(database))
        file->pMethods->xRead(file, salt.data(), saltLength, 0);
    return salt;
}

qint64 modification(const struct stat &file)
{
    return qint64(file.st_mtim.tv_sec) * 1'000'000'000 + file.st_mtim.tv_nsec;
}

/// Refuses what the store would not open, before it is touched.
void checkReadable(const QString &path)
{
    const QString shown = QDir::toNativeSeparators(path);
    struct stat file = {};
    if (stat(QFile::encodeName(path).constData(), &file) != 0) {
        if (errno == EACCES)
            throw openingError(u"Não há permissão para abrir a pasta do banco de dados \"%1\"."_s.arg(shown));
        throw openingError(u"O arquivo do banco de dados \"%1\" não foi encontrado."_s.arg(shown));
    }
    if (S_ISDIR(file.st_mode))
        throw openingError(u"\"%1\" é uma pasta, e não o arquivo do banco de dados."_s.arg(shown));
    if (!S_ISREG(file.st_mode))
        throw openingError(u"\"%1\" não é um arquivo de banco de dados."_s.arg(shown));
    if (file.st_size == 0)
        throw openingError(u"O arquivo do banco de dados \"%1\" está vazio."_s.arg(shown));
    if (!isAccessible(path, R_OK))
        throw openingError(u"Não há permissão para ler o arquivo do banco de dados \"%1\"."_s.arg(shown));
}

/// Refuses what the store would open without being able to write.
void checkWritable(const QString &path)
{
    const QString shown = QDir::toNativeSeparators(path);
    if (!isAccessible(path, W_OK))
        throw openingError(
            u"O arquivo do banco de dados \"%1\" é somente leitura: não há permissão para gravar nele."_s.arg(
                shown));
    const QString folder = QFileInfo(QFileInfo(path).canonicalFilePath()).path();
    if (!isAccessible(folder, W_OK | X_OK))
        throw openingError(
            u"Não há permissão para gravar na pasta \"%1\", onde fica o banco de dados."_s.arg(folder));
}

} // namespace

Statement::Statement(sqlite3 *database, sqlite3_stmt *handle) : m_database(database), m_handle(handle)
{
}

Statement::Statement(Statement &&other) noexcept
    : m_database(other.m_database), m_handle(std::exchange(other.m_handle, nullptr))
{
}

Statement &Statement::operator=(Statement &&other) noexcept
{
    std::swap(m_database, other.m_database);
    std::swap(m_handle, other.m_handle);
    return *this;
}

Statement::~Statement()
{
    sqlite3_finalize(m_handle);
}

bool Statement::step()
{
    const int result = sqlite3_step(m_handle);
    if (result == SQLITE_ROW)
        return true;
    if (result == SQLITE_DONE)
        return false;
    const Error error = lastError(m_database);
    sqlite3_reset(m_handle);
    throw error;
}

void Statement::reset()
{
    sqlite3_reset(m_handle);
}

void Statement::bind(int parameter, const QString &value)
{
    const QByteArray utf8 = value.toUtf8();
    if (sqlite3_bind_text(m_handle, parameter, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT) !=
        SQLITE_OK)
        throw lastError(m_database);
}

void Statement::bind(int parameter, qint64 value)
{
    if (sqlite3_bind_int64(m_handle, parameter, value) != SQLITE_OK)
        throw lastError(m_database);
}

void Statement::bindValue(int parameter, const QJsonValue &value)
{
    int result = SQLITE_OK;
    if (value.isString())
        return bind(parameter, value.toString());
    if (value.isNull())
        result = sqlite3_bind_null(m_handle, parameter);
    else if (const qint64 whole = value.toInteger(); QJsonValue(whole) == value)
        return bind(parameter, whole);
    else
        result = sqlite3_bind_double(m_handle, parameter, value.toDouble());
    if (result != SQLITE_OK)
        throw lastError(m_database);
}

int Statement::columnCount() const
{
    return sqlite3_column_count(m_handle);
}

QString Statement::columnName(int column) const
{
    return QString::fromUtf8(sqlite3_column_name(m_handle, column));
}

bool Statement::isNull(int column) const
{
    return sqlite3_column_type(m_handle, column) == SQLITE_NULL;
}

QString Statement::text(int column) const
{
    if (sqlite3_column_type(m_handle, column) == SQLITE_FLOAT)
        return QString::number(sqlite3_column_double(m_handle, column), 'g', 15).replace(u'.', u',');
    const std::string_view value = utf8(column);
    return QString::fromUtf8(value.data(), qsizetype(value.size()));
}

std::string_view Statement::utf8(int column) const
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(m_handle, column));
    return {text, std::size_t(sqlite3_column_bytes(m_handle, column))};
}

QJsonValue Statement::value(int column) const
{
    switch (sqlite3_column_type(m_handle, column)) {
    case SQLITE_NULL:
        return QJsonValue::Null;
    case SQLITE_INTEGER:
        return integer(column);
    case SQLITE_FLOAT:
        return sqlite3_column_double(m_handle, column);
    default:
        return text(column);
    }
}

qint64 Statement::integer(int column) const
{
    return sqlite3_column_int64(m_handle, column);
}

std::unique_ptr<Connection> Connection::open(const QString &path, const QString &password)
{
    checkReadable(path);
    checkWritable(path);
    std::unique_ptr<Connection> connection(new Connection(path));
    connection->openFile(password);
    connection->checkUsable();
    return connection;
}

std::unique_ptr<Connection> Connection::openForReading(const QString &path, const QString &password)
{
    checkReadable(path);
    std::unique_ptr<Connection> connection(new Connection(path));
    connection->openFile(password, Access::Read);
    connection->checkUsable();
    return connection;
}

std::unique_ptr<Connection> Connection::create(const QString &path, const QString &password)
{
    const QByteArray name = QFile::encodeName(path);
    const int file = ::open(name.constData(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0666);
    if (file < 0) {
        const QString reason = QString::fromLocal8Bit(strerror(errno));
        throw openingError(
            errno == EEXIST
                ? u"Já existe um arquivo \"%1\"."_s.arg(path)
                : u"O arquivo do banco de dados \"%1\" não pôde ser criado: %2."_s.arg(path, reason));
    }
    ::close(file);
    std::unique_ptr<Connection> connection(new Connection(path));
    connection->openFile(password);
    return connection;
}

Connection::Connection(QString path) : m_path(std::move(path))
{
    static quint64 opened = 0;
    m_serial = ++opened;
}

Connection::~Connection()
{
    m_dataVersion.reset();
    sqlite3_close_v2(m_database); // a statement that is still alive keeps the file until it ends
}

void Connection::openFile(const QString &password, Access access)
{
    const QByteArray name = QFile::encodeName(m_path);
    const int flags = (access == Access::Write ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY) |
                      SQLITE_OPEN_NOMUTEX; // a connection stays in one thread
    if (sqlite3_open_v2(name.constData(), &m_database, flags, nullptr) != SQLITE_OK)
        throw openingError(u"O arquivo do banco de dados \"%1\" não pôde ser aberto: %2."_s.arg(
            m_path, storeMessage(m_database)));
    struct stat file = {};
    if (stat(name.constData(), &file) == 0) {
        m_device = file.st_dev;
        m_inode = file.st_ino;
        m_modified = modification(file);
        m_size = file.st_size;
    }
    m_salt = saltOf(m_database);
    setBusyTimeout(defaultBusyTimeout);
    const QByteArray key = password.toUtf8();
    sqlite3_key(m_database, key.constData(), int(key.size()));
    // The cipher settings are those that versions 3.4 and 4 of the store have in common; each version ignores
    // the pragmas that it does not know.
    executeNative("PRAGMA cipher_page_size=4096;"
                  "PRAGMA kdf_iter=64000;"
                  "PRAGMA cipher_hmac_algorithm=HMAC_SHA1;"
                  "PRAGMA cipher_kdf_algorithm=PBKDF2_HMAC_SHA1;");
    registerFunctions();
}

void Connection::registerFunctions()
{
    constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    const auto add = [this](const char *name, int arguments, auto function) {
        if (sqlite3_create_function_v2(m_database, name, arguments, flags, nullptr, function, nullptr,
                                       nullptr, nullptr) != SQLITE_OK)
            throw lastError(m_database);
    };
    add("like", 2, likeFunction);
    add(dialect::amountFunction, 1, amountFunction);
    add(dialect::foldedFunction, 1, foldedFunction);
    if (sqlite3_create_collation_v2(m_database, dialect::nameOrder, SQLITE_UTF8, nullptr, nameOrder,
                                    nullptr) != SQLITE_OK)
        throw lastError(m_database);
}

/// Reads the first page, which is where a wrong password and a damaged file show.
void Connection::checkUsable()
{
    const int result = sqlite3_exec(m_database,
                                    "SELECT count(*) FROM sqlite_master;"
                                    "PRAGMA cache_size=-16384;" // 16 MiB
                                    "PRAGMA synchronous=FULL;",
                                    nullptr, nullptr, nullptr);
    switch (result & 0xff) {
    case SQLITE_OK:
        return;
    case SQLITE_NOTADB:
        throw openingError(
            u"O arquivo \"%1\" não é um banco de dados do Tavaro, está danificado ou foi protegido "
            "com outra senha."_s.arg(m_path));
    case SQLITE_CORRUPT:
        throw openingError(
            u"O arquivo do banco de dados \"%1\" está incompleto ou danificado. Restaure uma cópia de "
            "segurança."_s.arg(m_path));
    case SQLITE_BUSY:
        throw lastError(m_database);
    default:
        throw openingError(u"O arquivo do banco de dados \"%1\" não pôde ser aberto: %2."_s.arg(
            m_path, storeMessage(m_database)));
    }
}

bool Connection::isCurrent() const
{
    struct stat file = {};
    if (stat(QFile::encodeName(m_path).constData(), &file) != 0 || file.st_dev != m_device ||
        file.st_ino != m_inode)
        return false;
    const qint64 modified = modification(file);
    if (modified == m_modified && file.st_size == m_size)
        return true;
    const QByteArray salt = saltOf(m_database);
    if (m_size > 0 && salt != m_salt) // a file without pages has none yet
        return false;
    m_salt = salt;
    m_modified = modified;
    m_size = file.st_size;
    return true;
}

int Connection::execute(const QString &sql)
{
    Statement statement = prepare(sql);
    const int before = sqlite3_total_changes(m_database);
    while (statement.step()) {
    }
    return sqlite3_total_changes(m_database) - before;
}

Statement Connection::prepare(const QString &sql, dialect::RowOrder order)
{
    return prepareNative(dialect::translate(sql, dialect::RowKey::Omitted, order).sql.toUtf8());
}

Statement Connection::prepareNative(const QByteArray &sql)
{
    sqlite3_stmt *handle = nullptr;
    const char *rest = nullptr;
    if (sqlite3_prepare_v2(m_database, sql.constData(), int(sql.size()), &handle, &rest) != SQLITE_OK)
        throw lastError(m_database);
    Statement statement(m_database, handle);
    if (!handle || !isBlank(rest))
        throw Error(Error::Kind::Query, u"O banco de dados espera exatamente um comando."_s);
    return statement;
}

void Connection::executeNative(const QByteArray &sql)
{
    if (sqlite3_exec(m_database, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw lastError(m_database);
}

quint64 Connection::dataVersion()
{
    if (!m_dataVersion)
        m_dataVersion = prepareNative("PRAGMA data_version");
    m_dataVersion->step();
    const quint64 version = quint64(m_dataVersion->integer(0));
    m_dataVersion->reset(); // an open read would keep others from committing
    return version;
}

bool Connection::inTransaction() const
{
    return sqlite3_get_autocommit(m_database) == 0;
}

qint64 Connection::lastInsertedRow() const
{
    return sqlite3_last_insert_rowid(m_database);
}

qint64 Connection::fileSize() const
{
    sqlite3_int64 size = 0;
    sqlite3_file *file = storeFile(m_database);
    if (!file || file->pMethods->xFileSize(file, &size) != SQLITE_OK)
        throw Error(Error::Kind::Storage, u"O arquivo \"%1\" não pôde ser lido."_s.arg(m_path));
    return size;
}

void Connection::readFile(qint64 offset, char *bytes, int length) const
{
    sqlite3_file *file = storeFile(m_database);
    if (!file || file->pMethods->xRead(file, bytes, length, offset) != SQLITE_OK)
        throw Error(Error::Kind::Storage, u"O arquivo \"%1\" não pôde ser lido."_s.arg(m_path));
}

void Connection::recordRows(const QStringList &tables, std::function<void()> beforeCommit)
{
    m_recorder = std::make_unique<RowRecorder>(m_database, tables);
    m_beforeCommit = std::move(beforeCommit);
}

std::vector<RecordedRow> Connection::takeRecordedRows()
{
    return m_recorder ? m_recorder->take() : std::vector<RecordedRow>();
}

void Connection::checkIntegrity()
{
    Statement check = prepareNative("PRAGMA quick_check(1)");
    if (check.step() && check.text(0) == "ok"_L1)
        return;
    throw Error(Error::Kind::Storage, u"O arquivo \"%1\" está danificado."_s.arg(m_path));
}

void Connection::setDefaultBusyTimeout()
{
    setBusyTimeout(defaultBusyTimeout);
}

void Connection::setBusyTimeout(int milliseconds)
{
    sqlite3_busy_timeout(m_database, milliseconds);
}
