#pragma once

#include "widgets/screen.h"

namespace Ui {
class frmConfGrafico;
}

/// The chart options: a page each for payables, receivables, bank movements, and payables against
/// receivables.
class frmConfGrafico : public Screen
{
    Q_OBJECT

public:
    enum Page { Payables, Receivables, Movements, BothSides };

    /// Null, after a message, when the names to choose from cannot be read.
    static frmConfGrafico *open(Page page, QWidget *parent);
    ~frmConfGrafico() override;

private:
    explicit frmConfGrafico(QWidget *parent);

    std::unique_ptr<Ui::frmConfGrafico> m_ui;
};
