#pragma once

#include <QString>

class QWidget;

/// The file choosers; an empty text means that the user cancelled.
namespace files {

/// `filter` as a QFileDialog takes it: "Arquivos HTML (*.html)".
QString open(QWidget *parent, const QString &title, const QString &filter);
/// Adds `suffix` ("html") to a name without one and asks before a file is replaced.
QString save(QWidget *parent, const QString &title, const QString &filter, const QString &suffix);
/// An existing folder; `start` is where the chooser begins.
QString folder(QWidget *parent, const QString &title, const QString &start);
/// Asks whether to open the file that was just saved, and opens it.
void offerToOpen(QWidget *parent, const QString &path);

} // namespace files
