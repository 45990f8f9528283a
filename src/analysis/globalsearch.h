#pragma once

#include "lists/storedtable.h"

#include <QDeadlineTimer>

#include <memory>
#include <optional>

class Connection;
class Statement;

/// Looks for words in entries, movements, contacts, products and appointments, in steps of one row. A row is
/// found when every word stands somewhere in it; letter case and accents do not count. Dates are found as
/// they are shown, amounts with and without their grouping points.
class GlobalSearch
{
public:
    /// Of each kind at most this many are kept.
    static constexpr int mostOfKind = 300;

    /// Throws Error.
    GlobalSearch(std::shared_ptr<Connection> connection, const QString &text);
    ~GlobalSearch();

    /// Works until everything was looked through (true) or the time is up. Throws Error.
    bool run(const QDeadlineTimer &until);
    qint64 rowsRead() const { return m_rowsRead; }
    qint64 rowsInAll() const { return m_rowsInAll; }
    /// What was found: kind, date, what it is, who, amount. The rows know where they come from.
    std::shared_ptr<StoredTable> result() const { return m_found; }
    /// Whether there was more than is kept.
    bool isCut() const { return m_isCut; }

private:
    void startKind();
    bool matches();
    void keep();

    std::shared_ptr<Connection> m_connection;
    std::vector<std::string> m_words;
    std::shared_ptr<StoredTable> m_found;
    std::size_t m_kind = 0;
    std::unique_ptr<Statement> m_rows;
    int m_foundOfKind = 0;
    bool m_isCut = false;
    qint64 m_rowsRead = 0, m_rowsInAll = 0;
    std::string m_text; ///< of the row in hand
};
