#include "reports/listexportcommands.h"

#include "reports/exportcommands.h"
#include "widgets/listcommand.h"
#include "widgets/listview.h"

#include <QAction>
#include <QBoxLayout>

using namespace Qt::StringLiterals;

void addListExport(QBoxLayout *bar, ListView &list, const QString &suffix,
                   const std::function<Report()> &report, std::optional<modimpressao::ListKind> pages)
{
    const ExportTexts &texts = exportar::reportTexts();
    QWidget *pane = bar->parentWidget();
    const auto command = [&](const QString &name, const listcommand::Look &look, const auto &run) {
        QObject::connect(listcommand::addButton(bar, list, name + suffix, look), &QAction::triggered, pane,
                         run);
    };
    bar->addStretch();
    command(u"cmdimprimir"_s, {u"Imprimir"_s, u"document-print"_s, u"Imprime a lista"_s},
            [pane, report, pages] {
                const Report shown = report();
                exportar::print(pane, shown,
                                pages ? modimpressao::listPages(*pages, *shown.tables.front())
                                      : modimpressao::PageSetup());
            });
    command(u"cmdtxt"_s, {u"TXT"_s, u"text-plain"_s, u"Salva a lista em um arquivo de texto"_s},
            [pane, report, texts] { exportar::saveText(pane, report(), texts); });
    command(u"cmdhtml"_s, {u"HTML"_s, u"text-html"_s, u"Salva a lista em uma página HTML"_s},
            [pane, report, texts] { exportar::saveHtml(pane, report(), texts); });
}
