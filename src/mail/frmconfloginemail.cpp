#include "mail/frmconfloginemail.h"
#include "ui_frmconfloginemail.h"

#include "settings/settings.h"
#include "widgets/messages.h"

using namespace Qt::StringLiterals;

frmConfLoginEmail::frmConfLoginEmail(QWidget *parent)
    : Screen(parent), m_ui(std::make_unique<Ui::frmConfLoginEmail>())
{
    m_ui->setupUi(this);
    prepare();
    m_ui->txtlogin->setText(settings::value(settings::mailLogin));
    m_ui->txtsenha->setText(settings::value(settings::mailPassword));
    m_ui->chkcertificado->setChecked(settings::isOn(settings::mailAnyCertificate));
    connect(m_ui->cmdsalvar, &QPushButton::clicked, this, &frmConfLoginEmail::save);
    connect(m_ui->cmdcancelar, &QPushButton::clicked, this, &QDialog::close);
}

frmConfLoginEmail::~frmConfLoginEmail() = default;

frmConfLoginEmail *frmConfLoginEmail::open(QWidget *parent)
{
    return shown(std::unique_ptr<frmConfLoginEmail>(new frmConfLoginEmail(parent)));
}

void frmConfLoginEmail::save()
{
    const bool saved = messages::guarded(this, messages::generalPrefix, [this] {
        settings::setValue(settings::mailLogin, m_ui->txtlogin->text().trimmed());
        settings::setValue(settings::mailPassword, m_ui->txtsenha->text());
        settings::setValue(settings::mailAnyCertificate, m_ui->chkcertificado->isChecked() ? u"1"_s : u"0"_s);
    });
    if (saved)
        close();
}
