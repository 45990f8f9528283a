#pragma once

#include "widgets/screen.h"

namespace Ui {
class frmJurosDesconto;
}

/// Interest added to an amount, or a discount taken off it.
class frmJurosDesconto : public Screen
{
    Q_OBJECT

public:
    static frmJurosDesconto *open(QWidget *parent);
    ~frmJurosDesconto() override;

private:
    explicit frmJurosDesconto(QWidget *parent);
    bool isInterest() const;
    void showCaptions();
    void calculate();

    std::unique_ptr<Ui::frmJurosDesconto> m_ui;
};
