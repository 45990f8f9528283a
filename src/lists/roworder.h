#pragma once

#include "lists/listquery.h"
#include "lists/slicedsort.h"

#include <array>
#include <deque>
#include <memory>
#include <unordered_map>

class Statement;

/// Puts rows in order whose keys and order values came in any order: what the store's own sort does, but in
/// steps, and several times as fast. At most three values tell rows apart; then the keys do.
class RowOrder
{
public:
    static constexpr std::size_t maxTerms = 3;

    /// Whether rows that the terms do not tell apart come by their keys, or in the order of add().
    enum class Ties { ByKey, AsAdded };

    /// The values of `terms` are columns `firstColumn` and following of the rows: of a date the column that
    /// it is made from, which takes less than having the store find the date. A `computed` heading (may be
    /// null), whose cells are made from columns, orders first, and its sources come first.
    RowOrder(std::span<const dialect::OrderTerm> terms, const std::optional<HeadingSort> &computed, Ties ties,
             int firstColumn);
    ~RowOrder();
    Q_DISABLE_COPY_MOVE(RowOrder)

    void add(qint64 key, const Statement &row);
    /// Works until the rows are in order (true) or the time is up.
    bool run(const QDeadlineTimer &until);
    /// The keys in order; once, after run() gave true.
    std::deque<qint64> takeKeys();

private:
    struct Row
    {
        std::array<qint64, maxTerms> ranks;
        qint64 key;
    };
    struct Names;
    struct Term
    {
        dialect::OrderTerm::Kind kind;
        bool descending;
        int column;
        std::unique_ptr<Names> names; ///< of the different texts that rows had
    };
    static bool comesFirst(const Row &a, const Row &b)
    {
        return a.ranks != b.ranks ? a.ranks < b.ranks : a.key < b.key;
    }

    qint64 rank(Term &term, const Statement &row);
    qint64 computedRank(const Statement &row);
    void rankNames(Term &term, std::size_t place);

    std::optional<HeadingSort> m_computed;
    Ties m_ties;
    int m_firstColumn;
    std::vector<Term> m_terms;
    std::vector<Row> m_rows;
    std::size_t m_ranked = 0; ///< terms whose names have been ranked
    std::unique_ptr<SlicedSort<Row, bool (*)(const Row &, const Row &)>> m_sort;
};
