#pragma once

class QString;
class QWidget;

/// Programs of the desktop that the menu offers. A message tells when none is installed.
namespace externaltools {

void calculator(QWidget *parent);
void textEditor(QWidget *parent);
/// The manual of the program folder, in the browser; at the section `topic` if there is one.
void manual(QWidget *parent, const QString &topic);
void manual(QWidget *parent);

} // namespace externaltools
