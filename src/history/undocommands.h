#pragma once

#include "data/undo.h"

class QWidget;

/// Taking back and doing again, with what the user is told when it does not go through.
namespace undocommands {

enum class Direction { Back, Again };

/// The step of this installation that is next in that direction. What was done, in words; null when there
/// was nothing to do, empty when it failed, which was told.
QString runNext(QWidget *parent, Direction direction);
/// One chosen step. True when it was written.
bool run(QWidget *parent, Direction direction, qint64 step);

} // namespace undocommands
