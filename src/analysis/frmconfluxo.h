#pragma once

#include "analysis/cashflow.h"
#include "widgets/screen.h"

namespace Ui {
class frmconfluxo;
}

/// The choices of the cash flow: due dates, account and status.
class frmconfluxo : public Screen
{
    Q_OBJECT

public:
    /// Null, with a message, when the accounts cannot be read.
    static frmconfluxo *open(cashflow::Mode mode, QWidget *parent);
    ~frmconfluxo() override;

private:
    frmconfluxo(cashflow::Mode mode, QWidget *parent);
    void showFlow();

    std::unique_ptr<Ui::frmconfluxo> m_ui;
    cashflow::Mode m_mode;
};
