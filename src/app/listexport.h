#pragma once

#include "reports/report.h"

#include <QObject>

#include <functional>

class QAction;
class QBoxLayout;
class QWidget;

/// The commands of a main window list that take it out of the program: print, text, HTML. They work on the
/// rows and columns as shown.
class ListExport : public QObject
{
    Q_OBJECT

public:
    /// Adds the three commands as buttons to `bar`; `suffix` ends their names: "cmdimprimirp".
    ListExport(QBoxLayout *bar, const QString &suffix, std::function<Report()> report, QWidget *pane);
};
