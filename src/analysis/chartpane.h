#pragma once

#include "analysis/chartdata.h"

#include <QWidget>

class QChartView;

/// Draws a chart: a bar for each series in every category, its amount over it, and a legend. The same drawing
/// is made on the screen, in the palette's colours, and on paper and in files, on white.
class ChartPane : public QWidget
{
    Q_OBJECT

public:
    explicit ChartPane(ChartData chart, QWidget *parent = nullptr);

    /// Draws with the painter's own lines and letters, not as dots.
    static void paint(const ChartData &chart, QPainter &painter, const QRectF &where);

protected:
    void changeEvent(QEvent *event) override;

private:
    void draw();

    ChartData m_chart;
    QChartView *m_view;
};
