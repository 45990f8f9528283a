#pragma once

#include "app/daywatch.h"
#include "data/changes.h"
#include "settings/settings.h"

#include <QMainWindow>
#include <QSet>
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
class ListView;
class MovementPane;
class QLabel;

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
    void connectSwitch(QAction *action, const settings::Key &key);
    void dataChanged(const Change &change);
    void showTab(Tab tab);
    void tabShown(int tab);
    void showDate();
    void alertDue();
    void reloadAll();
    void load(ListPane &pane);
    void loadNext();
    void tryToOpen();
    QList<ListPane *> listPanes() const;
    std::vector<std::pair<ListPane *, ListLayoutFile>> layouts() const;
    ListPane *paneOf(Subject subject) const;
    void applySettings();
    QList<ListView *> lists();

    std::unique_ptr<Ui::frmPrincipal> m_ui;
    EntryPane *m_payables;
    EntryPane *m_receivables;
    MovementPane *m_movements;
    AccountPane *m_accounts;
    AccessCommands *m_access;
    QLabel *m_welcome;
    bool m_layoutShown = false; ///< the saved column layout was applied, so what is shown may replace it
    DayWatch m_day{this};
    QTimer m_loadNext{this}, m_tryAgain{this};
    QSet<ListPane *> m_unread;     ///< their turn comes
    bool m_balancesWanted = false; ///< once the lists are read
    bool m_loadingNext = false;
};
