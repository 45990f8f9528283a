#pragma once

#include "data/decimal.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <map>
#include <string>

struct sqlite3;

/// What the program is measured against: the store through its bare C interface, with the program's key and
/// page cache, and nothing around it. A failure ends the run.
class Floor
{
public:
    explicit Floor(const QString &file);
    ~Floor();
    Floor(const Floor &) = delete;
    Floor &operator=(const Floor &) = delete;

    void execute(const char *sql);
    /// Steps through all rows, asks for every column as text and calls `done` after each row.
    void readTexts(const QByteArray &sql, const std::function<void()> &done = {});
    /// Adds up the amounts in the second of three columns, parsed and rounded; the others are asked for as
    /// text.
    Money sum(const char *sql);
    /// What every account's balance adds up to beside its opening balance: one pass over indexes that hold
    /// all it takes, with each amount parsed and rounded.
    std::map<std::string, Money> settledSums();

private:
    [[noreturn]] void fail(const char *sql) const;
    template <typename Row>
    void each(const char *sql, const Row &row);

    sqlite3 *m_database = nullptr;
};
