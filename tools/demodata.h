#pragma once

#include <QDate>

class Connection;

/// What demo data is asked for; equal values give equal contents on every machine.
struct DemoOptions
{
    qint64 entries = 600; ///< payables and receivables together, half of each
    qint64 movements = 60;
    qint64 accounts = 6;
    qint64 contacts = 90; ///< clients and suppliers together
    quint64 seed = 1;
    QDate today;
};

/// Fills an empty database with three years of a plausible small shop, in one transaction. Memory use does
/// not grow with the number of entries. Throws Error.
void fillDemo(Connection &connection, const DemoOptions &options);
