#pragma once

#include <QString>
#include <QStringView>

class Connection;

/// The delivered database: its file name, password and tables.
namespace schema {

inline constexpr QStringView fileName = u"dados.qorvex";
inline constexpr QStringView password = u"83pwlrqz2t4m#&*¨x";

/// Creates the delivered file at `path`: every table empty, one row in login_inicia with "0", the payment
/// methods of a small shop. Throws Error when something is there already.
void createFile(const QString &path);
/// True when every table that the program works on is there.
bool isComplete(Connection &connection);
/// Both within the caller's transaction. Filling large tables is several times as fast without indexes.
void createIndexes(Connection &connection);
void dropIndexes(Connection &connection);
/// The tables that came after the first version: an earlier program neither needs nor disturbs them. False
/// for a file that lacks some of them.
bool hasLaterTables(Connection &connection);
/// Creates them within the caller's transaction; those that are there stay as they are.
void createLaterTables(Connection &connection);
/// Gives a file of an earlier version the indexes that it lacks, all or none. False when that cannot be done
/// now, as while another process writes: everything works without them, only slower.
bool upgrade(Connection &connection);

} // namespace schema
