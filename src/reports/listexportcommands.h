#pragma once

#include "reports/exportcommands.h"

#include <functional>
#include <optional>

class ListView;
class QBoxLayout;
class QObject;

/// What prints a report and saves it as text and as HTML: actions or buttons.
struct ExportTriggers
{
    QObject *print, *text, *html;
};

/// Connects the three commands that every list and report has. `report` is asked for when one is used; with
/// `pages` it is printed as that kind of list.
void connectExports(QWidget *over, const ExportTriggers &triggers, const std::function<Report()> &report,
                    const ExportTexts &texts = exportar::reportTexts(),
                    std::optional<modimpressao::ListKind> pages = std::nullopt);

/// Adds the commands that take a list out of the program, as it is shown, to the bar over it: print, text,
/// HTML. `suffix` ends their names: "cmdimprimirp".
void addListExport(QBoxLayout *bar, ListView &list, const QString &suffix,
                   const std::function<Report()> &report,
                   std::optional<modimpressao::ListKind> pages = std::nullopt);
