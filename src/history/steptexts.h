#pragma once

#include "data/undo.h"
#include "lists/storedtable.h"

/// The journal in words.
namespace steptexts {

/// What a step did: "Baixa de conta a pagar: Aluguel - R$ 1.200,00 (e mais 2)".
QString deed(const std::vector<RecordedRow> &rows);
/// deed() of a step, with what it took back or did again.
QString title(Connection &connection, const journal::Step &step);
/// A line for each row that could not be taken back, with why.
QString refusals(const std::vector<undo::Refusal> &refused);
/// What changed, a line for each value: row, field, before, after.
std::shared_ptr<StoredTable> details(const std::vector<RecordedRow> &rows);

} // namespace steptexts
