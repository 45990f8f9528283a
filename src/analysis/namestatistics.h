#pragma once

#include "data/connection.h"
#include "data/progress.h"
#include "entries/side.h"
#include "reports/report.h"

#include <optional>

/// Reports with a line for each centre or product, on what the entries of that name add up to. The entries
/// are read in one pass; the figures are those of a query with `like` for each name. Nothing when there are
/// no names. `progress` may be null. Throw Error.
namespace namestatistics {

/// By the side's chart of accounts. Every entry that is not pending counts as settled.
std::optional<Report> centres(Connection &connection, const Side &side, Progress *progress);
/// Units and amounts bought and sold of each product, and what was earned.
std::optional<Report> stock(Connection &connection, Progress *progress);
/// What was sold of each product: pending, settled and in all. An entry whose status is neither word counts
/// in the total alone.
std::optional<Report> sales(Connection &connection, Progress *progress);

/// Said when there are no products.
inline constexpr QStringView noProducts =
    u"Não há nenhum produto, cadastrado no banco de dados! para cadastrar um centro de lucro clique no menu "
    u"principal e depois em centro de lucro.";

} // namespace namestatistics
