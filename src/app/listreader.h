#pragma once

#include <QDeadlineTimer>
#include <QList>
#include <QObject>
#include <QSet>
#include <QTimer>

class AccountPane;
class ListPane;

/// In which order the main window reads what it shows: the list in front at once, the others as time allows,
/// the balances of the accounts when the lists are read.
class ListReader : public QObject
{
    Q_OBJECT

public:
    ListReader(QList<ListPane *> panes, AccountPane &accounts, QObject *parent);

    enum class Begin {
        Now,
        Later ///< the window answers first: what is in front is still reading something else
    };
    /// Everything anew. `tab` is the one in front; the accounts stand behind the lists.
    void readAll(int tab, Begin begin = Begin::Now);
    /// A tab came to the front: it is read if it has not been yet; the accounts are computed every time.
    void show(int tab);

private:
    void load(ListPane &pane);
    void loadNext();
    void startClock();
    bool isTimeUp() const;

    QList<ListPane *> m_panes;
    AccountPane &m_accounts;
    QTimer m_next;
    QDeadlineTimer m_soon;         ///< until then, tabs that are not shown are read at once,
    QDeadlineTimer m_late;         ///< and until then while lists are small
    QSet<ListPane *> m_unread;     ///< their turn comes
    bool m_balancesWanted = false; ///< once the lists are read
    bool m_isLoadingNext = false;
};
