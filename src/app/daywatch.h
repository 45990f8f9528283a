#pragma once

#include <QDate>
#include <QObject>
#include <QTimer>

/// Notices that another day has begun, also when the computer slept over midnight.
class DayWatch : public QObject
{
    Q_OBJECT

public:
    explicit DayWatch(QObject *parent = nullptr);

    /// Looks at the clock, as it does every minute.
    void look();

Q_SIGNALS:
    void changed();

private:
    QTimer m_next;
    QDate m_day;
};
