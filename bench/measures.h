#pragma once

class QString;
class Table;

/// What the program shows: a list filled and filtered, balances, the connection opened again.
void measureLists(Table &table);
void measureAccounts(Table &table);
void measureOpening(Table &table);
/// From the start of a process to a window that answers.
void measureStart(Table &table);
/// The other process of measureStart(): starts the program on the folder, and prints the nanosecond (of the
/// monotonic clock) at which its window answers and the most KiB of memory that the process ever had.
int startOnly(const QString &folder);
void measureSaving(Table &table);
void measureGrowth(Table &table);
