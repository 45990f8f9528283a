#pragma once

class QMainWindow;

/// Adds the drop-down buttons of reports, charts and statistics to the toolbar; their entries do what the
/// menu commands do, which exist by then.
void makeReportButtons(QMainWindow &window);
