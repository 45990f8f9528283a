#include "analysis/frmconfrelatorio.h"
#include "ui_frmconfrelatorio.h"

#include "analysis/dialogpane.h"

#include <QPushButton>
#include <QTabWidget>

using namespace Qt::StringLiterals;
using dialogreports::Kind;

frmConfRelatorio::frmConfRelatorio(QWidget *parent)
    : Screen(parent), m_ui(std::make_unique<Ui::frmConfRelatorio>())
{
    m_ui->setupUi(this);
    QTabWidget *tabs = m_ui->paginas;
    for (const Kind kind : {Kind::Payables, Kind::Receivables, Kind::Movements, Kind::Purchases}) {
        const dialogreports::Page &page = dialogreports::page(kind);
        tabs->addTab(new DialogPane(page, tabs), page.caption);
    }
    prepare();
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

frmConfRelatorio::~frmConfRelatorio() = default;

frmConfRelatorio *frmConfRelatorio::open(Page page, QWidget *parent)
{
    auto screen = std::unique_ptr<frmConfRelatorio>(new frmConfRelatorio(parent));
    if (!screen->load([&](Connection &connection) {
            for (DialogPane *pane : screen->findChildren<DialogPane *>())
                pane->fill(connection);
        }))
        return nullptr;
    screen->m_ui->paginas->setCurrentIndex(page);
    return shown(std::move(screen));
}
