#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// The tips of the day: the lines of "dicas.txt" in the program folder.
namespace tips {

/// Whether one is shown at the start: whatever is not "0" says so.
bool areShown();

QString file();
/// In the order of the file; nothing when it cannot be read.
std::optional<QStringList> read();
/// What is shown instead of a tip when there is no file.
QString missingText();
/// Any of them, each as likely as the others; empty when there is none.
QString pick(const QStringList &tips);

} // namespace tips
