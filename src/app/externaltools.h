#pragma once

class QWidget;

/// Programs of the desktop that the menu offers. A message tells when none is installed.
namespace externaltools {

void calculator(QWidget *parent);
void textEditor(QWidget *parent);
/// The manual of the program folder, in the browser.
void manual(QWidget *parent);

} // namespace externaltools
