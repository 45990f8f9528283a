#pragma once

#include <QString>

/// The folder that holds the database, the delivered files and the list layouts.
namespace programfolder {

/// The folder in use; never ends in "/".
QString path();
/// `name` inside the folder.
QString file(const QString &name);
/// Chooses the folder: `named` if not empty (it must exist); else the executable's folder; where that cannot be
/// written, $XDG_DATA_HOME/tavaro, filled at first start with the files delivered beside the executable.
/// Throws Error::Kind::File.
void choose(const QString &named);

}
