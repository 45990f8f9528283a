#pragma once

#include "data/connection.h"

#include <QDate>

/// What is told of the database.
namespace databasefacts {

/// Of the database file in the program folder, also when the program works on another one: "1,50 MegaBytes".
QString size();
/// From the day of the first payable or receivable to today: "320 Dias". Throws Error.
QString days(Connection &connection, QDate today);

} // namespace databasefacts
