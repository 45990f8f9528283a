#pragma once

#include "settings/listlayout.h"
#include "widgets/filterboxes.h"
#include "widgets/listfeed.h"
#include "widgets/listview.h"

#include <QWidget>

class QLabel;

/// A list with filter boxes over it and a line of totals under it. A chosen filter takes effect at once and
/// is kept; when the list cannot be read, list and boxes stay as they were.
class ListPane : public QWidget
{
    Q_OBJECT

public:
    ListView &list() { return *m_list; }
    ListFeed &feed() { return *m_feed; }
    const ListFeed &feed() const { return *m_feed; }

    /// Shows the filters that are kept.
    void restoreFilters() { m_filters.restore(); }
    /// Reads the list with the filters shown; false, with a message, when that fails at once.
    bool reload();
    /// Whether the last load failed at once because of what the filters asked for, not for want of a
    /// database.
    bool filtersFailed() const { return m_filtersFailed; }
    /// Shows every row, where the filters that are kept cannot be read with.
    bool reloadUnfiltered();
    /// Follows a change of rows of this list; false, with a message, when that fails.
    bool follow(const Change &change);
    /// While one lives, what is announced is the doing of one of the pane's own commands.
    class OwnCommand
    {
    public:
        explicit OwnCommand(ListPane &pane) : m_pane(pane) { ++m_pane.m_ownCommands; }
        ~OwnCommand() { --m_pane.m_ownCommands; }
        Q_DISABLE_COPY_MOVE(OwnCommand)

    private:
        ListPane &m_pane;
    };
    bool isCommanding() const { return m_ownCommands > 0; }

    /// The list misses a change: the next reload() or follow() reads it anew.
    void skip() { m_isStale = true; }

protected:
    explicit ListPane(QWidget *parent);
    /// Once the controls exist: the first two are the pane's, the feed becomes it.
    void setUp(ListView *list, QLabel *totals, ListFeed *feed);
    FilterBoxes &filters() { return m_filters; }

    /// The query for the filters shown.
    virtual QString query() const = 0;
    virtual QString totalsText() const = 0;
    /// Offers what the rows name. Throws Error.
    virtual void refillFilterBoxes() {}
    /// Whether a change may bring other names than the boxes offer. Throws Error.
    virtual bool changesNames(const Change &) { return true; }

Q_SIGNALS:
    /// The list is read, or has followed a change.
    void loaded();

private:
    bool begin();
    void listLoaded();

    ListView *m_list = nullptr;
    QLabel *m_totals = nullptr;
    ListFeed *m_feed = nullptr;
    FilterBoxes m_filters;
    bool m_isStale = true;
    bool m_filtersFailed = false;
    bool m_namesWanted = true; ///< the boxes are to be refilled once the list is read
    int m_ownCommands = 0;
};
