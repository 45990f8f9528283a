#include "analysis/frmconfrelatorio.h"

#include "analysis/dialogpane.h"

#include <QBoxLayout>
#include <QTabWidget>

using namespace Qt::StringLiterals;
using dialogreports::Kind;

frmConfRelatorio::frmConfRelatorio(QWidget *parent) : Screen(parent)
{
    setObjectName(u"frmConfRelatorio"_s);
    setWindowTitle(u"Relatórios"_s);
    auto *layout = new QVBoxLayout(this);
    auto *tabs = new QTabWidget(this);
    tabs->setObjectName(u"paginas"_s);
    layout->addWidget(tabs);
    for (const Kind kind : {Kind::Payables, Kind::Receivables, Kind::Movements, Kind::Purchases}) {
        const dialogreports::Page &page = dialogreports::page(kind);
        tabs->addTab(new DialogPane(page, tabs), page.caption);
    }
    prepare();
}

frmConfRelatorio *frmConfRelatorio::open(QWidget *parent)
{
    auto screen = std::unique_ptr<frmConfRelatorio>(new frmConfRelatorio(parent));
    if (!screen->load([&](Connection &connection) {
            for (DialogPane *pane : screen->findChildren<DialogPane *>())
                pane->fill(connection);
        }))
        return nullptr;
    return shown(std::move(screen));
}
