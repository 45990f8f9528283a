#pragma once

#include "analysis/chartdata.h"
#include "widgets/screen.h"

namespace Ui {
class frmGrafico;
}

/// The chart screen: a chart with its statistics, to be printed, or saved as a picture.
class frmGrafico : public Screen
{
    Q_OBJECT

public:
    static frmGrafico *open(ChartData chart, QWidget *parent);
    ~frmGrafico() override;

private:
    frmGrafico(ChartData chart, QWidget *parent);
    void print();
    void savePng();
    void saveSvg();

    std::unique_ptr<Ui::frmGrafico> m_ui;
    ChartData m_chart;
};
