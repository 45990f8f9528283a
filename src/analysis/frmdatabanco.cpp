#include "analysis/frmdatabanco.h"
#include "ui_frmdatabanco.h"

#include "analysis/frmestbanco.h"
#include "data/clock.h"
#include "widgets/messages.h"

using namespace Qt::StringLiterals;

frmdatabanco::frmdatabanco(Asks asks, QWidget *parent)
    : Screen(parent), m_ui(std::make_unique<Ui::frmdatabanco>()), m_asks(asks)
{
    m_ui->setupUi(this);
    const bool isRange = asks == Asks::Range;
    setObjectName(isRange ? u"frmdatabanco"_s : u"frmsaldodia"_s);
    setWindowTitle(isRange ? u"Estatística bancária - Período"_s : u"Saldo do dia"_s);
    m_ui->lbldata1->setVisible(isRange);
    m_ui->cbodata1->setVisible(isRange);
    prepare();
    const QDate today = programclock::today();
    m_ui->cbodata1->setDate({today.year(), today.month(), 1});
    m_ui->cbodata2->setDate(today);
    connect(m_ui->cmdok, &QPushButton::clicked, this, &frmdatabanco::showStatistics);
    connect(m_ui->cmdcancelar, &QPushButton::clicked, this, &QDialog::close);
}

frmdatabanco::~frmdatabanco() = default;

frmdatabanco *frmdatabanco::open(Asks asks, QWidget *parent)
{
    return shown(std::unique_ptr<frmdatabanco>(new frmdatabanco(asks, parent)));
}

void frmdatabanco::showStatistics()
{
    const QDate first = m_ui->cbodata1->date();
    const QDate last = m_ui->cbodata2->date();
    const bool isRange = m_asks == Asks::Range;
    if (!last.isValid() || (isRange && !first.isValid()))
        messages::exclamation(this, u"Data"_s,
                              isRange ? u"Selecione a data inicial e a data final!"_s
                                      : u"Selecione a data final!"_s);
    else
        frmestbanco::open({isRange ? std::optional(first) : std::nullopt, last}, this);
}
