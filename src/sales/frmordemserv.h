#pragma once

#include "sales/serviceorder.h"
#include "widgets/screen.h"

namespace Ui {
class frmOrdemServ;
}
class ListView;

/// Composes and prints one service order; closing the screen discards it.
class frmOrdemServ : public Screen
{
    Q_OBJECT

public:
    static frmOrdemServ *open(QWidget *parent);
    ~frmOrdemServ() override;

private:
    explicit frmOrdemServ(QWidget *parent);
    void connectControls();
    bool suggestNames();
    void showLines();
    int selectedOrTell(ListView *list);
    void print();

    std::unique_ptr<Ui::frmOrdemServ> m_ui;
    ServiceOrder m_order; ///< the lists; client and telephone are in their fields
    QStringList m_products;
};
