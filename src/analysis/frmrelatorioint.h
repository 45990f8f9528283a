#pragma once

#include "analysis/integratedreport.h"
#include "widgets/screen.h"

class ListView;

namespace Ui {
class frmRelatorioInt;
}

/// The integrated report: one list for all sections, and a text for each and for what they come to.
class frmRelatorioInt : public Screen
{
    Q_OBJECT

public:
    ~frmRelatorioInt() override;

    static frmRelatorioInt *open(integratedreport::Result result, QWidget *parent);

private:
    frmRelatorioInt(integratedreport::Result result, QWidget *parent);
    QWidget *texts();
    QWidget *buttons();

    std::unique_ptr<Ui::frmRelatorioInt> m_ui;
    integratedreport::Result m_result;
    ListView *m_list;
};
