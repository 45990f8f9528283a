#include "widgets/listfeed.h"

#include "settings/database.h"
#include "widgets/listfinder.h"
#include "widgets/listview.h"
#include "widgets/messages.h"
#include "widgets/waittext.h"

#include <QHeaderView>
#include <QScopeGuard>
#include <QSignalBlocker>

#include <utility>

ListFeed::ListFeed(ListView &view, std::vector<ListColumn> columns, std::unique_ptr<RowTotals> noTotals,
                   QString loadingTitle)
    : QObject(&view),
      m_view(view),
      m_loadingTitle(std::move(loadingTitle)),
      m_list(std::move(columns), std::move(noTotals), [] { return openDatabase(); }),
      m_work(&view)
{
    m_view.setColumns(m_list.columns());
    m_view.table().showKeyed(&m_list.rows());
    connect(&m_view.table(), &TableModel::sortRequested, this, &ListFeed::sortBy);
    connect(&m_view, &ListView::wholeListWanted, this, &ListFeed::finish);
}

ListFeed::~ListFeed() = default;

qint64 ListFeed::key(int row) const
{
    return m_view.table().keyed()->key(row);
}

quint64 ListFeed::serial() const
{
    const KeyedRows *shown = m_view.table().keyed();
    return shown ? shown->serial() : 0;
}

std::optional<qint64> ListFeed::selectedKey() const
{
    const int row = m_view.selectedRow();
    return row < 0 ? std::nullopt : std::optional(key(row));
}

/// The list shows all its rows while they change; what is looked for is found again when that is done.
auto ListFeed::suspendFinding()
{
    m_view.finder().suspend();
    return qScopeGuard([this] {
        if (!m_work.isRunning())
            m_view.finder().resume();
    });
}

void ListFeed::load(const QString &sql)
{
    auto fresh = std::make_shared<ListLoad>(openDatabase(), ListQuery(sql, m_choice.sort), m_list.noTotals());
    if (!m_part) { // else the list shows part of a load that gives way, and is not where the user left it
        m_selected = selectedKey();
        m_scrolled = m_view.scrolled();
    }
    const auto searched = suspendFinding();
    drop();
    m_load = fresh;
    try {
        m_work.start({.title = m_loadingTitle,
                      .text = listWaitText(),
                      .run = [fresh](const QDeadlineTimer &until) { return fresh->run(until); },
                      .interrupted = [this] { showPart(); },
                      .done = [this] { takeOver(); },
                      .failed =
                          [this](const Error &error) {
                              drop();
                              goBack();
                              m_view.finder().resume();
                              Q_EMIT failed(error);
                          },
                      .total = [fresh] { return fresh->countRows(); },
                      .progress = [fresh] { return fresh->rowsRead(); }});
    } catch (const Error &) {
        drop();
        throw;
    }
    m_choice.sql = sql;
    if (!m_load)
        m_shown = m_choice;
}

/// Shows the rows that are known to come first while the others are still read.
void ListFeed::showPart()
{
    if (!m_load->isInOrder())
        return;
    const std::deque<qint64> &keys = m_load->keys();
    if (!m_part) {
        m_part = std::make_unique<KeyedRows>(m_list.rowsOf(*m_load));
        m_view.table().showKeyed(m_part.get());
        return;
    }
    const std::vector<qint64> added(keys.begin() + m_part->rowCount(), keys.end());
    m_view.table().append(int(added.size()), [&] { m_part->append(added); });
}

void ListFeed::takeOver()
{
    const bool wasPart = m_part != nullptr;
    if (wasPart)
        showPart();
    else
        m_view.table().showKeyed(nullptr);
    m_list.take(*m_load);
    m_load.reset();
    m_shown = m_choice;
    if (wasPart)
        m_view.table().moveKeyed(&m_list.rows());
    else
        m_view.table().showKeyed(&m_list.rows());
    m_part.reset();
    if (m_selected && m_view.selectedRow() < 0)
        m_view.selectRow(m_list.rows().rowOf(*m_selected));
    if (!wasPart)
        m_view.scrollBack(m_scrolled);
    m_view.finder().resume();
    Q_EMIT loaded();
}

/// Gives a running load up; the list shows what it showed before.
void ListFeed::drop()
{
    m_work.cancel();
    m_load.reset();
    if (m_part) {
        m_view.table().showKeyed(&m_list.rows());
        m_part.reset();
    }
}

void ListFeed::follow(const Change &change)
{
    if (m_load || m_choice.sql.isEmpty()) {
        if (!m_choice.sql.isEmpty())
            load(m_choice.sql);
        return;
    }
    const std::shared_ptr<Connection> connection = openDatabase();
    const auto observer = [this](const RowEdit &edit, const std::function<void()> &perform) {
        m_view.table().edit(edit, perform);
    };
    const std::optional<qint64> selected = selectedKey();
    const auto searched = suspendFinding();
    if (!m_list.apply(*connection, change.rows, observer)) {
        load(m_choice.sql);
        return;
    }
    if (selected && m_view.selectedRow() < 0) // a row that moves leaves the selection
        m_view.selectRow(m_list.rows().rowOf(*selected));
    Q_EMIT loaded();
}

void ListFeed::sortBy(int column, Qt::SortOrder order)
{
    m_choice.indicator = {column, order};
    m_choice.sort.reset();
    if (column >= 0)
        m_choice.sort = HeadingSort{m_list.columns()[std::size_t(column)], order == Qt::DescendingOrder};
    if (m_choice.sql.isEmpty())
        return;
    if (!messages::guarded(m_view.window(), messages::generalPrefix, [this] { load(m_choice.sql); }))
        goBack();
}

/// The list still shows what it showed before a load that failed.
void ListFeed::goBack()
{
    m_choice = m_shown;
    const QSignalBlocker blocker(m_view.header());
    m_view.header()->setSortIndicator(m_choice.indicator.first, m_choice.indicator.second);
}
