#pragma once

#include "widgets/screen.h"

namespace Ui {
class frmJurosParcelado;
}

/// An amount with simple interest, spread over installments.
class frmJurosParcelado : public Screen
{
    Q_OBJECT

public:
    static frmJurosParcelado *open(QWidget *parent);
    ~frmJurosParcelado() override;

private:
    explicit frmJurosParcelado(QWidget *parent);
    void calculate();

    std::unique_ptr<Ui::frmJurosParcelado> m_ui;
};
