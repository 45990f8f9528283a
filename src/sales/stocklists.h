#pragma once

#include "entries/side.h"
#include "lists/figures.h"
#include "lists/listcolumn.h"

#include <QDate>
#include <QStringList>

class Connection;

/// Everything in which the sales list and the purchases list of the stock differ.
struct StockKind
{
    const Side &side;     ///< sales are receivables, purchases are payables
    QString title;        ///< "Vendas"
    QString loadingTitle; ///< on the wait screen
    QString countWords;   ///< " cadastrados  -  Total de vendas(lucro real): "
    QString emptyText;    ///< in place of rows
};

const StockKind &sales();
const StockKind &purchases();

/// The choices of a list's filter boxes, as their texts; letter case is ignored. A text that begins with
/// "Todos" is the "all" choice (for the status: "Pendentes e Concluídos"). The period tests the day of entry.
struct StockFilter
{
    QString period, status, product, contact;
};

class StockTotals : public RowTotals
{
public:
    explicit StockTotals(const StockKind &kind) : m_kind(kind) {}

    QStringList columns() const override;
    void add(std::span<const std::string_view> values, int sign) override;
    std::unique_ptr<RowTotals> clone() const override { return std::make_unique<StockTotals>(*this); }

    /// The first sum is the profit for sales, the total for purchases.
    QString text() const;

    Figures figures;
    Sum profit; ///< (value − unit cost) × quantity, summed

private:
    const StockKind &m_kind;
};

namespace stocklists {

/// The list's query, in the program's SQL dialect: entries that carry a product.
QString query(const StockKind &kind, const StockFilter &filter, QDate today);
/// The filter in words, for a report.
QString filterText(const StockKind &kind, const StockFilter &filter);

/// The row key first; sales also have the unit cost, the markup and the unit profit.
std::vector<ListColumn> columns(const StockKind &kind);

/// The products and the contacts that the entries name, for the filter boxes.
QStringList productNames(Connection &connection, const StockKind &kind);
QStringList contactNames(Connection &connection, const StockKind &kind);

/// (value ÷ cost − 1) × 100 with "%"; "-" without a cost.
QString markup(Money value, Money cost);

} // namespace stocklists
