#include "sales/frmcadprodorc.h"
#include "ui_frmcadprodorc.h"

#include "data/formtext.h"
#include "widgets/boxes.h"
#include "widgets/formkeys.h"
#include "widgets/messages.h"

using namespace Qt::StringLiterals;

frmCadProdOrc::frmCadProdOrc(QWidget *parent, Taker take)
    : Screen(parent), m_ui(std::make_unique<Ui::frmCadProdOrc>()), m_take(std::move(take))
{
    m_ui->setupUi(this);
    prepare();
    m_ui->txtvalor->setPrefix(u"R$ "_s);
    formkeys::acceptQuantity(m_ui->txtqtde);
    m_ui->txtqtde->setText(u"1"_s);
    connect(m_ui->cmdadicionar, &QPushButton::clicked, this, &frmCadProdOrc::add);
    connect(m_ui->cmdcancelar, &QPushButton::clicked, this, &QDialog::close);
}

frmCadProdOrc::~frmCadProdOrc() = default;

frmCadProdOrc *frmCadProdOrc::open(const QStringList &names, QWidget *parent, const Taker &take)
{
    auto screen = std::unique_ptr<frmCadProdOrc>(new frmCadProdOrc(parent, take));
    boxes::suggest(screen->m_ui->txtnome, names);
    return shown(std::move(screen));
}

void frmCadProdOrc::add()
{
    if (m_ui->txtnome->text().trimmed().isEmpty()) {
        messages::exclamation(this, u"Erro"_s, u"O nome do produto deve ser digitado!"_s);
        m_ui->txtnome->setFocus();
        return;
    }
    if (m_ui->txtvalor->text().trimmed().isEmpty()) {
        messages::exclamation(this, u"Erro"_s, u"O valor do produto deve ser digitado!"_s);
        m_ui->txtvalor->setFocus();
        return;
    }
    messages::guarded(this, messages::generalPrefix, [this] {
        formtext::quantity(u"Quantidade"_s, m_ui->txtqtde->text());
        m_take({.name = m_ui->txtnome->text(),
                .brand = m_ui->txtmarca->text(),
                .model = m_ui->txtmodelo->text(),
                .serial = m_ui->txtserie->text(),
                .description = m_ui->txtdescricao->text(),
                .value = formtext::amount(u"Valor"_s, m_ui->txtvalor->text()).grouped(),
                .quantity = m_ui->txtqtde->text()});
        close();
    });
}
