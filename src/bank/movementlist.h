#pragma once

#include "lists/figures.h"
#include "lists/listcolumn.h"
#include "settings/listlayout.h"

#include <QDate>
#include <QStringList>

#include <vector>

/// The choices of the movement list's filter boxes, as their texts; letter case is ignored.
struct MovementFilter
{
    QString kind;   ///< "Depósitos", "Retiradas", "Transferências"; anything else is all
    QString period; ///< a choice of data/period.h
    QString sortBy; ///< a choice of sortChoices()
    bool ascending = true;
    /// While the period is all: "1" limits the list to this month, "2" to this year.
    QString limit = {};
};

/// The sums under the movement list, by kind; a kind that was typed otherwise belongs to none of the three.
class MovementTotals : public RowTotals
{
public:
    QStringList columns() const override;
    void add(std::span<const std::string_view> values, int sign) override;
    std::unique_ptr<RowTotals> clone() const override { return std::make_unique<MovementTotals>(*this); }

    QString text() const;

    Figures::Part deposits, withdrawals, transfers;
};

namespace movementlist {

inline constexpr QStringView loadingTitle = u"Carregando movimento bancário";

QStringList kindChoices();
QStringList sortChoices();
/// The period that the list shows, in words.
QString shownPeriod(const MovementFilter &filter);
/// The list's query, in the program's SQL dialect.
QString query(const MovementFilter &filter, QDate today);
std::vector<ListColumn> columns();
ListLayoutFile layoutFile();

} // namespace movementlist
