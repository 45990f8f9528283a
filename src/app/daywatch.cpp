#include "app/daywatch.h"

#include "data/clock.h"

#include <chrono>

DayWatch::DayWatch(QObject *parent) : QObject(parent), m_day(programclock::today())
{
    connect(&m_next, &QTimer::timeout, this, &DayWatch::look);
    m_next.start(std::chrono::minutes(1));
}

void DayWatch::look()
{
    if (const QDate today = programclock::today(); today != std::exchange(m_day, today))
        Q_EMIT changed();
}
