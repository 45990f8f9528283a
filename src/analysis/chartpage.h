#pragma once

#include "analysis/chartdata.h"
#include "lists/pagedocument.h"

/// The chart screen on paper: the drawing, which `paint` makes, and the statistics under it.
PageDocument chartPage(const ChartData &chart,
                       std::function<void(QPainter &painter, const QRectF &where)> paint);
