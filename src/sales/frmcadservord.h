#pragma once

#include "sales/serviceorder.h"
#include "widgets/screen.h"

namespace Ui {
class frmCadServOrd;
}

/// Adds a service to a service order.
class frmCadServOrd : public Screen
{
    Q_OBJECT

public:
    using Taker = std::function<void(const ServiceOrder::Service &)>;

    /// `take` gets the service.
    static frmCadServOrd *open(QWidget *parent, const Taker &take);
    ~frmCadServOrd() override;

private:
    frmCadServOrd(QWidget *parent, Taker take);
    void add();

    std::unique_ptr<Ui::frmCadServOrd> m_ui;
    Taker m_take;
};
