#pragma once

#include "data/changes.h"
#include "settings/listlayout.h"

#include <QObject>

#include <functional>
#include <vector>

class AccountPane;
class EntryPane;
class ListPane;
class ListReader;
class MovementPane;
class QTabWidget;
class TodayPane;

/// The tabs of the main window and what they show. They follow what is announced as changed, by their own
/// commands or by other screens, when the setting ExibirPrincipal says so.
class MainTabs : public QObject
{
    Q_OBJECT

public:
    /// Positions of the tabs.
    enum Tab { Payables, Receivables, Movements, Accounts, Today };

    MainTabs(QTabWidget &tabs, QWidget &window);

    EntryPane &payables() { return *m_payables; }
    EntryPane &receivables() { return *m_receivables; }
    MovementPane &movements() { return *m_movements; }
    AccountPane &accounts() { return *m_accounts; }
    TodayPane &today() { return *m_today; }

    /// Shows a tab without reading it.
    void show(Tab tab);
    /// Reads everything anew: the tab in front at once, the others as time allows.
    void readAll();
    void follow(const Change &change);
    /// What `work` announces is followed, but brings no tab to the front.
    void followQuietly(const std::function<void()> &work);
    /// Puts the filters and the columns in the state in which they were left.
    void restore();
    /// Keeps the columns as they are now. Throws Error::Kind::File.
    void saveLayouts() const;
    void applyStyle();
    /// Another day has begun: what is due is something else.
    void dayChanged();

private:
    QList<ListPane *> listPanes() const;
    std::vector<std::pair<ListPane *, ListLayoutFile>> layouts() const;
    ListPane *paneOf(Subject subject) const;

    QTabWidget &m_tabs;
    EntryPane *m_payables;
    EntryPane *m_receivables;
    MovementPane *m_movements;
    AccountPane *m_accounts;
    TodayPane *m_today;
    ListReader *m_reader;
    bool m_isQuiet = false;
    bool m_layoutShown = false; ///< the saved column layout was applied, so what is shown may replace it
};
