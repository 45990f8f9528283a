#include "app/listreader.h"

#include "bank/accountpane.h"
#include "widgets/listpane.h"
#include "widgets/listview.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace {

constexpr int loadAtOnce = 20; ///< milliseconds of reading after which the window answers before the next tab

constexpr int smallList = 2'000; ///< rows; while no list has more, all is read at once
constexpr int patience = 150;    ///< milliseconds of that

} // namespace

ListReader::ListReader(QList<ListPane *> panes, AccountPane &accounts, QObject *parent)
    : QObject(parent), m_panes(std::move(panes)), m_accounts(accounts)
{
    for (ListPane *pane : std::as_const(m_panes))
        connect(pane, &ListPane::loaded, this, &ListReader::loadNext);
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, [this] {
        startClock();
        loadNext();
    });
}

void ListReader::readAll(int tab, Begin begin)
{
    for (ListPane *pane : std::as_const(m_panes))
        m_unread.insert(pane);
    m_balancesWanted = true;
    startClock();
    if (begin == Begin::Later)
        m_next.start();
    else if (tab < m_panes.size())
        load(*m_panes[tab]);
    else
        loadNext();
}

void ListReader::startClock()
{
    m_soon = QDeadlineTimer(loadAtOnce);
    m_late = QDeadlineTimer(patience);
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

bool ListReader::isTimeUp() const
{
    const bool isSmall =
        std::ranges::all_of(m_panes, [](ListPane *pane) { return pane->list().rowCount() <= smallList; });
    return isSmall ? m_late.hasExpired() : m_soon.hasExpired();
}

/// Reads what is still to be read, one thing after the other. Short work follows at once, so that a small
/// business is complete when the window appears.
void ListReader::loadNext()
{
    if (m_isLoadingNext)
        return;
    const QScopedValueRollback loading(m_isLoadingNext, true);
    for (ListPane *pane : std::as_const(m_panes)) {
        if (pane->feed().isLoading())
            return;
        if (!m_unread.contains(pane))
            continue;
        if (isTimeUp()) {
            m_next.start();
            return;
        }
        load(*pane);
        if (pane->feed().isLoading())
            return;
    }
    if (!m_balancesWanted)
        return;
    if (isTimeUp()) {
        m_next.start();
        return;
    }
    m_balancesWanted = false;
    m_accounts.refresh();
}
