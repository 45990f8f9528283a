#include "widgets/listpane.h"

#include "widgets/messages.h"

#include <QLabel>

#include <utility>

using namespace Qt::StringLiterals;

ListPane::ListPane(QWidget *parent) : QWidget(parent)
{
}

void ListPane::setUp(ListView *list, QLabel *totals, ListFeed *feed)
{
    m_list = list;
    m_totals = totals;
    m_feed = feed;
    m_totals->setText(totalsText());
    connect(&m_filters, &FilterBoxes::changed, this, &ListPane::begin);
    connect(feed, &ListFeed::loaded, this, &ListPane::listLoaded);
    connect(feed, &ListFeed::failed, this, [this](const Error &error) {
        m_isStale = true;
        m_filters.revert();
        m_totals->setText(totalsText());
        messages::error(window(), messages::generalPrefix, error);
    });
}

bool ListPane::reload()
{
    m_namesWanted = true;
    return begin();
}

bool ListPane::begin()
{
    m_filtersFailed = false;
    m_isStale = false; // what is skipped from now on is missed
    try {
        m_feed->load(query());
    } catch (const Error &error) {
        m_isStale = true;
        m_filtersFailed = error.kind() == Error::Kind::Query;
        m_filters.revert();
        messages::error(window(), messages::generalPrefix, error);
        return false;
    }
    if (m_feed->isLoading())
        m_totals->setText(u"Lendo os dados…"_s);
    return true;
}

bool ListPane::reloadUnfiltered()
{
    m_filters.reset();
    return reload();
}

bool ListPane::follow(const Change &change)
{
    if (m_isStale)
        return reload();
    return messages::guarded(window(), messages::generalPrefix, [&] {
        m_namesWanted |= changesNames(change);
        m_feed->follow(change);
    });
}

void ListPane::listLoaded()
{
    m_totals->setText(totalsText());
    messages::guarded(window(), messages::generalPrefix, [this] {
        m_filters.accept();
        if (std::exchange(m_namesWanted, false))
            refillFilterBoxes();
    });
    Q_EMIT loaded();
}
