#pragma once

class QWidget;

namespace backupcommands {

/// Asks for a file and copies the program folder's database to it.
void backUp(QWidget *parent);
/// Asks for a backup and puts it in the place of the program folder's database. True when that was done: what
/// is shown is to be read anew.
bool restore(QWidget *parent);

} // namespace backupcommands
