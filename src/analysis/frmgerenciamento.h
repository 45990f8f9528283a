#pragma once

#include "widgets/screen.h"

namespace Ui {
class frmGerenciamento;
}

/// The management screen: payables on one tab, receivables on the other, by contact, status, dates or
/// account.
class frmGerenciamento : public Screen
{
    Q_OBJECT

public:
    enum Tab { Payables, Receivables };

    /// Null, after a message, when the names to choose from cannot be read.
    static frmGerenciamento *open(Tab tab, QWidget *parent);
    ~frmGerenciamento() override;

private:
    explicit frmGerenciamento(QWidget *parent);

    std::unique_ptr<Ui::frmGerenciamento> m_ui;
};
