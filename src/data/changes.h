#pragma once

#include "data/rowchange.h"

#include <QObject>

#include <utility>

/// What a committed write may have changed.
enum class Subject {
    Payables,
    Receivables,
    Movements,
    Accounts,
    Clients,
    Suppliers,
    CostCentres,
    ProfitCentres,
    Products,
    Appointments,
    Regulars, ///< rules for entries that come again
    Settings,
    Database ///< another file stands where the database was: everything that was read is void
};

/// One announcement: the rows of one subject that a committed write changed.
struct Change
{
    Subject subject;
    std::vector<RowChange> rows = {}; ///< empty: any row may have changed
};

/// Announces committed changes to whoever shows the data. Nobody calls another screen to refresh it.
class Changes : public QObject
{
    Q_OBJECT

public:
    /// While one lives, announcements wait; those of one subject become one. When the last one goes they are
    /// made in the order in which the subjects first came.
    class Hold
    {
    public:
        Hold() { ++instance().m_holds; }
        ~Hold()
        {
            if (--instance().m_holds == 0)
                instance().release();
        }
        /// Takes what waits; whoever took it announces it later.
        std::vector<Change> take() { return std::exchange(instance().m_held, {}); }
        Q_DISABLE_COPY_MOVE(Hold)
    };

    static Changes &instance();
    static void announce(Change change);
    static void announce(Subject subject) { announce(Change{subject}); }

Q_SIGNALS:
    void changed(const Change &change);

private:
    void release();

    int m_holds = 0;
    std::vector<Change> m_held;
};
