#include "lists/roworder.h"

#include "data/connection.h"
#include "data/decimal.h"
#include "data/like.h"

#include <algorithm>
#include <limits>
#include <string>

namespace {

constexpr qint64 beforeAll = std::numeric_limits<qint64>::min();

/// Whether the text fits a form in which "0" stands for a digit, and "1" and "3" for one up to that.
bool fits(std::string_view text, std::string_view form)
{
    return std::ranges::equal(text, form, [](char c, char place) {
        return place == '/' ? c == '/' : c >= '0' && c <= (place == '0' ? '9' : place);
    });
}

/// The day that a stored date means, as a number that orders alike: what dialect::dateExpression() yields.
qint64 dayNumber(std::string_view text)
{
    constexpr std::string_view yearFirst = "0000/10/30", dayFirst = "30/10/0000";
    const auto number = [text](std::size_t from, std::size_t digits) {
        qint64 value = 0;
        for (const char c : text.substr(from, digits))
            value = value * 10 + (c - '0');
        return value;
    };
    if (fits(text, yearFirst))
        return (number(0, 4) * 100 + number(5, 2)) * 100 + number(8, 2);
    if (fits(text, dayFirst))
        return (number(6, 4) * 100 + number(3, 2)) * 100 + number(0, 2);
    return beforeAll;
}

/// What a shown number sorts by; a percentage sorts by its number.
qint64 shownNumber(std::string_view cell)
{
    if (cell.ends_with('%'))
        cell.remove_suffix(1);
    return Decimal::stored(cell).tenThousandths();
}

struct TextHash
{
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
};

bool nameBefore(const std::string *a, const std::string *b)
{
    return textorder::compareNames(std::string_view(*a), std::string_view(*b)) < 0;
}

} // namespace

/// Each text gets a number when it is first met; later its rank among all.
struct RowOrder::Names
{
    qint64 numberOf(std::string_view text)
    {
        if (last && last->first == text) // an index gives equal texts one after another
            return last->second;
        auto found = numbers.find(text);
        if (found == numbers.end())
            found = numbers.emplace(std::string(text), qint64(numbers.size())).first;
        last = &*found;
        return found->second;
    }

    std::unordered_map<std::string, qint64, TextHash, std::equal_to<>> numbers;
    const std::pair<const std::string, qint64> *last = nullptr; ///< that was asked for
    std::vector<const std::string *> ordered;
    std::unique_ptr<SlicedSort<const std::string *, bool (*)(const std::string *, const std::string *)>> sort;
};

RowOrder::RowOrder(std::span<const dialect::OrderTerm> terms, const std::optional<HeadingSort> &computed,
                   Ties ties, int firstColumn)
    : m_computed(computed), m_ties(ties), m_firstColumn(firstColumn)
{
    int column = firstColumn + (computed ? int(computed->column.sources.size()) : 0);
    for (const dialect::OrderTerm &term : terms) {
        const bool isName = term.kind == dialect::OrderTerm::Kind::Name;
        m_terms.push_back(
            {term.kind, term.descending, column++, isName ? std::make_unique<Names>() : nullptr});
    }
    Q_ASSERT(m_terms.size() + (computed ? 1 : 0) + (ties == Ties::AsAdded ? 1 : 0) <= maxTerms);
}

RowOrder::~RowOrder() = default;

qint64 RowOrder::rank(Term &term, const Statement &row)
{
    using Kind = dialect::OrderTerm::Kind;
    if (row.isNull(term.column))
        return beforeAll;
    switch (term.kind) {
    case Kind::Date:
        return dayNumber(row.utf8(term.column));
    case Kind::Name:
        return term.names->numberOf(row.utf8(term.column));
    case Kind::Amount:
    case Kind::Plain:
        break;
    }
    return row.integer(term.column);
}

qint64 RowOrder::computedRank(const Statement &row)
{
    std::vector<std::string_view> values;
    values.reserve(std::size_t(m_computed->column.sources.size()));
    for (int i = 0; i < int(m_computed->column.sources.size()); ++i)
        values.push_back(row.utf8(m_firstColumn + i));
    std::string cell;
    m_computed->column.format(values, cell);
    return shownNumber(cell);
}

void RowOrder::add(qint64 key, const Statement &row)
{
    Row added{{}, key};
    std::size_t place = 0;
    if (m_computed) {
        const qint64 value = computedRank(row);
        added.ranks[place++] = m_computed->descending ? ~value : value;
    }
    for (Term &term : m_terms) {
        const qint64 value = rank(term, row);
        // Names are turned round when they are ranked.
        added.ranks[place++] = term.descending && !term.names ? ~value : value;
    }
    if (m_ties == Ties::AsAdded)
        added.ranks[place] = qint64(m_rows.size());
    m_rows.push_back(added);
}

/// Replaces the numbers of a term's texts by ranks. Texts that compare equal share one.
void RowOrder::rankNames(Term &term, std::size_t place)
{
    std::vector<qint64> ranks(term.names->numbers.size());
    qint64 rank = 0;
    for (std::size_t i = 0; i < term.names->ordered.size(); ++i) {
        const std::string *name = term.names->ordered[i];
        if (i > 0 && nameBefore(term.names->ordered[i - 1], name))
            ++rank;
        ranks[std::size_t(term.names->numbers.find(*name)->second)] = rank;
    }
    for (Row &row : m_rows) {
        qint64 &value = row.ranks[place];
        value = value == beforeAll ? beforeAll : ranks[std::size_t(value)];
        if (term.descending)
            value = ~value;
    }
    term.names.reset();
}

bool RowOrder::run(const QDeadlineTimer &until)
{
    for (; m_ranked < m_terms.size(); ++m_ranked) {
        Names *names = m_terms[m_ranked].names.get();
        if (!names)
            continue;
        if (!names->sort) {
            for (const auto &[text, number] : names->numbers)
                names->ordered.push_back(&text);
            names->sort = std::make_unique<std::decay_t<decltype(*names->sort)>>(names->ordered, nameBefore);
        }
        if (!names->sort->run(until))
            return false;
        rankNames(m_terms[m_ranked], m_ranked + (m_computed ? 1 : 0));
    }
    if (!m_sort)
        m_sort = std::make_unique<std::decay_t<decltype(*m_sort)>>(m_rows, comesFirst);
    return m_sort->run(until);
}

std::deque<qint64> RowOrder::takeKeys()
{
    std::deque<qint64> keys;
    for (const Row &row : m_rows)
        keys.push_back(row.key);
    m_rows = {};
    return keys;
}
