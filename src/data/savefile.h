#pragma once

#include "data/progress.h"

#include <QString>

class QIODevice;

using FileWriter = std::function<void(QIODevice &device, Progress *progress)>;

/// Writes the file beside and puts it in place when it is complete and on the disk. `progress` may be null.
/// Throws Error::Kind::File, and passes on what else `write` throws.
void saveFile(const QString &path, const FileWriter &write, Progress *progress);
