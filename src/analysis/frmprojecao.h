#pragma once

#include "entries/side.h"
#include "widgets/screen.h"

namespace Ui {
class frmProjecao;
}

/// Goals and what came of them, one half for expenses and one for receipts.
class frmProjecao : public Screen
{
    Q_OBJECT

public:
    /// Shows the screen with the half of `side` in front.
    static frmProjecao *open(const Side &side, QWidget *parent);
    ~frmProjecao() override;

private:
    explicit frmProjecao(QWidget *parent);

    std::unique_ptr<Ui::frmProjecao> m_ui;
};
