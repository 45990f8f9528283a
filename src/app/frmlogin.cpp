#include "app/frmlogin.h"
#include "ui_frmlogin.h"

#include "app/historycommands.h"
#include "data/users.h"
#include "settings/database.h"
#include "widgets/background.h"
#include "widgets/messages.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

const QString loginTitle = u"Login"_s;

} // namespace

frmLogin::frmLogin(Kind kind, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmLogin>()), m_kind(kind)
{
    m_ui->setupUi(this);
    if (kind == Kind::Unlock) {
        setObjectName(u"frmLoginSoft"_s);
        setWindowTitle(u"Programa bloqueado"_s);
        m_ui->lblmensagem->setText(u"O programa está bloqueado. Entre com seu usuário e senha."_s);
        m_ui->cmdcancelar->setText(u"&Sair do programa"_s);
    }
    background::apply(this);
    m_ui->txtusuario->installEventFilter(this);
    connect(m_ui->cmdentrar, &QPushButton::clicked, this, &frmLogin::enter);
    connect(m_ui->cmdcancelar, &QPushButton::clicked, this, &QDialog::reject);
}

frmLogin::~frmLogin() = default;

bool frmLogin::ask(Kind kind, QWidget *parent)
{
    frmLogin screen(kind, parent);
    screen.setWindowModality(Qt::ApplicationModal);
    return screen.exec() == Accepted;
}

/// Enter after the name goes on to the password; after the password it enters.
bool frmLogin::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(object, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return false;
    m_ui->txtsenha->setFocus(Qt::TabFocusReason);
    return true;
}

void frmLogin::reject()
{
    if (m_kind == Kind::Start || messages::question(this, loginTitle, u"Deseja fechar o programa?"_s))
        QDialog::reject();
}

void frmLogin::enter()
{
    users::Answer answer = users::Answer::Refused;
    if (!messages::guarded(this, messages::generalPrefix, [&] {
            answer = users::check(*openDatabase(), m_ui->txtusuario->text(), m_ui->txtsenha->text());
        }))
        return;
    switch (answer) {
    case users::Answer::NoUsers:
        messages::exclamation(this, loginTitle,
                              u"Não há nenhum usuário cadastrado, o software será iniciado para adicionar um "
                              "usuário clique no menu principal, gerenciador de login e depois em configurar "
                              "usuários."_s);
        accept();
        break;
    case users::Answer::Accepted:
        historycommands::setUser(m_ui->txtusuario->text());
        accept();
        break;
    case users::Answer::Incomplete:
        messages::exclamation(this, loginTitle, u"Digite o nome de usuário e ou a senha!"_s);
        break;
    case users::Answer::Refused:
        messages::critical(this, loginTitle,
                           u"Usuário e ou senha inválido, por favor verifique os dados digitados!"_s);
        m_ui->txtsenha->selectAll();
        m_ui->txtsenha->setFocus();
        break;
    }
}
