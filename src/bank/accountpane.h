#pragma once

#include "bank/accounts.h"

#include <QWidget>

#include <memory>

namespace Ui {
class AccountPane;
}
class ListView;
class QAction;

/// The tab of bank and cash accounts: the list with current balances, the cash summary and the commands on
/// accounts.
class AccountPane : public QWidget
{
    Q_OBJECT

public:
    explicit AccountPane(QWidget *parent = nullptr);
    ~AccountPane() override;

    ListView &list();
    /// AtualizarListaBancos: refills the list as the setting AtualizarSaldo says, then the summary.
    bool refresh();

    QAction *addCommand, *editCommand, *removeCommand;

Q_SIGNALS:
    /// An account was removed.
    void changed();

private:
    void makeCommands();
    void editSelected();
    void removeSelected();
    int selectedOrTell();

    std::unique_ptr<Ui::AccountPane> m_ui;
    std::vector<AccountBalance> m_shown; ///< what the list shows
};
