#pragma once

#include "reports/modimpressao.h"

#include <functional>
#include <optional>

class ListView;
class QBoxLayout;

/// Adds the commands that take a list out of the program, as it is shown, to the bar over it: print, text,
/// HTML. `suffix` ends their names: "cmdimprimirp".
void addListExport(QBoxLayout *bar, ListView &list, const QString &suffix,
                   const std::function<Report()> &report,
                   std::optional<modimpressao::ListKind> pages = std::nullopt);
