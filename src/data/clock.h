#pragma once

#include <QDate>
#include <QDateTime>

#include <optional>

/// The program's only source of today and now, so that tests can set them.
namespace programclock {

QDateTime now();
QDate today();
/// Stops the clock at `moment`; nothing lets it run again.
void set(std::optional<QDateTime> moment);

} // namespace programclock
