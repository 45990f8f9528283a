#pragma once

#include "data/changes.h"
#include "reports/report.h"
#include "widgets/screen.h"

namespace Ui {
class frmestoque;
}
class StockListPane;

/// The stock screen: products with quantity and cost, and the sales and purchases that moved them. Stays open
/// beside the main window and shows every change of products and entries at once.
class frmestoque : public Screen
{
    Q_OBJECT

public:
    /// Shows the screen, or brings the one that is open to the front.
    static frmestoque *open(QWidget *parent);
    ~frmestoque() override;

private:
    explicit frmestoque(QWidget *parent);
    void connectControls();
    void loadProducts();
    void dataChanged(const Change &change);
    void editSelected();
    void removeSelected();
    QString selectedOrTell();
    /// The list of the tab that is shown.
    Report report();

    std::unique_ptr<Ui::frmestoque> m_ui;
    StockListPane *m_sales;
    StockListPane *m_purchases;
};
