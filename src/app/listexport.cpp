#include "app/listexport.h"

#include "reports/frmexportar.h"

#include <QAction>
#include <QBoxLayout>
#include <QIcon>
#include <QToolButton>

using namespace Qt::StringLiterals;

ListExport::ListExport(QBoxLayout *bar, const QString &suffix, std::function<Report()> report, QWidget *pane)
    : QObject(pane)
{
    const ExportTexts texts{u"Salvar relatório em txt"_s, u"Arquivos de Texto(*.txt)"_s,
                            u"Salvar relatório em html"_s, u"Arquivos HTML(*.html)"_s};
    const auto command = [&](const QString &name, const QString &text, const QString &icon,
                             const QString &tip, auto run) {
        auto *action = new QAction(QIcon::fromTheme(icon), text, this);
        action->setObjectName(name + suffix);
        action->setStatusTip(tip);
        connect(action, &QAction::triggered, pane, run);
        auto *button = new QToolButton(pane);
        button->setObjectName(action->objectName());
        button->setDefaultAction(action);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        bar->addWidget(button);
    };
    command(u"cmdimprimir"_s, u"Imprimir"_s, u"document-print"_s, u"Imprime a lista"_s,
            [pane, report] { exportar::print(pane, report()); });
    command(u"cmdtxt"_s, u"TXT"_s, u"text-plain"_s, u"Salva a lista em um arquivo de texto"_s,
            [pane, report, texts] { exportar::saveText(pane, report(), texts); });
    command(u"cmdhtml"_s, u"HTML"_s, u"text-html"_s, u"Salva a lista em uma página HTML"_s,
            [pane, report, texts] { exportar::saveHtml(pane, report(), texts); });
}
