#pragma once

#include "entries/side.h"
#include "lists/figures.h"
#include "lists/listcolumn.h"

#include <memory>
#include <vector>

class Connection;

/// One year's entries month by month.
namespace monthview {

/// Which date decides the month.
enum class Basis : quint8 { EntryDate, DueDate };

std::vector<ListColumn> columns(const Side &side);
/// "Visualizando contas a pagar separadas por mês - ano de 2026".
QString caption(const Side &side, int year);
/// `month` from 1. The first look by due date asks without the slash after the month.
QString query(const Side &side, Basis basis, int year, int month, bool firstLook = false);
QString totals(const Side &side, const Figures &figures);

/// The file that the views read: the one that the setting RedeLocal names, or else "dados.zelqa" of the
/// program folder where there is one, or else the database of the program.
QString file();
/// Another connection than the program's, to file(); null when that is the program's database. Throws
/// Error::Kind::Open.
std::unique_ptr<Connection> openOther();

} // namespace monthview
