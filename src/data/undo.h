#pragma once

#include "data/journal.h"

#include <vector>

/// Takes back what the journal recorded, and does it again. A row that somebody changed since is left as it
/// is: of a column that the step did not change whatever stands there now is kept, of a stock the difference
/// is taken back, and all else is refused.
namespace undo {

enum class Reason {
    Changed, ///< the row is no longer as the step left it
    Gone,    ///< the row does not exist any more
    Taken    ///< another row stands in its place or bears its name
};

struct Refusal
{
    RecordedRow row;
    Reason reason = Reason::Changed;
};

struct Outcome
{
    qint64 step = 0;     ///< what was taken back or done again; 0 when there was nothing
    bool isDone = false; ///< false when nothing was written
    std::vector<Refusal> refused;
};

/// The newest step of this installation that can be taken back; 0 when there is none.
qint64 next(Connection &connection);
/// The step of this installation that can be done again; 0 when there is none, as after any other command.
qint64 nextAgain(Connection &connection);

/// Takes the step back, all in one transaction, which is announced and becomes a step itself. Where rows are
/// refused the others are written all the same, unless the step moved stock: goods and entries stay together.
/// A step that was refused is not next() again. Throws Error.
Outcome takeBack(Connection &connection, qint64 step);
/// Does again what takeBack() took back, by the same rules.
Outcome doAgain(Connection &connection, qint64 step);

} // namespace undo
