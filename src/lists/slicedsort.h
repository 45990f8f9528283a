#pragma once

#include <QDeadlineTimer>

#include <algorithm>
#include <vector>

/// Sorts a vector in steps short enough for a window to answer between them; equal elements keep their order.
template <typename T, typename Less>
class SlicedSort
{
public:
    SlicedSort(std::vector<T> &items, Less less) : m_items(items), m_less(std::move(less)) {}

    /// Works until it is done (true) or the time is up. A step takes at most one pass over the items.
    bool run(const QDeadlineTimer &until)
    {
        while (m_width < m_items.size() || m_next < m_items.size()) {
            step();
            if (until.hasExpired())
                return m_width >= m_items.size() && m_next >= m_items.size();
        }
        return true;
    }

private:
    static constexpr std::size_t runLength = 16384;

    auto at(std::size_t index) { return m_items.begin() + std::ptrdiff_t(std::min(index, m_items.size())); }

    /// Sorts one run, or merges two.
    void step()
    {
        if (m_next >= m_items.size()) {
            m_width = m_width == 0 ? runLength : 2 * m_width;
            m_next = 0;
        }
        if (m_width == 0) {
            std::stable_sort(at(m_next), at(m_next + runLength), m_less);
            m_next += runLength;
        } else {
            std::inplace_merge(at(m_next), at(m_next + m_width), at(m_next + 2 * m_width), m_less);
            m_next += 2 * m_width;
        }
    }

    std::vector<T> &m_items;
    Less m_less;
    std::size_t m_width = 0; ///< length of the runs that are in order; 0 while they are made
    std::size_t m_next = 0;
};
