#pragma once

#include "bank/accounts.h"
#include "data/connection.h"
#include "entries/side.h"
#include "lists/figures.h"
#include "lists/storedtable.h"

#include <QDate>
#include <QDeadlineTimer>

#include <array>
#include <memory>
#include <optional>

/// What matters today: what is due, what the cash will be, and how the month goes.
struct TodayFacts
{
    static constexpr int days = 90; ///< that the projection looks ahead
    static constexpr int soon = 7;  ///< days after today that count as soon

    struct OfSide
    {
        Figures::Part overdue, today, soon;   ///< pending
        Figures::Part thisMonth, monthBefore; ///< settled, by the day of settling
    };
    OfSide sides[2]; ///< payables, receivables
    QDate day;
    /// What is due until then, in the order of the dates; the first `mostRows` of each side. Rows know their
    /// entries.
    std::shared_ptr<StoredTable> due;
    /// What pending entries bring or take on each day from today on; what is overdue is counted today.
    std::array<Sum, days + 1> flow;

    const OfSide &of(const Side &side) const { return sides[&side == &receivable()]; }
};

/// Reads the facts from indexes alone but for the rows that are shown, in steps of one row.
class TodayLoad
{
public:
    /// Throws Error.
    TodayLoad(std::shared_ptr<Connection> connection, QDate today);
    ~TodayLoad();
    /// Works until all is read (true) or the time is up. Throws Error.
    bool run(const QDeadlineTimer &until);
    TodayFacts take() { return std::move(m_facts); }
    quint64 serial() const;

private:
    struct Due;

    void startSide();
    void readRow();
    void readDueRows();

    std::shared_ptr<Connection> m_connection;
    TodayFacts m_facts;
    std::string m_today, m_thisMonth, m_monthBefore; ///< as stored dates have them
    std::size_t m_side = 0;
    std::optional<Statement> m_rows; ///< while there is something to read
    std::vector<Due> m_due;
    std::size_t m_rowsOfSide = 0;
};

namespace today {

inline constexpr std::size_t mostRows = 500; ///< of each side

/// A line for each span of days, with what is to be paid and to be received in it.
std::shared_ptr<StoredTable> summary(const TodayFacts &facts);
/// What was paid, received and left in this month and the one before.
std::shared_ptr<StoredTable> months(const TodayFacts &facts);
/// Each account's balance, and their total.
std::shared_ptr<StoredTable> balances(const std::vector<AccountBalance> &accounts);
Sum total(const std::vector<AccountBalance> &accounts);

/// The cash at the end of each day, today first, when everything is paid and received when it is due.
std::vector<Sum> projection(const TodayFacts &facts, Sum cash);
/// In words: where the cash is lowest, and when it runs out.
QString projectionText(const TodayFacts &facts, const std::vector<Sum> &cash);
bool isNegative(const Sum &sum);

} // namespace today
