#pragma once

#include "data/sum.h"

#include <QStringList>

#include <vector>

/// One colour of a chart: a name in the legend, and a bar in each category.
struct ChartSeries
{
    QString name;
    std::vector<Sum> values; ///< one a category
};

/// What the chart screen shows: bars of amounts, and a box with statistics beside them.
struct ChartData
{
    QString caption = {}; ///< of the window: "Gráfico de movimento do dia (despesas)"
    QString title = {};   ///< over the bars: "Movimento do dia (despesas)"
    QStringList categories = {};
    std::vector<ChartSeries> series = {};
    QString heading = {};   ///< over the statistics
    QStringList lines = {}; ///< of the statistics
};

namespace chartdata {

/// The amounts at the axis, ascending, in equal round steps; all bars and zero lie between the first and the
/// last one, and a value written over the highest bar has room. Sums beyond the range of Money reach its end.
std::vector<Money> ticks(const ChartData &chart);
/// The sum, or the end of the range of Money that lies in its direction.
Money clamped(Sum sum);
/// An amount at the axis: "R$ 1.500", with decimals only where it has some.
QString tickText(Money tick);

} // namespace chartdata
