#pragma once

class QString;
class Table;

/// What the program shows: a list filled and filtered, balances, the connection opened again.
void measureLists(Table &table);
void measureAccounts(Table &table);
void measureOpening(Table &table);
/// From the start of a process to a window that answers.
void measureStart(Table &table);
/// Filters, headings and writes, until the whole main window shows them.
void measureWindow(Table &table);
void measureSaving(Table &table);
void measureReports(Table &table);
/// The summary of all centres.
void measureCentres(Table &table);
void measureGrowth(Table &table);
/// Cash flow, reports, comparisons, statements, statistics, charts.
void measureAnalysis(Table &table);
/// Backup, login, the alert of the day.
void measureGuarding(Table &table);

/// Tasks of a process of their own: start the program until its window answers; make a PDF of all payables.
void startOnly(const QString &folder);
/// The same until every list, total and balance is there.
void startCompletely(const QString &folder);
void printOnly(const QString &folder);
