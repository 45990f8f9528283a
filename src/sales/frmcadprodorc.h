#pragma once

#include "sales/serviceorder.h"
#include "widgets/screen.h"

namespace Ui {
class frmCadProdOrc;
}

/// Adds a product to a service order.
class frmCadProdOrc : public Screen
{
    Q_OBJECT

public:
    using Taker = std::function<void(const ServiceOrder::Product &)>;

    /// `names` are suggested while a name is typed; `take` gets the product.
    static frmCadProdOrc *open(const QStringList &names, QWidget *parent, const Taker &take);
    ~frmCadProdOrc() override;

private:
    frmCadProdOrc(QWidget *parent, Taker take);
    void add();

    std::unique_ptr<Ui::frmCadProdOrc> m_ui;
    Taker m_take;
};
