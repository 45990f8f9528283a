#pragma once

#include "data/connection.h"

/// The open-database routine: every routine that queries or changes data calls it right before its first
/// statement. The file is the program folder's own, or the one that the setting RedeLocal names, taken as it
/// stands. Throws Error::Kind::Open; then nothing is open.
Connection &openDatabase();
QString databasePath();
/// Lets go of the file, as before a restore.
void closeDatabase();
