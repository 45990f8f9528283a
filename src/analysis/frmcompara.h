#pragma once

#include "analysis/comparison.h"
#include "widgets/screen.h"

namespace Ui {
class frmCompara;
}

/// The comparison screen of expenses (frmComparaDesp) and of receipts (frmComparaRec).
class frmCompara : public Screen
{
    Q_OBJECT

public:
    /// Shows the screen with the years, or the months, in front.
    static frmCompara *open(const Side &side, comparison::Span span, QWidget *parent);
    ~frmCompara() override;

private:
    frmCompara(const Side &side, QWidget *parent);

    std::unique_ptr<Ui::frmCompara> m_ui;
};
