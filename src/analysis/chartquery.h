#pragma once

#include "analysis/figurekind.h"

/// What the user wants in a chart; an empty text or date leaves its condition out.
struct ChartFilter
{
    bool byDate = false;
    QString first = {}, last = {}; ///< as stored; only with byDate
    QString status = {};           ///< "Pendente", "Concluído"
    QString account = {};
    QString contact = {}, centre = {}; ///< of entries
    QString destination = {};          ///< of bank movements
};

/// The charts over chosen rows. A chosen name also finds the names that contain it.
namespace chartquery {

/// The message about dates that are missing; nothing when there is a chart to make.
std::optional<QString> problem(const ChartFilter &filter);

/// The rows that a chart of one kind counts. Throws Error for a text with an apostrophe.
QString query(const FigureKind &kind, const ChartFilter &filter);
/// The entries of one side, whatever their contact and centre, to be set against the other side's.
QString opposed(const Side &side, const ChartFilter &filter);

// The charts; nothing when no row was found. `progress` may be null. Throw Error.
std::optional<ChartData> chart(Connection &connection, const FigureKind &kind, const ChartFilter &filter,
                               Progress *progress);
std::optional<ChartData> bothSides(Connection &connection, const ChartFilter &filter, Progress *progress);

} // namespace chartquery
