#pragma once

class QMainWindow;

/// Connects the menu commands of the main window that only open a screen of another room.
void connectScreenCommands(QMainWindow &window);
