#pragma once

#include "widgets/screen.h"

namespace Ui {
class frmConfLoginEmail;
}

/// Keeps the login and the password of the mail server, and whether its certificate is checked.
class frmConfLoginEmail : public Screen
{
    Q_OBJECT

public:
    static frmConfLoginEmail *open(QWidget *parent);
    ~frmConfLoginEmail() override;

private:
    explicit frmConfLoginEmail(QWidget *parent);
    void save();

    std::unique_ptr<Ui::frmConfLoginEmail> m_ui;
};
