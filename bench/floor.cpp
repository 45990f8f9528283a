#include "floor.h"

#include "bank/movement.h"
#include "data/schema.h"

#include <QFile>

#define SQLITE_HAS_CODEC
#include <sqlcipher/sqlite3.h>

#include <cstdio>
#include <cstdlib>

namespace {

std::string_view text(sqlite3_stmt *row, int column)
{
    const auto *begin = reinterpret_cast<const char *>(sqlite3_column_text(row, column));
    return {begin, std::size_t(sqlite3_column_bytes(row, column))};
}

} // namespace

Floor::Floor(const QString &file)
{
    const QByteArray key = schema::password.toUtf8();
    constexpr int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    if (sqlite3_open_v2(QFile::encodeName(file).constData(), &m_database, flags, nullptr) != SQLITE_OK)
        std::abort();
    sqlite3_key(m_database, key.constData(), int(key.size()));
    execute("PRAGMA cipher_page_size=4096;PRAGMA kdf_iter=64000;SELECT count(*) FROM sqlite_master;"
            "PRAGMA cache_size=-16384;PRAGMA synchronous=FULL;");
}

Floor::~Floor()
{
    sqlite3_close(m_database);
}

void Floor::fail(const char *sql) const
{
    std::fprintf(stderr, "%s: %s\n", sql, sqlite3_errmsg(m_database));
    std::abort();
}

void Floor::execute(const char *sql)
{
    if (sqlite3_exec(m_database, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        fail(sql);
}

template <typename Row>
void Floor::each(const char *sql, const Row &row)
{
    sqlite3_stmt *rows = nullptr;
    if (sqlite3_prepare_v2(m_database, sql, -1, &rows, nullptr) != SQLITE_OK)
        fail(sql);
    while (sqlite3_step(rows) == SQLITE_ROW)
        row(rows);
    sqlite3_finalize(rows);
}

void Floor::readTexts(const QByteArray &sql, const std::function<void()> &done)
{
    each(sql.constData(), [&done](sqlite3_stmt *row) {
        const int columns = sqlite3_column_count(row);
        for (int i = 0; i < columns; ++i)
            sqlite3_column_text(row, i);
        if (done)
            done();
    });
}

Money Floor::sum(const char *sql)
{
    Money sum;
    each(sql, [&sum](sqlite3_stmt *row) {
        sqlite3_column_text(row, 0);
        sqlite3_column_text(row, 2);
        sum += Money::stored(text(row, 1)).roundedToCents();
    });
    return sum;
}

std::map<std::string, Money> Floor::settledSums()
{
    std::map<std::string, Money> sums;
    auto last = sums.end(); // an index gives an account's rows one after another
    const auto of = [&](std::string_view account) -> Money & {
        if (last == sums.end() || last->first != account)
            last = sums.try_emplace(std::string(account)).first;
        return last->second;
    };
    const auto amount = [](sqlite3_stmt *row) { return Money::stored(text(row, 1)).roundedToCents(); };
    each("SELECT origem, valor FROM pagar WHERE estatus = 'Concluído'",
         [&](sqlite3_stmt *row) { of(text(row, 0)) -= amount(row); });
    each("SELECT origem, valor FROM receber WHERE estatus = 'Concluído'",
         [&](sqlite3_stmt *row) { of(text(row, 0)) += amount(row); });
    const QByteArray deposit = movement::deposit.toUtf8();
    each("SELECT origem, valor, movimento FROM bancario WHERE estatus = 'Concluído'", [&](sqlite3_stmt *row) {
        of(text(row, 0)) += text(row, 2) == std::string_view(deposit) ? amount(row) : -amount(row);
    });
    each("SELECT destino, valor FROM bancario WHERE estatus = 'Concluído' AND movimento = 'Transferência "
         "entre contas'",
         [&](sqlite3_stmt *row) { of(text(row, 0)) += amount(row); });
    return sums;
}
