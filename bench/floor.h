#pragma once

#include "data/money.h"

#include <QByteArray>
#include <QString>

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
    /// Steps through all rows and asks for every column as text; gives the bytes of all texts.
    qint64 readTexts(const QByteArray &sql);
    /// What every account's balance adds up to beside its opening balance: one pass over indexes that hold
    /// all it takes, with each amount parsed and rounded.
    std::map<std::string, Money> settledSums();

private:
    template <typename Row>
    void each(const char *sql, const Row &row);

    sqlite3 *m_database = nullptr;
};
