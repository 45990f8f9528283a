#pragma once

#include "analysis/cashflow.h"

#include <QDialog>

namespace Ui {
class frmfluxo;
}
class ListView;

/// The cash flow: the entries that fall due between two dates, and what they add up to.
class frmfluxo : public QDialog
{
    Q_OBJECT

public:
    /// Reads and shows the flow. Null when there are no rows (in general mode it is shown all the same), or
    /// when reading failed or was given up.
    static frmfluxo *open(cashflow::Mode mode, const cashflow::Choice &choice, QWidget *parent);
    ~frmfluxo() override;

private:
    frmfluxo(cashflow::Mode mode, QWidget *parent);
    void showResult(cashflow::Result result);
    ListView *listOf(const Side &side) const;
    /// With the lists as they are shown.
    Report report() const;
    void saveHtml();

    std::unique_ptr<Ui::frmfluxo> m_ui;
    cashflow::Result m_result; ///< without its rows, which the lists hold
};
