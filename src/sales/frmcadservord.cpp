#include "sales/frmcadservord.h"
#include "ui_frmcadservord.h"

#include "data/formtext.h"
#include "widgets/messages.h"

using namespace Qt::StringLiterals;

frmCadServOrd::frmCadServOrd(QWidget *parent, Taker take)
    : Screen(parent), m_ui(std::make_unique<Ui::frmCadServOrd>()), m_take(std::move(take))
{
    m_ui->setupUi(this);
    prepare();
    m_ui->txtvalor->setPrefix(u"R$ "_s);
    connect(m_ui->cmdadicionar, &QPushButton::clicked, this, &frmCadServOrd::add);
    connect(m_ui->cmdcancelar, &QPushButton::clicked, this, &QDialog::close);
}

frmCadServOrd::~frmCadServOrd() = default;

frmCadServOrd *frmCadServOrd::open(QWidget *parent, const Taker &take)
{
    return shown(std::unique_ptr<frmCadServOrd>(new frmCadServOrd(parent, take)));
}

void frmCadServOrd::add()
{
    if (m_ui->txtnome->text().trimmed().isEmpty()) {
        messages::exclamation(this, u"Erro"_s, u"O tipo de serviço deve ser digitado!"_s);
        m_ui->txtnome->setFocus();
        return;
    }
    if (m_ui->txtvalor->text().trimmed().isEmpty()) {
        messages::exclamation(this, u"Erro"_s, u"O valor do serviço deve ser digitado!"_s);
        m_ui->txtvalor->setFocus();
        return;
    }
    messages::guarded(this, messages::generalPrefix, [this] {
        m_take({.kind = m_ui->txtnome->text(),
                .description = m_ui->txtdescricao->text(),
                .value = formtext::amount(u"Valor"_s, m_ui->txtvalor->text()).grouped()});
        close();
    });
}
