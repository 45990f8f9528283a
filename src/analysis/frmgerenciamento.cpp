#include "analysis/frmgerenciamento.h"
#include "ui_frmgerenciamento.h"

#include "analysis/managementpane.h"

using namespace Qt::StringLiterals;

frmGerenciamento::frmGerenciamento(QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmGerenciamento>())
{
    m_ui->setupUi(this);
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

frmGerenciamento::~frmGerenciamento() = default;

frmGerenciamento *frmGerenciamento::open(Tab tab, QWidget *parent)
{
    auto screen = std::unique_ptr<frmGerenciamento>(new frmGerenciamento(parent));
    if (!screen->load([&](Connection &connection) {
            for (const auto &[kind, title] :
                 {std::pair(&payableManagement(), u"Des&pesas"_s), {&receivableManagement(), u"&Lucros"_s}}) {
                auto *pane = new ManagementPane(*kind, screen.get());
                pane->offer(connection);
                screen->m_ui->xtab->addTab(pane, title);
            }
        }))
        return nullptr;
    screen->m_ui->xtab->setCurrentIndex(tab);
    setTabOrder(screen->previousInFocusChain(), screen->m_ui->cmdsair); // the tabs' fields come before it
    screen->m_ui->xtab->setFocus();
    screen->prepare();
    return shown(std::move(screen));
}
