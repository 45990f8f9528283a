#pragma once

#include "history/undocommands.h"

class QMainWindow;

/// Taking back and doing again in the main window, and in whose name what is done here stands in the journal.
namespace historycommands {

void connectTo(QMainWindow &window);
/// Who works with the program from here on; until somebody logs in it is the user of the system.
void setUser(const QString &name);

} // namespace historycommands
