#include "data/connection.h"

#include <algorithm>

using namespace Qt::StringLiterals;

ReadLock::ReadLock(Connection &connection) : m_connection(connection), m_own(!connection.inTransaction())
{
    if (m_own)
        m_connection.executeNative("BEGIN");
}

ReadLock::~ReadLock()
{
    try {
        if (m_own)
            m_connection.executeNative("COMMIT");
    } catch (const Error &) {
        // Nothing was written.
    }
}

Transaction::Transaction(Connection &connection) : m_connection(connection)
{
    m_connection.takeRecordedRows(); // of what failed, or stood outside of any transaction
    m_connection.executeNative("BEGIN IMMEDIATE");
    if (m_connection.isCurrent())
        return;
    m_connection.executeNative("ROLLBACK");
    throw Error(Error::Kind::Data,
                u"o arquivo do banco de dados acaba de ser trocado por outro. Nada foi gravado."_s);
}

Transaction::~Transaction()
{
    if (!m_open)
        return;
    try {
        m_connection.executeNative("ROLLBACK");
    } catch (const Error &) {
        // The store rolls back by itself after some failures; there is nothing left to undo then.
    }
}

void Transaction::note(Subject subject, RowChange row)
{
    const auto noted = std::ranges::find(m_noted, subject, &Change::subject);
    if (noted == m_noted.end())
        m_noted.push_back({subject, {std::move(row)}});
    else if (!noted->rows.empty())
        noted->rows.push_back(std::move(row));
}

void Transaction::note(Subject subject)
{
    std::erase_if(m_noted, [subject](const Change &change) { return change.subject == subject; });
    m_noted.push_back({subject, {}});
}

void Transaction::commit()
{
    // When something fails the destructor rolls back.
    m_connection.completeTransaction();
    m_connection.executeNative("COMMIT");
    m_open = false;
    for (Change &change : m_noted)
        Changes::announce(std::move(change));
}
