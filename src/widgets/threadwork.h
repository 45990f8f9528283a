#pragma once

#include "data/progress.h"

#include <QString>

#include <functional>

class QWidget;

namespace threadwork {

/// Runs `work`, which touches no window, in a thread of its own while the windows answer but take no input.
/// When that takes long, the wait screen tells how far it has come, and Esc gives it up at its next
/// advance(). False when it was given up, or failed; a failure is told.
bool run(QWidget *over, const QString &title, const QString &text,
         const std::function<void(Progress &progress)> &work);

} // namespace threadwork
