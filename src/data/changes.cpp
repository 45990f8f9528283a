#include "data/changes.h"

#include <algorithm>
#include <iterator>

Changes &Changes::instance()
{
    static Changes changes;
    return changes;
}

void Changes::announce(Change change)
{
    Changes &self = instance();
    if (self.m_holds == 0) {
        Q_EMIT self.changed(change);
        return;
    }
    const auto held = std::ranges::find(self.m_held, change.subject, &Change::subject);
    if (held == self.m_held.end())
        self.m_held.push_back(std::move(change));
    else if (held->rows.empty() || change.rows.empty())
        held->rows.clear();
    else
        std::ranges::move(change.rows, std::back_inserter(held->rows));
}

void Changes::release()
{
    for (const Change &change : std::exchange(m_held, {}))
        Q_EMIT changed(change);
}
