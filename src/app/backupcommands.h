#pragma once

class QWidget;

namespace backupcommands {

/// Asks for a file and copies the program folder's database to it.
void backUp(QWidget *parent);
/// Asks for a backup and puts it in the place of the program folder's database. True when that was done: what
/// is shown is to be read anew.
bool restore(QWidget *parent);
/// Makes an automatic copy now; the older copy `spared`, if any, stays whatever its age. False when that
/// failed, or was given up; a failure is told.
bool copyNow(QWidget *parent, const QString &spared = {});
/// The same when automatic copies are on and something has changed since the last one.
void copyIfDue(QWidget *parent);

} // namespace backupcommands
