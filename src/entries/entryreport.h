#pragma once

#include "entries/side.h"
#include "lists/figures.h"
#include "lists/listcolumn.h"

#include <vector>

/// What the reports on payables, receivables and movements have in common.
namespace entryreport {

/// Date, description, document, contact, due date, amount with its currency, status, account, notes.
std::vector<ListColumn> columns(const Side &side);
/// "Total de despesas: R$ 3,00 - Total pago: R$ 2,00 - Total pendente: R$ 1,00".
QString totals(const Side &side, const Figures &figures);
/// The same with other words before the total and the settled sum, and the pending one after them.
QString totals(const QString &totalWords, const QString &settledWords, const Figures &figures);

} // namespace entryreport
