#pragma once

#include "data/connection.h"
#include "data/progress.h"

#include <QString>

#include <functional>

class QWidget;

namespace reading {

/// Opens the database and runs `read` on one state of it. When that takes long, the wait screen tells how far
/// it has come (under `waitText`, if given), and Esc gives it up. False when it was given up, or failed; a
/// failure is told.
bool run(QWidget *over, const QString &waitTitle,
         const std::function<void(Connection &connection, Progress &progress)> &read,
         const QString &waitText = {});

} // namespace reading
