#pragma once

#include "widgets/screen.h"

namespace Ui {
class frmconfextrato;
}

/// Asks for which account and days a statement is wanted, and shows it.
class frmconfextrato : public Screen
{
    Q_OBJECT

public:
    /// With the account chosen when it is given. Null, with a message, when the accounts cannot be read.
    static frmconfextrato *open(QWidget *parent, const QString &account = {});
    ~frmconfextrato() override;

private:
    explicit frmconfextrato(QWidget *parent);
    void showStatement();

    std::unique_ptr<Ui::frmconfextrato> m_ui;
};
