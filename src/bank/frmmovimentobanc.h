#pragma once

#include "bank/movement.h"
#include "widgets/screen.h"

namespace Ui {
class frmmovimentobanc;
}

/// The movement screen: records a deposit, a withdrawal or a transfer, or, as `frmeditarbancario`, changes
/// one.
class frmmovimentobanc : public Screen
{
    Q_OBJECT

public:
    /// Shows an empty screen for a new movement; null, with a message, when the accounts cannot be read.
    static frmmovimentobanc *openNew(QWidget *parent);
    /// Shows the movement; null, with a message, when it is no longer there or another file than the
    /// one with the serial `listed` is the database (0: any).
    static frmmovimentobanc *openEdit(qint64 code, QWidget *parent, quint64 listed = 0);
    ~frmmovimentobanc() override;

private:
    frmmovimentobanc(const MovementScreen &screen, QWidget *parent);
    bool fillAccounts();
    void kindChosen();
    void showForm(const MovementForm &form);
    MovementForm form() const;
    void save();

    std::unique_ptr<Ui::frmmovimentobanc> m_ui;
    const MovementScreen &m_screen;
    qint64 m_code = 0; ///< of the movement that is changed
};
