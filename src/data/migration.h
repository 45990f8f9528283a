#pragma once

class Connection;

namespace migration {

/// Gives a file of an earlier version the tables that came later, in one transaction, after a checked copy of
/// the file was set aside beside it, as "<name>.antes-da-atualizacao.qorvex". False when that cannot be done
/// now, as for want of space: everything that the file was made for works without them.
bool run(Connection &connection);

} // namespace migration
