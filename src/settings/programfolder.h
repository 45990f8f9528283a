#pragma once

#include <QString>

/// The folder that holds the database, the delivered files and the list layouts.
namespace programfolder {

/// The folder in use; never ends in "/".
QString path();
/// `name` inside the folder.
QString file(const QString &name);
/// Chooses the folder: `named` if not empty (it must exist); else, for a program installed in PREFIX/bin with
/// its files in PREFIX/share/tavaro, userFolder() of those; else the executable's folder; where that cannot
/// be written, userFolder() of it. Throws Error::Kind::File.
void choose(const QString &named);
/// $XDG_DATA_HOME/tavaro, filled from the folder `delivered` with the files it lacks, and with an empty
/// database the first time where none is delivered; the programs stay where they are and nothing is
/// overwritten. The folder appears complete or not at all, so that a half copied database is never taken for
/// one; once it is there it gets no other database, which would hide the loss of the first. Throws
/// Error::Kind::File.
QString userFolder(const QString &delivered);

} // namespace programfolder
