#pragma once

#include "data/sum.h"

#include <QStringList>

#include <memory>
#include <span>
#include <string_view>

/// Which words of `estatus` make a row pending, and which settled.
enum class StatusRule : quint8 {
    Exact,    ///< "Pendente" as it is written is pending, every other word settled
    AnyCase,  ///< "pendente" in any letter case is pending, every other word settled
    BothWords ///< both words in any letter case; a row with another one counts in the total alone
};

/// Count and sum of rows, pending and settled apart.
struct Figures
{
    struct Part
    {
        qint64 count = 0;
        Sum sum;

        Part &operator+=(const Part &other)
        {
            count += other.count;
            sum += other.sum;
            return *this;
        }
    };
    Part pending, settled;
    Part other = {}; ///< neither; empty unless the rule is StatusRule::BothWords

    /// Counts a row in, or with a `sign` of -1 out.
    void add(std::string_view status, Money value, int sign = 1, StatusRule rule = StatusRule::Exact)
    {
        Part &part = partOf(status, rule);
        part.count += sign;
        part.sum += sign < 0 ? Sum() - value : Sum(value);
    }
    Part total() const { return (Part(pending) += settled) += other; }
    Figures &operator+=(const Figures &more)
    {
        pending += more.pending;
        settled += more.settled;
        other += more.other;
        return *this;
    }

private:
    Part &partOf(std::string_view status, StatusRule rule);
};

/// What a list adds up of its rows while their keys are read. A list has a class of its own for it.
class RowTotals
{
public:
    virtual ~RowTotals() = default;
    /// The table's columns that count, in the order in which add() takes them.
    virtual QStringList columns() const = 0;
    /// Counts a row in, or with a `sign` of -1 out; `values` are the stored texts of columns().
    virtual void add(std::span<const std::string_view> values, int sign) = 0;
    virtual std::unique_ptr<RowTotals> clone() const = 0;

protected:
    RowTotals() = default;
    RowTotals(const RowTotals &) = default;
    RowTotals &operator=(const RowTotals &) = default;
};

/// Rows that are only counted.
class NoTotals : public RowTotals
{
public:
    QStringList columns() const override { return {}; }
    void add(std::span<const std::string_view>, int) override {}
    std::unique_ptr<RowTotals> clone() const override { return std::make_unique<NoTotals>(*this); }
};

/// The figures of `estatus` and `valor`.
class FigureTotals : public RowTotals
{
public:
    explicit FigureTotals(StatusRule rule = StatusRule::Exact) : m_rule(rule) {}

    QStringList columns() const override;
    void add(std::span<const std::string_view> values, int sign) override;
    std::unique_ptr<RowTotals> clone() const override { return std::make_unique<FigureTotals>(*this); }

    Figures figures;

private:
    StatusRule m_rule;
};

/// `sum += value` or, with a `sign` of -1, `sum -= value`.
inline void addSigned(Sum &sum, Decimal value, int sign)
{
    sign < 0 ? sum -= value : sum += value;
}
