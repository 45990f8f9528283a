#include "analysis/frmprojecao.h"
#include "ui_frmprojecao.h"

#include "analysis/projectionpane.h"

using namespace Qt::StringLiterals;

frmProjecao::frmProjecao(QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmProjecao>())
{
    m_ui->setupUi(this);
    m_ui->tabprojecao->addTab(new ProjectionPane(payable(), this), u"&Despesas"_s);
    m_ui->tabprojecao->addTab(new ProjectionPane(receivable(), this), u"&Receitas"_s);
    prepare();
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

frmProjecao::~frmProjecao() = default;

frmProjecao *frmProjecao::open(const Side &side, QWidget *parent)
{
    auto screen = std::unique_ptr<frmProjecao>(new frmProjecao(parent));
    screen->m_ui->tabprojecao->setCurrentIndex(side.subject == Subject::Payables ? 0 : 1);
    return shown(std::move(screen));
}
