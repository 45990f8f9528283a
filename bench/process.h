#pragma once

#include <QString>

/// What a process of its own took for its task, from before it was started.
struct Finished
{
    double seconds, mebibytes;
};

/// Runs this program again for one task: `task` is one of main()'s options, `folder` the program folder it
/// works on.
Finished runAlone(const QString &task, const QString &folder);
/// In the other process: tells that the task is done.
void tellFinished();
