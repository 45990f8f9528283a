#pragma once

#include "data/users.h"
#include "widgets/screen.h"

namespace Ui {
class frmGerenciarLogin;
}

/// The users who may log in, and whether the program asks for one when it starts.
class frmGerenciarLogin : public Screen
{
    Q_OBJECT

public:
    static frmGerenciarLogin *open(QWidget *parent);
    ~frmGerenciarLogin() override;

private:
    explicit frmGerenciarLogin(QWidget *parent);
    bool reload();
    void showUser();
    bool isTypedWell();
    void add();
    void update();
    void remove();
    void setRequired(bool required);
    /// Runs a command on the users; once it is done the list shows what there is, and what was typed stays
    /// until then.
    bool change(const std::function<void(Connection &)> &work);

    std::unique_ptr<Ui::frmGerenciarLogin> m_ui;
    qint64 m_selected = 0; ///< code of the user shown; 0 for none
};
