#include "data/clock.h"

namespace programclock {

namespace {

std::optional<QDateTime> &stoppedAt()
{
    static std::optional<QDateTime> moment;
    return moment;
}

} // namespace

QDateTime now()
{
    return stoppedAt().value_or(QDateTime::currentDateTime());
}

QDate today()
{
    return now().date();
}

void set(std::optional<QDateTime> moment)
{
    stoppedAt() = std::move(moment);
}

} // namespace programclock
