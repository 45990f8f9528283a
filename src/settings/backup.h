#pragma once

#include "data/progress.h"

#include <QString>

/// Backup and restore of the program folder's own database, also while the database of another machine is in
/// use: that one is backed up where it lives.
namespace backup {

/// Where the program folder's database is.
QString databaseFile();
/// Copies it to `target`. Runs in any thread; see databasecopy for what may be thrown.
void make(const QString &target, Progress &progress);
/// Keeps the day of the last backup. Throws Error::Kind::File.
void remember();
void restore(const QString &chosen, Progress &progress);

/// What the statistics of the database say.
struct Facts
{
    QString size;        ///< "1,50 MegaBytes"
    QString maintenance; ///< the day, or that there was none
    QString lastBackup;
};
Facts facts();

} // namespace backup
