#include "bank/frmbanco.h"
#include "ui_frmbanco.h"

#include "bank/accounts.h"
#include "widgets/messages.h"
#include "widgets/notes.h"

using namespace Qt::StringLiterals;

frmbanco::frmbanco(QWidget *parent) : Screen(parent), m_ui(std::make_unique<Ui::frmbanco>())
{
    m_ui->setupUi(this);
    prepare();
    connect(m_ui->cmdinserir, &QPushButton::clicked, this, &frmbanco::save);
    connect(m_ui->cmdcancelar, &QPushButton::clicked, this, &QDialog::close);
}

frmbanco::~frmbanco() = default;

frmbanco *frmbanco::openNew(QWidget *parent)
{
    return shown(std::make_unique<frmbanco>(parent));
}

frmbanco *frmbanco::openEdit(const QString &name, QWidget *parent, quint64 listed)
{
    auto screen = std::make_unique<frmbanco>(parent);
    std::optional<AccountForm> account;
    if (!screen->loadRow(listed, u"Caixa/Banco"_s, u"Este caixa/banco não existe mais."_s,
                         [&](Connection &connection) {
                             account = accounts::load(connection, name);
                             return account.has_value();
                         }))
        return nullptr;
    screen->setObjectName(u"frmeditarbanco"_s);
    screen->setWindowTitle(u"Editar Banco/Caixa"_s);
    screen->m_editedName = account->name;
    screen->m_ui->txtnome->setText(account->name);
    screen->m_ui->txtnome->setReadOnly(true);
    screen->m_ui->txtnome->setToolTip(u"O nome não muda: os lançamentos se referem a ele"_s);
    screen->m_ui->txtvalor->setText(account->opening);
    notes::show(screen->m_ui->txtinfo, account->notes.trimmed());
    screen->m_ui->txtvalor->setFocus();
    return shown(std::move(screen));
}

void frmbanco::save()
{
    const AccountForm form{m_ui->txtnome->text(), m_ui->txtvalor->text(), notes::text(m_ui->txtinfo)};
    if (const auto problem = accounts::problem(form)) {
        m_ui->cmdinserir->setEnabled(false);
        messages::exclamation(this, u"Erro"_s, *problem);
        m_ui->cmdinserir->setEnabled(true);
        m_ui->cmdinserir->setFocus(); // a disabled button had to give it away
        return;
    }
    saveAndClose([&](Connection &connection) {
        if (m_editedName.isEmpty())
            accounts::add(connection, form);
        else
            accounts::change(connection, m_editedName, form);
    });
}
