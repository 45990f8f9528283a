#pragma once

#include "data/connection.h"

#include <memory>

/// The open-database routine: every routine that queries or changes data calls it right before its first
/// statement, and holds the connection while it works. Throws Error::Kind::Open; then nothing is open. When
/// another file stands where the database was, Subject::Database is announced once the caller is done.
std::shared_ptr<Connection> openDatabase();
/// The same for a write that concerns what was read through the connection with this serial (0 for nothing).
/// Throws Error::Kind::Data when another file has taken its place: rows bear other codes there.
std::shared_ptr<Connection> openDatabase(quint64 serial);

/// Decides which file is the database until this is called again: the program folder's own, or the one that
/// the setting RedeLocal names, taken as it stands. A choice made later holds from the next start.
void chooseDatabase();
/// The path that was decided.
QString databasePath();
/// The path that the settings name now.
QString chosenDatabasePath();
/// Lets go of the file, as before a restore.
void closeDatabase();
