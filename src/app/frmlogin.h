#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmLogin;
}

/// Asks who works with the program. The screen that opens a locked program has the same checks; its object
/// name is frmLoginSoft.
class frmLogin : public QDialog
{
    Q_OBJECT

public:
    enum class Kind { Start, Unlock };

    /// True when somebody was let in; false when the program is to end.
    static bool ask(Kind kind, QWidget *parent);
    ~frmLogin() override;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void reject() override;

private:
    frmLogin(Kind kind, QWidget *parent);
    void enter();

    std::unique_ptr<Ui::frmLogin> m_ui;
    Kind m_kind;
};
