#pragma once

#include <QtGlobal>

#include <iterator>
#include <random>

/// Random choices that come out the same on every machine: only the engine is the library's, since the
/// standard leaves the arithmetic of its distributions open. The tiny bias of the modulo does not matter
/// here.
class Random
{
public:
    explicit Random(quint64 seed) : m_engine(seed) {}

    /// A whole number from `low` to `high`, both included; `low` when there is no other.
    qint64 between(qint64 low, qint64 high)
    {
        return low < high ? low + qint64(m_engine() % quint64(high - low + 1)) : low;
    }
    /// As between(), with small numbers more likely than large ones.
    qint64 mostlySmall(qint64 low, qint64 high) { return between(low, between(low, high)); }
    bool percent(int chance) { return between(1, 100) <= chance; }

    /// One of the items of an array or another list with an index.
    template <typename List>
    const auto &pick(const List &items)
    {
        return items[std::size_t(between(0, qint64(std::size(items)) - 1))];
    }

    /// Picks an item in proportion to its member `weight`.
    template <typename List>
    const auto &weighted(const List &items)
    {
        qint64 total = 0;
        for (const auto &item : items)
            total += item.weight;
        qint64 left = between(1, total);
        std::size_t index = 0;
        while (left > items[index].weight)
            left -= items[index++].weight;
        return items[index];
    }

private:
    std::mt19937_64 m_engine;
};
