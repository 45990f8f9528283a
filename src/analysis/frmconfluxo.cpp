#include "analysis/frmconfluxo.h"
#include "ui_frmconfluxo.h"

#include "analysis/frmfluxo.h"
#include "data/clock.h"
#include "lists/readrows.h"
#include "widgets/messages.h"

using namespace Qt::StringLiterals;

frmconfluxo::frmconfluxo(cashflow::Mode mode, QWidget *parent)
    : Screen(parent), m_ui(std::make_unique<Ui::frmconfluxo>()), m_mode(mode)
{
    m_ui->setupUi(this);
    prepare();
    m_ui->cbodata1->setDate(programclock::today());
    m_ui->cbodata2->setDate(programclock::today());
    m_ui->cboestatus->addItems(cashflow::statusWords());
    connect(m_ui->cmdnatela, &QPushButton::clicked, this, &frmconfluxo::showFlow);
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

frmconfluxo::~frmconfluxo() = default;

frmconfluxo *frmconfluxo::open(cashflow::Mode mode, QWidget *parent)
{
    auto screen = std::unique_ptr<frmconfluxo>(new frmconfluxo(mode, parent));
    const bool read = screen->load([&](Connection &connection) {
        screen->m_ui->cbobanco->addItems(QStringList(cashflow::allAccounts()) +
                                         readrows::names(connection, u"select * from banco"_s, u"banco"_s));
    });
    return read ? shown(std::move(screen)) : nullptr;
}

void frmconfluxo::showFlow()
{
    const cashflow::Choice choice{m_ui->cbodata1->date(), m_ui->cbodata2->date(),
                                  m_ui->cbobanco->currentText(), m_ui->cboestatus->currentText()};
    for (const auto &[date, field] :
         {std::pair(choice.first, m_ui->cbodata1), std::pair(choice.last, m_ui->cbodata2)}) {
        if (!date.isValid()) {
            messages::exclamation(this, u"Erro"_s, u"Informe a data inicial e a data final."_s);
            field->setFocus();
            return;
        }
    }
    frmfluxo::open(m_mode, choice, this);
}
