#pragma once

#include "analysis/chartdata.h"
#include "data/connection.h"
#include "data/progress.h"
#include "entries/periodview.h"
#include "entries/side.h"
#include "lists/figures.h"
#include "reports/report.h"

#include <array>
#include <optional>

/// The words for one period.
struct FigureWords
{
    QString movement;   ///< "movimento do dia (despesas)"
    QString statistics; ///< "Estatistica de movimento do dia(despesas)"
    QString noData;     ///< the message when there are no rows
};

/// What figures are made of: payables, receivables or bank movements; everything in which their statistics
/// and charts differ.
struct FigureKind
{
    QString table;
    const Side *side;                   ///< null for bank movements
    std::array<FigureWords, 3> periods; ///< by ViewPeriod
    QString heading;                    ///< over the figures: "Estatistica de contas a pagar"
    /// Of count and sum of all rows, of the settled ones, of the pending ones.
    std::array<QString, 6> labels;
    /// All, settled, pending, as a legend has them.
    std::array<QString, 3> series;

    // The chart of rows that the user chose.
    QString chartCaption; ///< "Gráfico de contas a pagar(personalizado)"
    QString chartTitle;   ///< "Gráfico de contas a pagar - despesas"
    QString noneFound;    ///< the message when there are no such rows
};

const FigureKind &payableFigures();
const FigureKind &receivableFigures();
const FigureKind &bankFigures();

/// A row is pending or settled by its words in any letter case; one with another word counts in the total
/// alone. All that read throw Error; `progress` may be null.
namespace figures {

/// The rows of a day, a month or a year.
QString query(const FigureKind &kind, ViewPeriod period, QDate today);
/// What the rows of a query add up to.
Figures read(Connection &connection, const QString &query, Progress *progress);

/// "Total de receitas cadastradas: 3 cadastros" and the other five.
QStringList lines(const FigureKind &kind, const Figures &figures);
/// A chart of these figures; the caption and the title are the caller's.
ChartData chart(const FigureKind &kind, const Figures &figures);

/// The statistics of a period; nothing when it has no rows.
std::optional<Report> statistics(Connection &connection, const FigureKind &kind, ViewPeriod period,
                                 QDate today, Progress *progress);
/// The chart of a period; nothing when it has no rows.
std::optional<ChartData> chart(Connection &connection, const FigureKind &kind, ViewPeriod period, QDate today,
                               Progress *progress);

} // namespace figures
