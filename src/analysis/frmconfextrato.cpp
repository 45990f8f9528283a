#include "analysis/frmconfextrato.h"
#include "ui_frmconfextrato.h"

#include "analysis/frmextrato.h"
#include "data/clock.h"
#include "lists/readrows.h"
#include "widgets/messages.h"

using namespace Qt::StringLiterals;

frmconfextrato::frmconfextrato(QWidget *parent) : Screen(parent), m_ui(std::make_unique<Ui::frmconfextrato>())
{
    m_ui->setupUi(this);
    prepare();
    const QDate today = programclock::today();
    m_ui->cbodata1->setDate({today.year(), today.month(), 1});
    m_ui->cbodata2->setDate(today);
    connect(m_ui->cmdvisualizar, &QPushButton::clicked, this, &frmconfextrato::showStatement);
    connect(m_ui->cmdcancelar, &QPushButton::clicked, this, &QDialog::close);
}

frmconfextrato::~frmconfextrato() = default;

frmconfextrato *frmconfextrato::open(QWidget *parent, const QString &account)
{
    auto screen = std::unique_ptr<frmconfextrato>(new frmconfextrato(parent));
    QComboBox *box = screen->m_ui->cboorigem;
    if (!screen->load([&](Connection &connection) {
            box->addItems(readrows::names(connection, u"select * from banco"_s, u"banco"_s));
        }))
        return nullptr;
    box->setCurrentIndex(account.isEmpty() && box->count() > 1 ? -1 : std::max(0, box->findText(account)));
    return shown(std::move(screen));
}

void frmconfextrato::showStatement()
{
    const StatementChoice choice{m_ui->cboorigem->currentText(), m_ui->cbodata1->date(),
                                 m_ui->cbodata2->date()};
    if (choice.account.isEmpty() || !choice.first.isValid() || !choice.last.isValid())
        messages::exclamation(this, u"Extrato"_s, u"Preencha todos os dados!"_s);
    else
        frmextrato::open(choice, this);
}
