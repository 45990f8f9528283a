#pragma once

class QWidget;

/// Lets the main window work until every list, total and balance is there and painted.
void waitUntilIdle(QWidget &window);
