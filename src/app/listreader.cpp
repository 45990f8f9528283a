#include "app/listreader.h"

#include "bank/accountpane.h"
#include "widgets/listpane.h"

#include <QDeadlineTimer>
#include <QScopedValueRollback>

namespace {

constexpr int loadAtOnce = 20; ///< milliseconds of work on tabs that are not shown, before the window answers

} // namespace

ListReader::ListReader(QList<ListPane *> panes, AccountPane &accounts, QObject *parent)
    : QObject(parent), m_panes(std::move(panes)), m_accounts(accounts)
{
    for (ListPane *pane : std::as_const(m_panes))
        connect(pane, &ListPane::loaded, this, &ListReader::loadNext);
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &ListReader::loadNext);
}

void ListReader::readAll(int tab)
{
    for (ListPane *pane : std::as_const(m_panes))
        m_unread.insert(pane);
    m_balancesWanted = true;
    if (tab < m_panes.size())
        load(*m_panes[tab]);
    else
        loadNext();
}

void ListReader::show(int tab)
{
    if (tab >= m_panes.size())
        m_accounts.refresh();
    else if (m_unread.contains(m_panes[tab]))
        load(*m_panes[tab]);
}

/// A choice that was kept and breaks the query would leave the list empty at every start.
void ListReader::load(ListPane &pane)
{
    m_unread.remove(&pane);
    if (!pane.reload() && pane.filtersFailed())
        pane.reloadUnfiltered();
}

/// Reads what is still to be read, one thing after the other. Short work follows at once, so that a small
/// business is complete when the window appears.
void ListReader::loadNext()
{
    if (m_isLoadingNext)
        return;
    const QScopedValueRollback loading(m_isLoadingNext, true);
    const QDeadlineTimer soon(loadAtOnce);
    for (ListPane *pane : std::as_const(m_panes)) {
        if (pane->feed().isLoading())
            return;
        if (!m_unread.contains(pane))
            continue;
        if (soon.hasExpired()) {
            m_next.start();
            return;
        }
        load(*pane);
        if (pane->feed().isLoading())
            return;
    }
    if (std::exchange(m_balancesWanted, false))
        m_accounts.refresh();
}
