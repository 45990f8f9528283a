#pragma once

class QMainWindow;

/// Adds the drop-down buttons of reports, charts and statistics to the toolbar, whose entries do what the
/// menu commands do, which exist by then; and gives the other buttons their names.
void completeToolBar(QMainWindow &window);
