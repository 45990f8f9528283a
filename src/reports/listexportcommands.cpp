#include "reports/listexportcommands.h"

#include "widgets/listcommand.h"
#include "widgets/listview.h"

#include <QAbstractButton>
#include <QAction>
#include <QBoxLayout>

using namespace Qt::StringLiterals;

namespace {

void onTrigger(QObject *trigger, QWidget *over, const std::function<void()> &run)
{
    if (auto *action = qobject_cast<QAction *>(trigger))
        QObject::connect(action, &QAction::triggered, over, run);
    else if (auto *button = qobject_cast<QAbstractButton *>(trigger))
        QObject::connect(button, &QAbstractButton::clicked, over, run);
}

} // namespace

void connectExports(QWidget *over, const ExportTriggers &triggers, const std::function<Report()> &report,
                    const ExportTexts &texts, std::optional<modimpressao::ListKind> pages)
{
    onTrigger(triggers.print, over, [over, report, pages] {
        const Report shown = report();
        exportar::print(over, shown,
                        pages ? modimpressao::listPages(*pages, *shown.tables.front())
                              : modimpressao::PageSetup());
    });
    onTrigger(triggers.text, over, [over, report, texts] { exportar::saveText(over, report(), texts); });
    onTrigger(triggers.html, over, [over, report, texts] { exportar::saveHtml(over, report(), texts); });
}

void addListExport(QBoxLayout *bar, ListView &list, const QString &suffix,
                   const std::function<Report()> &report, std::optional<modimpressao::ListKind> pages)
{
    const auto command = [&](const QString &name, const listcommand::Look &look) {
        return listcommand::addButton(bar, list, name + suffix, look);
    };
    bar->addStretch();
    QAction *print = command(u"cmdimprimir"_s, {u"Imprimir"_s, u"document-print"_s, u"Imprime a lista"_s});
    QAction *text =
        command(u"cmdtxt"_s, {u"TXT"_s, u"text-plain"_s, u"Salva a lista em um arquivo de texto"_s});
    QAction *html = command(u"cmdhtml"_s, {u"HTML"_s, u"text-html"_s, u"Salva a lista em uma página HTML"_s});
    connectExports(bar->parentWidget(), {print, text, html}, report, exportar::reportTexts(), pages);
}
