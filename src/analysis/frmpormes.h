#pragma once

#include "analysis/monthview.h"
#include "widgets/screen.h"

namespace Ui {
class frmPorMes;
}

/// One year's entries month by month, by entry date (frmPorMes) or by due date (frmVenPorMes). The list
/// follows changes of the program's database.
class frmPorMes : public Screen
{
    Q_OBJECT

public:
    /// Null, with a message, when the entries cannot be read.
    static frmPorMes *open(const Side &side, monthview::Basis basis, QWidget *parent);
    ~frmPorMes() override;

private:
    frmPorMes(const Side &side, monthview::Basis basis, QWidget *parent);
    void connectCommands();
    /// Shows January of the year that was typed.
    bool showYear(bool firstLook = false);
    bool reload(bool firstLook = false);

    std::unique_ptr<Ui::frmPorMes> m_ui;
    const Side &m_side;
    monthview::Basis m_basis;
    int m_year = 0; ///< the one shown; the field may say another already
};
