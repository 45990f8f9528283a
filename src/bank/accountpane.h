#pragma once

#include "bank/accounts.h"
#include "widgets/slicedwork.h"

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
    /// AtualizarListaBancos: refills the list as the setting AtualizarSaldo says, then the summary. Short
    /// work is done on return, the rest goes on while the window answers. False, with a message, when it
    /// fails at once.
    bool refresh();
    /// Follows a change of entries or movements without reading them all, or refreshes.
    void follow(const Change &change);
    /// The balances miss a change: the next follow() computes them anew.
    void skip()
    {
        m_isCurrent = false;
        m_missed = true;
    }
    /// What the list shows.
    const std::vector<AccountBalance> &balances() const { return m_shown; }
    bool isCommanding() const { return m_isCommanding; }
    /// While balances are computed.
    bool isLoading() const { return m_work.isRunning(); }
    /// The account in the selected row; empty without one.
    QString selectedAccount() const;

    QAction *addCommand, *editCommand, *removeCommand, *statementCommand;

Q_SIGNALS:
    /// The balances are known.
    void loaded();

private:
    void makeCommands();
    void editSelected();
    void removeSelected();
    int selectedOrTell();
    void show(std::vector<AccountBalance> balances);

    std::unique_ptr<Ui::AccountPane> m_ui;
    std::vector<AccountBalance> m_shown; ///< what the list shows
    quint64 m_serial = 0;                ///< of the file that it was computed from
    quint64 m_dataVersion = 0;
    bool m_isCurrent = false; ///< computed from all that was written until then
    bool m_missed = false;    ///< a change came while balances were being computed
    SlicedWork m_work;        ///< computes balances
    bool m_isCommanding = false;
};
