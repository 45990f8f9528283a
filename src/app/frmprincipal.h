#pragma once

#include "app/daywatch.h"
#include "data/changes.h"

#include <QMainWindow>
#include <QTimer>

#include <memory>

namespace Ui {
class frmPrincipal;
}
class AccessCommands;
class AccountPane;
class EntryPane;
class ListPane;
struct ListLayoutFile;
class ListReader;
class MovementPane;
class QLabel;
class SwitchCommands;

/// The main window: four tabs over the data, menus and toolbar. Reloads what other screens announce as
/// changed, when the setting ExibirPrincipal says so.
class frmPrincipal : public QMainWindow
{
    Q_OBJECT

public:
    /// Positions of the tabs.
    enum Tab { PayablesTab, ReceivablesTab, MovementsTab, AccountsTab };

    explicit frmPrincipal(QWidget *parent = nullptr);
    ~frmPrincipal() override;

    /// The start-up sequence; the window is on screen already.
    void start();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void makeTabs();
    void connectCommands();
    void dataChanged(const Change &change);
    void showTab(Tab tab);
    void showDate();
    void alertDue();
    void reloadAll();
    void tryToOpen();
    QList<ListPane *> listPanes() const;
    std::vector<std::pair<ListPane *, ListLayoutFile>> layouts() const;
    ListPane *paneOf(Subject subject) const;
    void applySettings();

    std::unique_ptr<Ui::frmPrincipal> m_ui;
    EntryPane *m_payables;
    EntryPane *m_receivables;
    MovementPane *m_movements;
    AccountPane *m_accounts;
    ListReader *m_reader;
    AccessCommands *m_access;
    SwitchCommands *m_switches;
    QLabel *m_welcome;
    bool m_layoutShown = false; ///< the saved column layout was applied, so what is shown may replace it
    DayWatch m_day{this};
    QTimer m_tryAgain{this};
};
