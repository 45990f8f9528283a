#pragma once

#include "widgets/screen.h"

namespace Ui {
class frmConfRelatorio;
}

/// The report dialog: a page each for payables, receivables, movements and stock.
class frmConfRelatorio : public Screen
{
    Q_OBJECT

public:
    ~frmConfRelatorio() override;

    enum Page { Payables, Receivables, Movements, Stock };

    /// With that page in front. Null, after a message, when the names cannot be read.
    static frmConfRelatorio *open(Page page, QWidget *parent);

private:
    explicit frmConfRelatorio(QWidget *parent);

    std::unique_ptr<Ui::frmConfRelatorio> m_ui;
};
