#pragma once

#include "data/progress.h"
#include "lists/tablesource.h"

class QIODevice;

/// Lists as files for spreadsheets. A file is replaced only when the new one is complete; `progress` may be
/// null. All throw Error::Kind::File, and pass on what `progress` throws.
namespace spreadsheet {

/// UTF-8 with a byte-order mark, ";" between cells, headings in the first line. Amounts have a decimal comma
/// and no grouping: "1234,56". A text that a spreadsheet would take for a formula begins with an apostrophe.
void writeCsv(QIODevice &device, const TableSource &list, Progress *progress);
void saveCsv(const QString &path, const TableSource &list, Progress *progress);

/// A workbook of one sheet, named after `title`: amounts are numbers with their currency as a format, dates
/// are dates; the headings stay in sight, and under the amounts of the column "Valor" stands their sum. A
/// list that a sheet has no room for is refused.
void saveXlsx(const QString &path, const QString &title, const TableSource &list, Progress *progress);

} // namespace spreadsheet
