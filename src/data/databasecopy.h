#pragma once

#include "data/progress.h"

#include <QString>

/// Whole copies of the database file. Each is made in one state of the file, whatever other processes write
/// meanwhile; it is checked and on the disk before it takes the place of anything. A failure, full disk or
/// sudden end leaves what was there. May run in any thread. Errors are Error::Kind::File, or those of
/// Connection.
namespace databasecopy {

/// Copies the database `live` to `target`, over an older file. Onto itself it only checks the file.
/// `progress` counts mebibytes; what it throws gives the copy up.
void backUp(const QString &live, const QString &target, Progress &progress);

/// Puts a copy of the backup `chosen` in the place of `live`. Throws before anything is changed when `chosen`
/// is `live`, is damaged or is no database of the program. What stood there is kept as "<live>.anterior"
/// until the restored file has opened, and is put back if it does not open. Others that have the old file
/// open are waited for, and notice the new one at their next query.
void restore(const QString &chosen, const QString &live, Progress &progress);

} // namespace databasecopy
