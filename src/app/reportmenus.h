#pragma once

class QMainWindow;

/// Fills the menus whose entries open one screen each: views by month, reports, statistics, charts, analyses.
/// Menus that are not in the window yet are made before the tools menu.
void makeReportMenus(QMainWindow &window);
