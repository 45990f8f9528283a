#pragma once

#include "entries/side.h"
#include "lists/figures.h"
#include "lists/storedtable.h"

#include <QDate>

class Connection;

/// The pending entries of one side that fall due on a day, neither before nor after it.
struct DueEntries
{
    std::shared_ptr<StoredTable> rows;
    Figures figures;
};

namespace duealert {

DueEntries read(Connection &connection, const Side &side, QDate day);
/// "Total de despesas: 2 - R$ 30,00"; empty when there is none.
QString totals(const Side &side, const DueEntries &due);

} // namespace duealert
