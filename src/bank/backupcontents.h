#pragma once

#include "lists/storedtable.h"

/// What a file of the database holds, side by side with the one in use: whoever restores a backup sees first
/// what comes back and what is lost.
namespace backupcontents {

/// One line for each kind of record with its count, for the last entry of each side, and for each account
/// with its balance: what it is, in the backup, now. A file in use that does not open leaves its column
/// empty. Throws Error when the backup does not open.
std::shared_ptr<StoredTable> compare(const QString &backup, const QString &live);

} // namespace backupcontents
